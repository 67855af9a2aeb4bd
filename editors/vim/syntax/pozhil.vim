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

syntax keyword pozhilKeyword contained
    \ அச்சிடு
    \ இல்
    \ இல்லை
    \ இல்லைஎனில்
    \ எனில்
    \ ஒவ்வொன்றாக
    \ கட்டமைப்பு
    \ காத்திரு
    \ சுற்று
    \ செயல்
    \ திரும்பு
    \ தேர்வு
    \ தொடர்
    \ நிறுத்து
    \ நிலை
    \ நூஇறக்கி
    \ பிடி
    \ பொது
    \ மற்றவை
    \ மாற்று
    \ முயற்சி
    \ மூலம்
    \ ரகசிய
    \ ரகசியம்
    \ வகை
    \ வடிவமைப்பு
    \ வரம்பு
    \ விடு
    \ வினை
syntax keyword pozhilOperator contained
    \ அல்லது
    \ இடதுஇசேர்
    \ இடதுஇருமை
    \ இணை
    \ எதிர்இருமை
    \ ஒன்றுகழி
    \ ஒன்றுசேர்
    \ கழி
    \ கழிசேர்
    \ குறை
    \ கூட்டிசேர்
    \ கூட்டு
    \ கூட்டுஇசேர்
    \ கூட்டுஇருமை
    \ சமமில்லை
    \ சமம்
    \ சிறிது
    \ சிறிதுசமம்
    \ பெஇசேர்
    \ பெரிது
    \ பெரிதுசமம்
    \ பெருக்கு
    \ பெருக்குஇருமை
    \ பெருக்குசேர்
    \ மற்றும்
    \ மிகை
    \ மீதி
    \ மீதிசேர்
    \ வகு
    \ வகுசேர்
    \ வலதுஇசேர்
    \ வலதுஇருமை
    \ வேஇசேர்
    \ வேறுஇருமை
syntax keyword pozhilBoolean contained
    \ பொய்
    \ மெய்
syntax keyword pozhilBuiltIn contained
    \ அடுக்கு
    \ இப்போதுநேரம்
    \ உள்ளீடு
    \ எடு
    \ எண்
    \ என்னவகை
    \ காஸ்
    \ கீழ்எண்
    \ கோப்பு_அழி
    \ கோப்பு_உள்ளதா
    \ கோப்பு_எழுது
    \ கோப்பு_சேர்
    \ கோப்பு_படி
    \ சிறியஎ
    \ சீரற்ற_எண்
    \ செல்க
    \ சைன்
    \ டேன்
    \ தனிமதிப்பு
    \ தேதி
    \ நகர்த்து
    \ நீக்கு
    \ நீளம்
    \ நேரம்
    \ பதில்
    \ பிளவு
    \ பெரியஎ
    \ மடக்கு
    \ முழுவதும்
    \ மேல்எண்
    \ வர்க்கமூலம்
    \ வை
syntax keyword pozhilMember contained
    \ ஆண்டு
    \ உருவாக்கு
    \ உரைதரவு
    \ கொண்டுள்ளது
    \ சிறியஎழுத்து
    \ சுத்தம்
    \ சேர்
    \ தொடக்கம்
    \ நாள்
    \ நிமிடம்
    \ நீளம்
    \ பிழை_அழி
    \ பிழைசெய்தி
    \ பெரியஎழுத்து
    \ மணி
    \ மாதம்
    \ முடிவு
    \ வாரநாள்
    \ வினாடி
    \ வினாடிகள்
    \ வெறுமை
    \ வெறுமைஇல்லை
syntax keyword pozhilReceiver contained
    \ self
    \ காட்சி_நிலை
    \ தான்
    \ துவக்கம்
