// How wide a text in a box is, in the weight that it is drawn in.
// clang-format off

#ifdef __EMSCRIPTEN__
float getBoxTextWidth(const char* text, const char* fontWeight, float fontSize) {
    return (float)EM_ASM_DOUBLE({
        var layer = document.getElementById('textCanvas');
        if (!layer) return 0;
        var ctx = layer.pozhilContext || (layer.pozhilContext = layer.getContext('2d'));
        ctx.font = UTF8ToString($1) + ' ' + $2 + 'px "Noto Sans Tamil", Arial, sans-serif';
        return ctx.measureText(UTF8ToString($0)).width;
    }, text, fontWeight, fontSize);
}
#endif
