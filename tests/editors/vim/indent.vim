" Formatted sources stay as they are under gg=G, and what is typed gets its place.
for s:file in filter(readfile($POZHIL_TOLD), 'v:val =~# "^file "')
  execute 'edit' fnameescape(s:file[5:])
  let s:before = getline(1, '$')
  silent normal! gg=G
  let s:after = getline(1, '$')
  for s:index in s:after ==# s:before ? [] : range(len(s:before))
    call Expect(expand('%:t') . ':' . (s:index + 1), s:after[s:index], s:before[s:index])
  endfor
  set nomodified
endfor

" What is typed behind `lines` (the cursor at the end of the last), and what the buffer becomes.
function s:Type(lines, keys, wanted) abort
  enew!
  setlocal filetype=pozhil
  call setline(1, a:lines)
  execute 'normal! GA' . a:keys
  call Expect(string(a:lines) . ' and ' . string(a:keys), getline(1, '$'), a:wanted)
endfunction

call s:Type([''], "செயல் அ():\<CR>திரும்பு 1\<CR>ஆ()", ['செயல் அ():', '    திரும்பு 1', 'ஆ()'])
call s:Type(['எனில் அ:', '    ஆ()'], "\<CR>இல்லை:\<CR>இ()", ['எனில் அ:', '    ஆ()', 'இல்லை:', '    இ()'])
call s:Type(['எனில் அ:', '    ஆ()'], "\<CR>இல்லைஎனில் இ:\<CR>ஈ()",
    \ ['எனில் அ:', '    ஆ()', 'இல்லைஎனில் இ:', '    ஈ()'])
call s:Type(['எனில் அ:', '    எனில் ஆ:', '        இ()'], "\<CR>இல்லை:",
    \ ['எனில் அ:', '    எனில் ஆ:', '        இ()', '    இல்லை:'])
call s:Type(['முயற்சி:', '    அ()'], "\<CR>பிடி ஆ:", ['முயற்சி:', '    அ()', 'பிடி ஆ:'])
call s:Type(['தேர்வு அ:'], "\<CR>நிலை 1:\<CR>ஆ()\<CR>நிலை 2:\<CR>இ()\<CR>மற்றவை:",
    \ ['தேர்வு அ:', '    நிலை 1:', '        ஆ()', '    நிலை 2:', '        இ()', '    மற்றவை:'])
call s:Type(['அ = ['], "\<CR>1,\<CR>2\<CR>]\<CR>ஆ()", ['அ = [', '    1,', '    2', ']', 'ஆ()'])
call s:Type(['குமரி('], "\<CR>பெட்டி(அகலம்: 1)(\<CR>உரை(\"அ\")\<CR>)\<CR>)",
    \ ['குமரி(', '    பெட்டி(அகலம்: 1)(', '        உரை("அ")', '    )', ')'])
call s:Type(['அ(', '    1,'], "\<CR>2)\<CR>ஆ()", ['அ(', '    1,', '    2)', 'ஆ()'])
call s:Type(['எனில் அ: ஃ ஆ('], "\<CR>இ()", ['எனில் அ: ஃ ஆ(', '    இ()'])
call s:Type(['அ = "ஆ:"'], "\<CR>இ()", ['அ = "ஆ:"', 'இ()'])
call s:Type(['செயல் அ():', '    ஆ()', 'ஃ இ'], "\<CR>\<C-U>ஈ()", ['செயல் அ():', '    ஆ()', 'ஃ இ', 'ஈ()'])

" What gg=G makes of lines.
function s:Indent(lines, wanted) abort
  enew!
  setlocal filetype=pozhil
  call setline(1, a:lines)
  silent normal! gg=G
  call Expect(string(a:lines), getline(1, '$'), a:wanted)
endfunction

call s:Indent(['எனில் அ:', 'ஆ()'], ['எனில் அ:', '    ஆ()'])
call s:Indent(['அ()', '      ஆ()'], ['அ()', 'ஆ()'])
call s:Indent(['எனில் அ:', '    எனில் ஆ:', '        இ()', 'இல்லை:', '    ஈ()'],
    \ ['எனில் அ:', '    எனில் ஆ:', '        இ()', 'இல்லை:', '    ஈ()'])
call s:Indent(['அ = "ஆ', '   இ', '"', 'ஈ()'], ['அ = "ஆ', '   இ', '"', 'ஈ()'])
call s:Indent(['ஃஃ ஆ:', '   இ', 'ஃஃ', 'ஈ()'], ['ஃஃ ஆ:', '   இ', 'ஃஃ', 'ஈ()'])
call s:Indent(['அ = "ஆ"', 'எனில் இ:', '    ஈ = "உ"', '      ஊ()'],
    \ ['அ = "ஆ"', 'எனில் இ:', '    ஈ = "உ"', '    ஊ()'])
