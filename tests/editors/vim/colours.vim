" Each piece of the sources in $POZHIL_TOLD has the colour that the compiler's own tables give it, from its
" first letter to its last.
let s:groups = {
    \ 'keyword': ['Keyword'], 'operator': ['Operator'], 'truth': ['Boolean'], 'built-in': ['BuiltIn'],
    \ 'member': ['Member'], 'widget': ['Widget'], 'section': ['Section', 'Logic'],
    \ 'property': ['Property', 'ReservedProperty'], 'function': ['Function'], 'structure': ['Structure'],
    \ 'text': ['String'], 'character': ['Character'], 'number': ['Number'],
    \ 'comment': ['Comment', 'BlockComment']}
let s:seen = {}

function s:GroupAt(offset) abort
  let line = byte2line(a:offset + 1)
  return synIDattr(synID(line, a:offset + 2 - line2byte(line), 1), 'name')
endfunction

function s:CheckPiece(kind, begin, end) abort
  let wanted = map(copy(s:groups[a:kind]), '"pozhil" . v:val')
  for offset in [a:begin, a:end - 1]
    let found = s:GroupAt(offset)
    if index(wanted, found) < 0
      let line = byte2line(offset + 1)
      call Fail(printf('%s:%d: %s is %s: %s', expand('%:t'), line, a:kind, found, getline(line)))
      return
    endif
  endfor
  let s:seen[a:kind] = 1
endfunction

for s:line in readfile($POZHIL_TOLD)
  if s:line =~# '^file '
    execute 'edit' fnameescape(s:line[5:])
    call Expect('the kind of ' . expand('%:t'), &filetype, 'pozhil')
  else
    let [s:kind, s:begin, s:end] = split(s:line)
    call s:CheckPiece(s:kind, str2nr(s:begin), str2nr(s:end))
  endif
endfor
call Expect('the kinds that were seen', sort(keys(s:seen)), sort(keys(s:groups)))

" What only looks like a word of the language: source, place of the letter, its group.
function s:CheckLine(source, word, wanted) abort
  enew!
  setlocal filetype=pozhil
  call setline(1, split(a:source, "\n"))
  let offset = strridx(join(getline(1, '$'), "\n"), a:word)
  call Expect(a:source, s:GroupAt(offset), a:wanted)
endfunction

call s:CheckLine('சமமா = 1', 'சமமா', '')
call s:CheckLine('மெய்யா = 1', 'மெய்', '')
call s:CheckLine('அஃது = 1', 'ஃது', '')
call s:CheckLine('எண் = 1', 'எண்', '')
call s:CheckLine('x.நீக்கு(1)', 'நீக்கு', '')
call s:CheckLine('x = "ஃ இல்லை"', 'இல்லை', 'pozhilString')
call s:CheckLine("ஃஃ எனில்\nசுற்று ஃஃ சுற்று", 'சுற்று', 'pozhilKeyword')
call s:CheckLine("ஃஃ எனில்\nசுற்று ஃஃ", 'சுற்று', 'pozhilBlockComment')
call s:CheckLine('"அ\nஆ"', 'n', 'pozhilEscape')
call s:CheckLine('"அ\" எனில்', 'எனில்', 'pozhilKeyword')
call s:CheckLine('மாறிலி_பை = 3.14', 'பை', 'pozhilConstant')
call s:CheckLine('கட்டமைப்பு பூனை(விலங்கு):', 'விலங்கு', 'pozhilStructure')
call s:CheckLine('வகை நாள்:', 'நாள்', 'pozhilStructure')
call s:CheckLine('தான்.x = 50%', '%', 'pozhilNumber')
call s:CheckLine('தான்.x = 50%', 'தான்', 'pozhilReceiver')
call s:CheckLine('x = ௧௨', '௨', 'pozhilNumber')
call s:CheckLine('x1 = 2', '1', '')
call s:CheckLine("வலைதளம் கடை(\n    வரையறை(\n        நிறம் = 1\n    )\n)", 'நிறம்', '')
call s:CheckLine("வலைதளம் கடை(", 'கடை', 'pozhilApplication')
call s:CheckLine("குமரி(உரை(\"அ\")(நிறம்: நீலம்))", 'நிறம்', 'pozhilProperty')
call s:CheckLine("பெட்டி(சீரமைப்பு: மையம்)", 'மையம்', 'pozhilValue')
call s:CheckLine("நிகழ்நேர.தரவுபடி(\"அ\")", 'தரவுபடி', 'pozhilSection')
