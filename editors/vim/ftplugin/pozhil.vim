" பொழில் நிரல்களைத் திருத்துவதற்கான அமைப்புகள்.
"   g:pozhil_companion         பொழில்-துணை இருக்கும் இடம் (இல்லையேல் PATH-இல் pozhil-thunai)
"   g:pozhil_lsp               0 எனில் Neovim துணையைத் தானாகத் தொடங்காது
"   g:pozhil_transliteration   0 எனில் ஆங்கில எழுத்தில் தட்டியது தமிழில் பரிந்துரைக்கப்படாது

if exists('b:did_ftplugin')
  finish
endif
let b:did_ftplugin = 1
let s:saved_cpo = &cpo
set cpo&vim

setlocal iskeyword=@,48-57,_
setlocal comments=s:ஃஃ,e:ஃஃ,:ஃ commentstring=ஃ\ %s
setlocal expandtab shiftwidth=4 softtabstop=4 tabstop=4
setlocal formatoptions-=t formatoptions+=croql
setlocal suffixesadd=.பொழில்
" What can't be laid out must not be replaced by a refusal, so no 'formatprg'.
setlocal formatexpr=pozhil#FormatExpr()
if exists('&omnifunc') && empty(&l:omnifunc)
  setlocal omnifunc=syntaxcomplete#Complete
endif
command! -buffer PozhilFormat call pozhil#Format()
compiler pozhil

let b:undo_ftplugin = 'setlocal iskeyword< comments< commentstring< expandtab< shiftwidth< softtabstop< tabstop<'
    \ . ' formatoptions< suffixesadd< formatexpr< omnifunc< makeprg< errorformat< | delcommand PozhilFormat'

if has('nvim') && get(g:, 'pozhil_lsp', 1)
  lua require('pozhil').start(vim.api.nvim_get_current_buf())
endif

let &cpo = s:saved_cpo
unlet s:saved_cpo
