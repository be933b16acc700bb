" lumeric scenes: extended VRML 1.0 in files ending in .vlm.  Plain VRML
" files (.wrl) are left to whatever else claims them.
autocmd BufNewFile,BufRead *.vlm,*.VLM setfiletype lumeric
