" பொழில் நிரல்களின் உள்தள்ளல்.
"
" Indentation tells where a block ends, so what stands further out than expected was meant and stays there;
" what stands too deep moves out, and a new line gets its place from the code above it.

if exists('b:did_indent')
  finish
endif
let b:did_indent = 1

setlocal nolisp autoindent
setlocal indentexpr=PozhilIndent(v:lnum)
setlocal indentkeys=0),0],0},<:>,o,O,!^F
let b:undo_indent = 'setlocal lisp< autoindent< indentexpr< indentkeys<'

if exists('*PozhilIndent')
  finish
endif
let s:saved_cpo = &cpo
set cpo&vim

" What goes on with a block, and what it goes on from.
let s:continues = {
    \ 'இல்லைஎனில்': ['எனில்', 'இல்லைஎனில்'],
    \ 'இல்லை': ['எனில்', 'இல்லைஎனில்'],
    \ 'பிடி': ['முயற்சி'],
    \ 'நிலை': ['நிலை'],
    \ 'மற்றவை': ['நிலை']}
" Behind these no statement of their block comes.
let s:ends = ['திரும்பு', 'நிறுத்து', 'தொடர்', 'விடு']

" A line without its comment, and without what its texts say.
function s:CodeOf(lnum) abort
  let line = substitute(getline(a:lnum), '"[^"]*"', '""', 'g')
  let line = substitute(line, "'[^']*'", "''", 'g')
  let line = substitute(line, '\<ஃஃ.\{-}ஃஃ', '', 'g')
  return substitute(substitute(line, '\<ஃ.*$', '', ''), '\s\+$', '', '')
endfunction

function s:FirstWord(code) abort
  return matchstr(a:code, '^\s*\zs\k\+')
endfunction

" How many brackets of lines above the line closes, how many it leaves open, and how many it begins with.
function s:BracketsOf(code) abort
  let [depth, least] = [0, 0]
  for mark in split(substitute(a:code, '[^][(){}]', '', 'g'), '\zs')
    if mark =~# '[([{]'
      let depth += 1
    else
      let depth -= 1
      let least = min([least, depth])
    endif
  endfor
  let leading = strlen(matchstr(a:code, '^\s*\zs[])}]\+'))
  return {'closed': -least, 'open': depth - least, 'leading': leading}
endfunction

function s:CodeAbove(lnum) abort
  let above = prevnonblank(a:lnum - 1)
  while above > 0 && (s:CodeOf(above) ==# '' || s:IsInside(above))
    let above = prevnonblank(above - 1)
  endwhile
  return above
endfunction

" The line above `lnum` that opened the outermost of `count` brackets.
function s:OpenerAbove(lnum, count) abort
  let [missing, above] = [a:count, s:CodeAbove(a:lnum)]
  while above > 0
    let brackets = s:BracketsOf(s:CodeOf(above))
    if brackets.open >= missing
      return above
    endif
    let missing += brackets.closed - brackets.open
    let above = s:CodeAbove(above)
  endwhile
  return 0
endfunction

" The line begins inside a text or a comment that a line above opened. What was found out holds as long as the
" buffer isn't changed.
function s:IsInside(lnum) abort
  let now = bufnr() . ':' . b:changedtick
  if s:inside.when !=# now
    let s:inside = {'when': now}
  endif
  if !has_key(s:inside, a:lnum)
    let s:inside[a:lnum] = a:lnum > 1 && s:IsOpenBehind(a:lnum - 1)
  endif
  return s:inside[a:lnum]
endfunction

let s:inside = {'when': ''}

" A text or a comment goes on behind the end of the line: an empty one has it from above.
function s:IsOpenBehind(lnum) abort
  let end = strlen(getline(a:lnum))
  if end == 0
    return s:IsInside(a:lnum)
  endif
  let group = synIDattr(synID(a:lnum, end, 1), 'name')
  let opener = {'pozhilString': '"', 'pozhilEscape': '"', 'pozhilBlockComment': 'ஃஃ'}
  if !has_key(opener, group)
    return 0
  endif
  let mark = opener[group]
  if getline(a:lnum)[-strlen(mark):] !=# mark
    return 1
  endif
  " The mark at the end closes what was open before it, or opens.
  let before = end - strlen(mark)
  let isOpen = before == 0 ? s:IsInside(a:lnum) : get(opener, synIDattr(synID(a:lnum, before, 1), 'name'), '') ==# mark
  return !isOpen
endfunction

" The places where `word` may go on with a block above, the nearest first.
function s:PlacesOf(word, lnum) abort
  let [places, least, above] = [[], -1, s:CodeAbove(a:lnum)]
  while above > 0
    let place = indent(above)
    if (least < 0 || place < least)
      if index(s:continues[a:word], s:FirstWord(s:CodeOf(above))) >= 0
        call add(places, place)
      endif
      let least = place
    endif
    let above = place == 0 ? 0 : s:CodeAbove(above)
  endwhile
  return places
endfunction

" Where a statement behind the line `above` stands if nothing tells otherwise, and whether it has to.
function s:PlaceBehind(above) abort
  let code = s:CodeOf(a:above)
  let brackets = s:BracketsOf(code)
  let opener = brackets.closed > 0 ? s:OpenerAbove(a:above, brackets.closed) : 0
  let opens = brackets.open > 0 || code =~# ':$'
  return [indent(opener > 0 ? opener : a:above) + (opens ? shiftwidth() : 0), opens]
endfunction

function PozhilIndent(lnum) abort
  if s:IsInside(a:lnum)
    return -1
  endif
  let above = s:CodeAbove(a:lnum)
  if above == 0
    return 0
  endif
  let code = s:CodeOf(a:lnum)
  let leading = s:BracketsOf(code).leading
  if leading > 0
    let opener = s:OpenerAbove(a:lnum, leading)
    return opener > 0 ? indent(opener) : -1
  endif
  let word = s:FirstWord(code)
  if has_key(s:continues, word) && code =~# ':$'
    let places = s:PlacesOf(word, a:lnum)
    if !empty(places)
      return index(places, indent(a:lnum)) >= 0 ? -1 : places[0]
    endif
  endif
  let [place, isFixed] = s:PlaceBehind(above)
  if getline(a:lnum) !~# '\S'
    let isEnd = index(s:ends, s:FirstWord(s:CodeOf(above))) >= 0
    let comment = prevnonblank(a:lnum - 1)
    let place = isEnd ? max([place - shiftwidth(), 0]) : place
    return comment > above ? min([place, indent(comment)]) : place
  endif
  return !isFixed && indent(a:lnum) < place && indent(a:lnum) % shiftwidth() == 0 ? -1 : place
endfunction

let &cpo = s:saved_cpo
unlet s:saved_cpo
