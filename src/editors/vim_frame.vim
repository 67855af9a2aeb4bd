" பொழில் நிரல்களின் வண்ணங்கள். Made by scripts/grammar.sh from src/editors/vim_frame.vim and the
" compiler's tables: edit those.

if exists('b:current_syntax')
  finish
endif
let s:saved_cpo = &cpo
set cpo&vim

" Vim takes every Tamil letter and sign for part of a word, so \k, \< and \> know where words end. A word's
" place tells what it is, by one match for each kind of place; the lists are only looked up inside these. Of
" matches that begin together the last one holds, so the general ones come first.

syntax cluster pozhilPlain contains=pozhilComment,pozhilBlockComment,pozhilString,pozhilCharacter,pozhilNumber,
    \pozhilWord,pozhilConstant,pozhilCall,pozhilMemberOf,pozhilMark,pozhilSection,pozhilWidget,pozhilLogic
syntax cluster pozhilCode contains=@pozhilPlain,pozhilFunctionHead,pozhilStructureHead,pozhilEnumerationHead,
    \pozhilParentheses
syntax cluster pozhilTree contains=@pozhilPlain,pozhilTreeWord,pozhilTreeCall,pozhilPropertyOf,pozhilBody

" ---- The words ----

syntax keyword pozhilKeyword contained⟨all keywords⟩
syntax keyword pozhilOperator contained⟨all operators⟩
syntax keyword pozhilBoolean contained⟨all truths⟩
syntax keyword pozhilBuiltIn contained⟨all built-ins⟩
syntax keyword pozhilMember contained⟨all members⟩
syntax keyword pozhilReceiver contained⟨all receivers⟩
syntax keyword pozhilProperty contained⟨all properties⟩
syntax keyword pozhilReservedProperty contained⟨all reserved-properties⟩
syntax keyword pozhilValue contained⟨all values⟩

" ---- Their places ----

syntax match pozhilMark "=>\=\|?"
syntax match pozhilWord "\<\k\+" transparent
    \ contains=pozhilKeyword,pozhilOperator,pozhilBoolean,pozhilReceiver
syntax match pozhilTreeWord "\<\k\+" contained transparent
    \ contains=pozhilReservedProperty,pozhilKeyword,pozhilOperator,pozhilBoolean,pozhilReceiver,pozhilValue
syntax match pozhilConstant "\<மாறிலி_\k\+"
syntax match pozhilCall "\<\k\+\ze\s*(" transparent
    \ contains=pozhilBuiltIn,pozhilKeyword,pozhilOperator,pozhilBoolean,pozhilReceiver
syntax match pozhilTreeCall "\<\k\+\ze\s*(" contained transparent
    \ contains=pozhilBuiltIn,pozhilReservedProperty,pozhilKeyword,pozhilOperator,pozhilBoolean,pozhilReceiver,
    \pozhilValue
syntax match pozhilMemberOf "\.\s*\k\+" transparent contains=pozhilMember

syntax match pozhilFunctionHead "\<செயல்\s\+\k\+" transparent contains=pozhilKeyword,pozhilFunction
syntax match pozhilStructureHead "\<\%(கட்டமைப்பு\|வடிவமைப்பு\)\s\+\k\+" transparent
    \ contains=pozhilKeyword,pozhilStructure nextgroup=pozhilParent skipwhite
syntax match pozhilEnumerationHead "\<வகை\s\+\k\+\ze\s*:" transparent contains=pozhilKeyword,pozhilStructure
syntax match pozhilFunction "\<\k\+" contained
syntax match pozhilStructure "\<\k\+" contained
syntax match pozhilParent "(\s*\k\+\s*)" contained transparent contains=pozhilStructure

" ---- Applications: widgets hold properties and widgets, their logic holds code ----

" Where words begin with the same letters and go on with different signs, only the older engine of patterns
" (\%#=1) finds each of them.

syntax match pozhilSection "\%#=1\<\%(⟨any sections⟩\)\>" nextgroup=pozhilApplication,pozhilBody skipwhite
syntax match pozhilSection "\%#=1\<\%(⟨any code-sections⟩\)\>"
syntax match pozhilApplication "\<\k\+\ze\s*(" contained nextgroup=pozhilBody skipwhite
syntax match pozhilWidget "\%#=1\<\%(⟨any widgets⟩\)\ze\s*(" nextgroup=pozhilBody skipwhite
syntax match pozhilPropertyOf "\<\k\+\ze\s*:" contained transparent
    \ contains=pozhilProperty,pozhilKeyword,pozhilOperator,pozhilBoolean
syntax match pozhilLogic "\<வரையறை\ze\s*(" nextgroup=pozhilLogicBody skipwhite
syntax region pozhilParentheses start="(" end=")" transparent contains=@pozhilCode
syntax region pozhilLogicBody start="(" end=")" contained transparent contains=@pozhilCode
syntax region pozhilBody start="(" end=")" contained transparent contains=@pozhilTree

" ---- Texts, numbers, comments ----

syntax match pozhilNumber "\<\%(\d\+\%(\.\d*\)\=\|[௦-௯]\+\)%\="
syntax match pozhilEscape "\\\%(\o\{1,3}\|x\x\+\|u\x\{4}\|U\x\{8}\|[abfnrtv?\\]\)" contained
syntax region pozhilString start=+"+ end=+"+ contains=pozhilEscape
syntax region pozhilCharacter start=+'+ end=+'\|$+ contains=pozhilEscape
syntax match pozhilComment "\<ஃ.*$" contains=@Spell
syntax region pozhilBlockComment start="\<ஃஃ" end="ஃஃ" contains=@Spell

" Where a comment or a text began is only known from above.
syntax sync fromstart

highlight default link pozhilKeyword Keyword
highlight default link pozhilOperator Operator
highlight default link pozhilBoolean Boolean
highlight default link pozhilBuiltIn Function
highlight default link pozhilMember Function
highlight default link pozhilReceiver Identifier
highlight default link pozhilConstant Constant
highlight default link pozhilFunction Function
highlight default link pozhilStructure Structure
highlight default link pozhilSection Statement
highlight default link pozhilLogic Statement
highlight default link pozhilApplication Structure
highlight default link pozhilWidget Type
highlight default link pozhilProperty Label
highlight default link pozhilReservedProperty Label
highlight default link pozhilValue Constant
highlight default link pozhilMark Operator
highlight default link pozhilNumber Number
highlight default link pozhilString String
highlight default link pozhilCharacter Character
highlight default link pozhilEscape SpecialChar
highlight default link pozhilComment Comment
highlight default link pozhilBlockComment Comment

let b:current_syntax = 'pozhil'
let &cpo = s:saved_cpo
unlet s:saved_cpo
