" Headless test of the compiler plugin's 'errorformat': the gnu lines of
" ../messages/gnu-lines.txt give quickfix entries with their file, line,
" type and text, and the messages the command printed for broken.vlm (the
" file g:cli_messages) are all placed.  Run as
"   vim -es -N -u NONE -i NONE --cmd 'let g:editors = "DIR"'
"       --cmd 'let g:cli_messages = "FILE"' -S errorformat_test.vim

let s:here = expand('<sfile>:p:h')
let s:failures = []
let s:types = {'error': 'e', 'warning': 'w', 'note': 'n'}

let &runtimepath = g:editors . ',' . $VIMRUNTIME
" :cexpr reads the global value, which :compiler! sets.
compiler! lumeric

function! s:Entries(lines) abort
  cexpr a:lines
  return map(getqflist(), '{"valid": v:val.valid, "file": v:val.bufnr ? bufname(v:val.bufnr) : "",'
        \ . ' "line": v:val.lnum, "type": v:val.type, "text": v:val.text}')
endfunction

function! s:Table(path) abort
  let rows = filter(readfile(a:path), 'v:val !~# "^#"')
  return map(rows, 'split(v:val, "\t", 1)')
endfunction

" Each line alone, so that one bad pattern cannot hide behind another.
for [s:gnu, s:file, s:line, s:severity, s:text] in s:Table(s:here . '/../messages/gnu-lines.txt')
  let s:got = s:Entries([s:gnu])
  let s:want = {'valid': 1, 'file': s:file, 'line': str2nr(s:line), 'type': s:types[s:severity], 'text': s:text}
  if s:got != [s:want]
    call add(s:failures, s:gnu . ': got ' . string(s:got) . ', expected ' . string(s:want))
  endif
endfor

" What the command really printed: every line is an entry, and every
" expected message is among them.
let s:printed = readfile(g:cli_messages)
let s:got = s:Entries(s:printed)
if len(s:got) != len(s:printed) || len(filter(copy(s:got), 'v:val.valid')) != len(s:printed)
  call add(s:failures, 'not every printed line is an entry: ' . string(s:got))
endif
for [s:file, s:line, s:severity, s:text] in s:Table(s:here . '/../messages/broken-expected.txt')
  let s:want = {'valid': 1, 'file': s:file, 'line': str2nr(s:line), 'type': s:types[s:severity], 'text': s:text}
  if index(s:got, s:want) < 0
    call add(s:failures, 'no entry ' . string(s:want) . ' among ' . string(s:got))
  endif
endfor

if empty(s:failures)
  qall!
endif
for s:f in s:failures
  verbose echo 'FAIL: ' . s:f
endfor
cquit!
