" The settings of a source's buffer, `:make` and `gq` by the companion.
let g:pozhil_companion = $POZHIL_ROOT . '/tests/editors/stand_in_companion.mjs'
call writefile(['ஃ குறிப்பு', 'அச்சிடு(“வணக்கம்”)', 'அ = 1'], 'இடை வெளி.பொழில்')
edit இடை\ வெளி.பொழில்
call Expect('tabs', [&l:expandtab, &l:shiftwidth, &l:softtabstop], [1, 4, 4])
call Expect('commentstring', &l:commentstring, 'ஃ %s')
call Expect('a word', matchstr('அச்சிடு(1)', '\k\+'), 'அச்சிடு')
normal! Goஃ பேச்சு
execute "normal! A\<CR>மேலும்"
call Expect('a comment goes on', getline('$'), 'ஃ மேலும்')
undo

silent make!
let s:found = filter(getqflist(), 'v:val.valid')
call Expect('findings', map(copy(s:found), '[v:val.lnum, v:val.type, v:val.text]'),
    \ [[2, 'e', 'இரு பக்கமும் " இடு.'], [3, 'w', 'பெயர்: \']])
call Expect('nothing else', len(getqflist()), 2)
call Expect('the letter', getline(2)[s:found[0].col - 1:], '“வணக்கம்”)')
call Expect('the file', bufname(s:found[0].bufnr), 'இடை வெளி.பொழில்')
call setqflist([], 'r')
silent lmake!
call Expect('findings in the window', len(getloclist(0)), 2)
call Expect('the letter in the window', getline(2)[getloclist(0)[0].col - 1:], '“வணக்கம்”)')

function s:Format(lines, keys, wanted) abort
  enew!
  setlocal filetype=pozhil
  call setline(1, a:lines)
  execute 'silent normal' a:keys
  call Expect(string(a:lines) . ' by ' . a:keys, getline(1, '$'), a:wanted)
endfunction
call s:Format(['எனில் அ:', "\tஆ()"], 'gqG', ['எனில் அ:', '    ஆ()'])
call s:Format(["\tஅ", 'ஆ', "\tஇ", 'ஈ'], 'Ggqq', ['    அ', 'ஆ', '    இ', 'ஈ'])
call s:Format(['அ', 'ஆ'], 'gggqG', ['அ', 'ஆ'])
call s:Format(["\tபிழை"], 'gqG', ["\tபிழை"])
call s:Format(['அ', "\tஆ", 'இ'], ":PozhilFormat\<CR>", ['அ', '    ஆ', 'இ'])

let g:pozhil_companion = '/nowhere/pozhil-thunai'
call s:Format(["\tஅ"], 'gqG', ["\tஅ"])
