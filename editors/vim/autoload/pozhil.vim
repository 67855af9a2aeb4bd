" துணையை அழைப்பவை: வடிவமைத்தல், சரிபார்த்தல்.

function pozhil#Companion() abort
  return get(g:, 'pozhil_companion', 'pozhil-thunai')
endfunction

function s:HasCompanion() abort
  if executable(pozhil#Companion())
    return 1
  endif
  echohl WarningMsg
  echomsg "பொழில்-துணை கிடைக்கவில்லை. அதை நிறுவு, அல்லது அதன் இடத்தை g:pozhil_companion-இல் சொல்."
  echohl None
  return 0
endfunction

" Lays out the whole buffer. A source that the companion refuses stays as it is.
function pozhil#Format() abort
  if !s:HasCompanion()
    return
  endif
  let found = systemlist([pozhil#Companion(), 'format', '-']->s:Command(), getline(1, '$'))
  if v:shell_error
    echohl WarningMsg
    echomsg join(found)
    echohl None
    return
  endif
  call s:Replace(found)
endfunction

function s:Command(words) abort
  return join(map(copy(a:words), 'shellescape(v:val)'))
endfunction

" Only the lines that differ are touched, so that marks and folds stay where they are.
function s:Replace(lines) abort
  let view = winsaveview()
  let first = 1
  while first <= line('$') && first <= len(a:lines) && getline(first) ==# a:lines[first - 1]
    let first += 1
  endwhile
  let same = 0
  while same < line('$') - first + 1 && same < len(a:lines) - first + 1
      \ && getline(line('$') - same) ==# a:lines[-1 - same]
    let same += 1
  endwhile
  let last = line('$') - same
  let new = a:lines[first - 1 : len(a:lines) - same - 1]
  if first - 1 > len(a:lines) - same - 1
    let new = []
  endif
  call append(last, new)
  if last >= first
    silent execute 'keepjumps' first . ',' . last . 'delete _'
  endif
  call winrestview(view)
endfunction

" For 'formatexpr': `gq` lays out the buffer whole, since a line's place depends on the lines around it. What is
" typed Vim breaks itself.
function pozhil#FormatExpr() abort
  if mode() =~# '[iR]'
    return 1
  endif
  call pozhil#Format()
  return 0
endfunction

function pozhil#MakeProgram() abort
  return shellescape(pozhil#Companion()) . ' check --json %:S'
endfunction

" The companion counts letters, Vim bytes; and its messages are texts of JSON.
function pozhil#TidyList(list, setter) abort
  if get(b:, 'current_compiler', '') !=# 'pozhil'
    return
  endif
  for item in a:list.items
    if !item.valid
      continue
    endif
    let item.text = substitute(item.text, '\\\(["\\]\)', '\1', 'g')
    call bufload(item.bufnr)
    let line = get(getbufline(item.bufnr, item.lnum), 0, '')
    let item.col = byteidxcomp(line, item.col - 1) + 1
  endfor
  let what = {'items': a:list.items, 'title': a:list.title}
  if a:setter ==# 'setqflist'
    call setqflist([], 'r', what)
  else
    call setloclist(0, [], 'r', what)
  endif
endfunction
