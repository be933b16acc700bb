" Settings for lumeric scenes (.vlm).
if exists('b:did_ftplugin')
  finish
endif
let b:did_ftplugin = 1

setlocal commentstring=#\ %s
setlocal comments=:#
setlocal formatoptions-=t formatoptions+=croql
" The examples indent with one tab per level.
setlocal noexpandtab
setlocal iskeyword=@,48-57,_

" :make checks the scene with lumeric and fills the quickfix list.
compiler lumeric

let b:undo_ftplugin = 'setlocal commentstring< comments< formatoptions< expandtab< iskeyword<'
      \ . ' makeprg< errorformat<'
