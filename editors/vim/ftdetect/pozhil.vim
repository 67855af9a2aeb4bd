autocmd BufNewFile,BufRead *.பொழில்,*.pozhil setfiletype pozhil
