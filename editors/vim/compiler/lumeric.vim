" :make for lumeric scenes: checks the current file with the whole
" translation, writing nothing, and reads the messages in the gnu format.
if exists('current_compiler')
  finish
endif
let current_compiler = 'lumeric'

if exists(':CompilerSet') != 2
  command -nargs=* CompilerSet setlocal <args>
endif

CompilerSet makeprg=lumeric\ --lint\ --message-format\ gnu\ %:S

" A message without a file (lumeric: error: ...) is listed without a place;
" FILE:LINE: and FILE: messages point at the file.  Notes, such as hints
" and PRINT output, are kept as notes.
CompilerSet errorformat=
      \lumeric:\ %trror:\ %m,
      \lumeric:\ %tarning:\ %m,
      \lumeric:\ %tote:\ %m,
      \%f:%l:\ %trror:\ %m,
      \%f:%l:\ %tarning:\ %m,
      \%f:%l:\ %tote:\ %m,
      \%f:\ %trror:\ %m,
      \%f:\ %tarning:\ %m,
      \%f:\ %tote:\ %m,
      \%-G%.%#
