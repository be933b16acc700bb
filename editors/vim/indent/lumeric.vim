" Indentation for lumeric scenes: one level more inside each { or [ left
" open, one less on a line that starts by closing one.
if exists('b:did_indent')
  finish
endif
let b:did_indent = 1

setlocal indentexpr=LumericIndent(v:lnum)
setlocal indentkeys=0{,0},0],!^F,o,O
setlocal autoindent
let b:undo_indent = 'setlocal indentexpr< indentkeys< autoindent<'

if exists('*LumericIndent')
  finish
endif

" Net count of { and [ opened on a line, outside strings and comments.
function! s:Opened(text) abort
  let text = substitute(a:text, '"\%(\\.\|[^"\\]\)*"', '', 'g')
  let text = substitute(text, '#.*$', '', '')
  let opened = 0
  for c in split(text, '\zs')
    if c ==# '{' || c ==# '['
      let opened += 1
    elseif c ==# '}' || c ==# ']'
      let opened -= 1
    endif
  endfor
  return opened
endfunction

function! LumericIndent(lnum) abort
  let prev = prevnonblank(a:lnum - 1)
  if prev == 0
    return 0
  endif
  let prevText = getline(prev)
  let opened = s:Opened(prevText)
  " A line that starts by closing was already counted one level back.
  if prevText =~# '^\s*[}\]]'
    let opened += 1
  endif
  let indent = indent(prev) + shiftwidth() * (opened > 0 ? 1 : opened < 0 ? -1 : 0)
  if getline(a:lnum) =~# '^\s*[}\]]'
    let indent -= shiftwidth()
  endif
  return max([indent, 0])
endfunction
