" Headless test of editors/vim: file type detection, the syntax group at
" the positions listed in ../highlight-cases.txt, and the ftplugin's
" settings.  Run as
"   vim -es -N -u NONE -i NONE --cmd 'let g:editors = "DIR"' -S syntax_test.vim
" with DIR the editors/vim folder; exits 0 when every check passes.

let s:here = expand('<sfile>:p:h')
let s:samples = s:here . '/../grammar/'
let s:failures = []

function! s:Fail(text) abort
  call add(s:failures, a:text)
endfunction

" The vim syntax group for each class of ../highlight-cases.txt.
let s:groups = {
      \ 'header': 'lumericHeader', 'comment': 'lumericComment',
      \ 'node': 'lumericNode', 'generator': 'lumericGenerator', 'control': 'lumericControl',
      \ 'usernode': 'lumericUserNode', 'field': 'lumericField',
      \ 'fields-keyword': 'lumericFieldsKeyword', 'field-type': 'lumericFieldType',
      \ 'keyword': 'lumericKeyword', 'statement': 'lumericStatement', 'filename': 'lumericFileName',
      \ 'defname': 'lumericDefName', 'noderef': 'lumericNodeRef', 'fieldref': 'lumericFieldRef',
      \ 'number': 'lumericNumber', 'unit': 'lumericUnit', 'badunit': 'lumericBadUnit',
      \ 'string': 'lumericString', 'function': 'lumericBuiltin', 'userfunction': 'lumericFunction',
      \ 'conditional': 'lumericConditional', 'boolean': 'lumericBoolean', 'enum': 'lumericEnum',
      \ 'operator': 'lumericOperator', 'assign': 'lumericAssign', '-': ''}

let &runtimepath = g:editors . ',' . $VIMRUNTIME
filetype plugin on
syntax on

" Detection: .vlm is ours, .wrl is not claimed.
execute 'edit ' . fnameescape(tempname() . '.wrl')
if &filetype ==# 'lumeric'
  call s:Fail('a .wrl file was given the lumeric file type')
endif

let s:cases = filter(readfile(s:here . '/../highlight-cases.txt'), 'v:val !~# "^#" && v:val !~# "^\\s*$"')
let s:current = ''
for s:case in s:cases
  let [s:file, s:start, s:token, s:class] = split(s:case, ' | ', 1)
  if s:file !=# s:current
    execute 'edit! ' . fnameescape(s:samples . s:file)
    let s:current = s:file
    if &filetype !=# 'lumeric'
      call s:Fail(s:file . ': file type is "' . &filetype . '", not lumeric')
    endif
  endif
  let s:nth = 0
  if s:token =~# '@\d\+$'
    let s:nth = str2nr(matchstr(s:token, '\d\+$'))
    let s:token = substitute(s:token, '@\d\+$', '', '')
  endif
  let s:lines = filter(range(1, line('$')), 'strpart(trim(getline(v:val), "\t ", 1), 0, len(s:start)) ==# s:start')
  if len(s:lines) != 1
    call s:Fail(s:case . ': ' . len(s:lines) . ' lines start so')
    continue
  endif
  let s:text = getline(s:lines[0])
  let s:col = -1
  for s:i in range(s:nth + 1)
    let s:col = stridx(s:text, s:token, s:col + 1)
  endfor
  if s:col < 0
    call s:Fail(s:case . ': token not on the line')
    continue
  endif
  " Every character of the token must carry the group.
  for s:c in range(s:col + 1, s:col + len(s:token))
    let s:group = synIDattr(synID(s:lines[0], s:c, 1), 'name')
    let s:want = s:groups[s:class]
    if s:want ==# '' ? s:group =~# '^lumeric' : s:group !=# s:want
      call s:Fail(printf('%s: column %d is "%s", expected "%s"', s:case, s:c, s:group, s:want))
      break
    endif
  endfor
endfor

" Every group the syntax file links ends in a standard highlight group.
for s:name in values(s:groups)
  if s:name !=# '' && synIDattr(synIDtrans(hlID(s:name)), 'name') ==# s:name
    call s:Fail(s:name . ' is not linked to a standard group')
  endif
endfor

" The ftplugin: comments with #, :make through the compiler plugin.
if &commentstring !=# '# %s'
  call s:Fail('commentstring is "' . &commentstring . '"')
endif
if &makeprg !~# '^lumeric --lint --message-format gnu '
  call s:Fail('makeprg is "' . &makeprg . '"')
endif

if empty(s:failures)
  qall!
endif
for s:f in s:failures
  " Messages go to standard error through :verbose echo in -es mode.
  verbose echo 'FAIL: ' . s:f
endfor
cquit!
