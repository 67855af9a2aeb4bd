" :make துணையிடம் நிரலைச் சரிபார்க்கச் சொல்லி, பிழைகளைக் கூடத்தில் (quickfix) காட்டும்.

if exists('current_compiler')
  finish
endif
let current_compiler = 'pozhil'
let s:saved_cpo = &cpo
set cpo&vim

if exists(':CompilerSet') != 2
  command -nargs=* CompilerSet setlocal <args>
endif
execute 'CompilerSet makeprg=' . escape(pozhil#MakeProgram(), ' \|"')
CompilerSet errorformat=%.%#{\"file\":\ \"%f\"\\,\ \"line\":\ %l\\,\ \"column\":\ %c\\,%.%#
    \\"severity\":\ \"%t%*[a-z]\"%.%#\"message\":\ \"%m\"}%.%#,%-G[,%-G],%-G

augroup pozhil_make
  autocmd!
  autocmd QuickFixCmdPost make call pozhil#TidyList(getqflist({'items': 1, 'title': 1}), 'setqflist')
  autocmd QuickFixCmdPost lmake call pozhil#TidyList(getloclist(0, {'items': 1, 'title': 1}), 'setloclist')
augroup END

let &cpo = s:saved_cpo
unlet s:saved_cpo