syntax keyword pozhilProperty contained
    \ api_key
    \ app_id
    \ auth_domain
    \ cols
    \ database_url
    \ h_gap
    \ messaging_sender_id
    \ project_id
    \ storage_bucket
    \ style_அளவு
    \ style_தடிமன்
    \ style_நிறம்
    \ style_நிழல்
    \ style_பின்னணி
    \ style_வளைவு
    \ v_gap
    \ width
    \ அகலம்
    \ அடிக்குறிப்பு
    \ அடிப்பகுதிதேர்வு
    \ அடையாளம்
    \ அதிகபட்சம்
    \ அளவு
    \ அழி_படம்
    \ அழுத்தினால்
    \ ஆரம்ப_நிலை
    \ இடஞ்சுழி
    \ இடது_நழுவு
    \ இடைவெளி
    \ இணைய_தலைப்பு
    \ இயங்கும்_நிறம்
    \ உயரம்
    \ உருளும்பட்டை
    \ உரை
    \ உரைசீரமைப்பு
    \ எலிவேஷன்
    \ எழுத்தளவு
    \ எழுத்து_நிறம்
    \ எழுத்துரு
    \ கரை_அளவு
    \ கரை_நிறம்
    \ களப்பின்னணி
    \ காட்சி_பெயர்
    \ காலம்
    \ கி_இவெ
    \ கி_நகர்வு
    \ கிஉருளும்பட்டை
    \ கீழ்_நழுவு
    \ குறிப்பு
    \ குறுக்கு_எண்ணிக்கை
    \ குறைந்தபட்சம்
    \ குழு_மதிப்பு
    \ சின்னம்
    \ சீரமைப்பு
    \ சுட்டி_மேல்
    \ சுருக்கம்
    \ செயலிழப்பு
    \ செய்தி
    \ தடிமன்
    \ தத்தல்_தேர்வு
    \ தலைப்பு
    \ தள்ளி_மாறு
    \ துணைத்_தலைப்பு
    \ துள்ளல்
    \ தெளிவு
    \ தேடல்_குறிப்பு
    \ தேடல்_படம்
    \ தேர்வற்ற_நிறம்
    \ தேர்வு_நிறம்
    \ தேர்வுபெட்டிநிலை
    \ நகர்வு_X
    \ நகர்வு_Y
    \ நிறம்
    \ நிலைமை
    \ நிழல்
    \ நெ_இவெ
    \ நெ_நகர்வு
    \ பக்கம்
    \ பங்கு
    \ பட்டியல்
    \ பறக்கும்
    \ பலவரி
    \ பாதை
    \ பின்னணி
    \ பின்னணிகாணொளி
    \ பின்னணிபடம்
    \ பெட்டிபின்னணி
    \ பொபின்னணி
    \ மங்குநழுவு
    \ மதிப்பு
    \ மறைவு
    \ மாறியதால்
    \ மீட்சி
    \ முடங்கிய_நிறம்
    \ முன்னணி
    \ மெல்ல_மாறு
    \ மேம்படுத்தப்பட்ட_நிறம்
    \ மேல்_நழுவு
    \ வகை
    \ வலஞ்சுழி
    \ வலது_நழுவு
    \ வளைவு
    \ விகிதம்
    \ விரிந்து_மாறு
    \ விரிவு
syntax keyword pozhilReservedProperty contained
    \ அகலம்
    \ அடிக்குறிப்பு
    \ அடிப்பகுதிதேர்வு
    \ அளவு
    \ அழி_படம்
    \ அழுத்தினால்
    \ இடஞ்சுழி
    \ இடது_நழுவு
    \ உயரம்
    \ எலிவேஷன்
    \ எழுத்தளவு
    \ எழுத்து_நிறம்
    \ எழுத்துரு
    \ கரை_அளவு
    \ கரை_நிறம்
    \ களப்பின்னணி
    \ காலம்
    \ கி_நகர்வு
    \ கீழ்_நழுவு
    \ குறிப்பு
    \ குறுக்கு_எண்ணிக்கை
    \ சுட்டி_மேல்
    \ சுருக்கம்
    \ தடிமன்
    \ தத்தல்_தேர்வு
    \ தலைப்பு
    \ தள்ளி_மாறு
    \ துள்ளல்
    \ தெளிவு
    \ தேடல்_குறிப்பு
    \ தேடல்_படம்
    \ தேர்வற்ற_நிறம்
    \ தேர்வு_நிறம்
    \ நிறம்
    \ நிலைமை
    \ நிழல்
    \ நெ_நகர்வு
    \ பறக்கும்
    \ பின்னணி
    \ பின்னணிகாணொளி
    \ பின்னணிபடம்
    \ பெட்டிபின்னணி
    \ பொபின்னணி
    \ மங்குநழுவு
    \ மறைவு
    \ மீட்சி
    \ மெல்ல_மாறு
    \ மேல்_நழுவு
    \ வலஞ்சுழி
    \ வலது_நழுவு
    \ வளைவு
    \ விகிதம்
    \ விரிந்து_மாறு
    \ விரிவு
