" What the tests of the Vim files share. Vim shows nothing while it runs a script, so failures go to a file.
set nocompatible encoding=utf-8 fileencodings=utf-8 nomore noswapfile hidden viminfo= cpo&vim
execute 'set runtimepath=' . $POZHIL_ROOT . '/editors/vim,$VIMRUNTIME'
let g:pozhil_lsp = $POZHIL_TEST ==# 'server'
filetype plugin indent on
syntax on

let s:failures = []

function Fail(words) abort
  call add(s:failures, a:words)
endfunction

function Expect(what, found, wanted) abort
  if a:found !=# a:wanted
    call Fail(a:what . ': found ' . string(a:found) . ', wanted ' . string(a:wanted))
  endif
endfunction

try
  execute 'source' $POZHIL_ROOT . '/tests/editors/vim/' . $POZHIL_TEST . '.vim'
catch
  call Fail(v:exception . ' at ' . v:throwpoint)
endtry
call writefile(s:failures + [empty(s:failures) ? 'all right' : 'failed'], $POZHIL_FAILURES)
execute empty(s:failures) ? 'qall!' : 'cquit!'
