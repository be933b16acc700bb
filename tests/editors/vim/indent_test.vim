" Headless test of the indent plugin: every example scene, with its
" indentation taken away, is indented back exactly as it was written.  Run as
"   vim -es -N -u NONE -i NONE --cmd 'let g:editors = "DIR"'
"       --cmd 'let g:examples = "DIR"' -S indent_test.vim

let s:failures = []
let &runtimepath = g:editors . ',' . $VIMRUNTIME
filetype plugin indent on

for s:path in glob(g:examples . '/*.vlm', 0, 1)
  let s:written = readfile(s:path)
  execute 'edit! ' . fnameescape(s:path)
  silent %s/^\s\+//e
  normal! gg=G
  let s:indented = getline(1, '$')
  if s:indented != s:written
    let s:at = 0
    while s:indented[s:at] ==# s:written[s:at]
      let s:at += 1
    endwhile
    call add(s:failures, printf('%s:%d: indented as "%s"', s:path, s:at + 1, s:indented[s:at]))
  endif
  set nomodified
endfor
if len(glob(g:examples . '/*.vlm', 0, 1)) == 0
  call add(s:failures, 'no example scene in ' . g:examples)
endif

if empty(s:failures)
  qall!
endif
for s:f in s:failures
  verbose echo 'FAIL: ' . s:f
endfor
cquit!