syntax keyword pozhilValue contained
    \ auto
    \ easeIn
    \ easeInCubic
    \ easeInOut
    \ easeInOutCubic
    \ easeOut
    \ easeOutCubic
    \ ease_in
    \ ease_in_cubic
    \ ease_in_out
    \ ease_in_out_cubic
    \ ease_out
    \ ease_out_cubic
    \ hover
    \ அதிவேக_தொடக்கம்
    \ அதிவேக_மாற்றம்
    \ அதிவேக_முடிவு
    \ அலை_தொடக்கம்
    \ அலை_மாற்றம்
    \ அலை_முடிவு
    \ அழுத்த_தொடக்கம்
    \ அழுத்த_மாற்றம்
    \ அழுத்த_முடிவு
    \ ஆரஞ்சு
    \ இயல்பான
    \ இளஞ்சிவப்பு
    \ ஊதா
    \ கடல்நீலம்
    \ கன_தொடக்கம்
    \ கன_மாற்றம்
    \ கன_முடிவு
    \ கருப்பு
    \ கீழ்_இடது
    \ கீழ்_மையம்
    \ கீழ்_வலது
    \ சாதாரண
    \ சாம்பல்
    \ சிவப்பு
    \ சீறு
    \ சுட்டி_மேல்
    \ சுண்ணாம்பு
    \ தங்கம்
    \ தானாக
    \ துள்ளல்
    \ துள்ளல்_தொடக்கம்
    \ துள்ளல்_மாற்றம்
    \ நடு_மெது
    \ நிதான_தொடக்கம்
    \ நிதான_முடிவு
    \ நீலம்
    \ பச்சை
    \ பழுப்பு
    \ பாய்_தொடக்கம்
    \ பாய்_மாற்றம்
    \ பாய்_முடிவு
    \ பாய்ந்து_அமர்
    \ பின்வாங்கல்_தொடக்கம்
    \ பின்வாங்கல்_மாற்றம்
    \ பின்வாங்கல்_முடிவு
    \ மஞ்சள்
    \ மின்_வேகம்
    \ மீட்சி
    \ மீட்சி_தொடக்கம்
    \ மீட்சி_மாற்றம்
    \ மெது_தொடக்கம்
    \ மெது_மாற்றம்
    \ மெது_முடிவு
    \ மெதுவா_தொடங்கி_முடி
    \ மெதுவா_தொடங்கு
    \ மெதுவா_முடி
    \ மேல்_இடது
    \ மேல்_மையம்
    \ மேல்_வலது
    \ மைய_இடது
    \ மைய_வலது
    \ மையம்
    \ வட்ட_தொடக்கம்
    \ வட்ட_மாற்றம்
    \ வட்ட_முடிவு
    \ வானநீலம்
    \ வெள்ளி
    \ வெள்ளை
    \ வேக_தொடக்கம்
    \ வேக_மாற்றம்
    \ வேக_முடிவு
    \ வேக_மெது
    \ வேகம்_குறை

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

syntax match pozhilSection "\%#=1\<\%(அசைவூட்டம்\|அட்டை_பாணி\|இலக்கு\|உரைபாணி\|உரைபொ_பாணி\|எச்சரிக்கை_பாணி\|குமரி\|தரவுத்தளமேலாண்மை\|தலைமை\|தேடல்_பாணி\|பயர்பேசு_அமைப்பு\|பாணி\|புதுப்பி\|பெட்டி_பாணி\|பொ_பாணி\|வலைதளம்\)\>" nextgroup=pozhilApplication,pozhilBody skipwhite
syntax match pozhilSection "\%#=1\<\%(நிகழ்நேர\.தரவுஅழி\|நிகழ்நேர\.தரவுசேர்\|நிகழ்நேர\.தரவுபடி\|நிகழ்நேர\.தரவுமாற்று\|வரையறை\)\>"
syntax match pozhilApplication "\<\k\+\ze\s*(" contained nextgroup=pozhilBody skipwhite
syntax match pozhilWidget "\%#=1\<\%(அடி_உருப்படி\|அடிப்பகுதி\|அடுக்கி\|அட்டை\|அறிவிப்பு_பட்டை\|அளவி\|இவெ\|உரை\|உரைபெட்டி\|உரைபொத்தான்\|உள்_இவெ\|உள்_இவே\|எச்சரிக்கை\|கடவுமறை\|கட்டம்_காட்சி\|கிடைவரிசை\|கீழ்வரி\|சுழல்_காட்டி\|தகவல்பட்டை\|தத்தல்\|தத்தல்_உருப்படி\|தேடல்_பட்டை\|தேடுபொறி\|தேர்வுபெட்டி\|நெகிழ்வு\|நெடுவரிசை\|பக்கம்\|பங்கு\|படம்\|பட்டியல்_உருப்படி\|பட்டியல்_காட்சி\|பிரிப்பான்\|பெட்டி\|பொத்தான்\|மடிப்பு\|மாற்றி\|முன்னேற்றவரி\|வட்டத்தேர்வு\|வட்டபடம்\|விரிவாக்கம்\|வெற்றிடம்\)\ze\s*(" nextgroup=pozhilBody skipwhite
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
