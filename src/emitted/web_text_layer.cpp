// The text layer: a second, transparent 2D canvas over the GL canvas, since WebGL can't shape
// Tamil and the browser can. And the clipboard. Before them, what all text for the browser needs,
// and vector images.
// The JavaScript inside EM_ASM is the preprocessor's argument: a comma outside parentheses would
// end it.
// clang-format off

#ifdef __EMSCRIPTEN__
#include <emscripten.h>
#include <emscripten/html5.h>
#include <emscripten/val.h>
#include <emscripten/bind.h>
#include <cstring>
#include "nanovg.h"
#define NANOSVG_IMPLEMENTATION
#include "nanosvg.h"
#define NANOSVGRAST_IMPLEMENTATION
#include "nanosvgrast.h"

// A vector image as an image of the drawing library: as large as it fits into w by h pixels.
// -1 for a file that doesn't parse.
int loadSVGImage(NVGcontext* vg, const char* filename, float w, float h) {
    NSVGimage* image = nsvgParseFromFile(filename, "px", 96.0f);
    if (image == NULL) return -1;
    const float scale = std::min(w / image->width, h / image->height);
    const int width = (int)w;
    const int height = (int)h;
    std::vector<unsigned char> imgData(std::max(0, width * height * 4));
    NSVGrasterizer* rasterizer = nsvgCreateRasterizer();
    nsvgRasterize(rasterizer, image, 0, 0, scale, imgData.data(), width, height, width * 4);
    const int handle = nvgCreateImageRGBA(vg, width, height, 0, imgData.data());
    nsvgDeleteRasterizer(rasterizer);
    nsvgDelete(image);
    return handle;
}

// How wide texts are: several widgets ask for the same text in each frame, and each question is one
// to the browser. A text has one place, by its letters and its size, and gives it up to another of
// the same place. Fonts arrive late, so all are asked anew whenever one has.
struct TextWidth {
    char* text;  // owned; NULL in a free place
    float fontSize;
    float width;
};
const unsigned kTextWidths = 4096;  // a power of two
TextWidth g_textWidths[kTextWidths];

TextWidth& placeOfTextWidth(const char* text, float fontSize) {
    unsigned hash = 0;
    memcpy(&hash, &fontSize, sizeof hash);
    hash ^= hash >> 16;
    for (const char* at = text; *at; at++) hash = hash * 31 + (unsigned char)*at;
    return g_textWidths[(hash ^ (hash >> 12)) & (kTextWidths - 1)];
}

void forgetTextWidths() {
    for (TextWidth& known : g_textWidths) {
        free(known.text);
        known.text = NULL;
    }
}

void setupAndClearTextLayer() {
    static int fontsSeen = 0;
    int fonts = EM_ASM_INT({
        var layer = document.getElementById('textCanvas');
        var canvas = document.getElementById('canvas');
        if (!layer) {
            layer = document.createElement('canvas');
            layer.id = 'textCanvas';
            layer.style.position = 'absolute';
            layer.style.top = '0px';
            layer.style.left = '0px';
            layer.style.pointerEvents = 'none';
            layer.style.zIndex = "1000";
            document.body.appendChild(layer);
        }
        var dpr = window.devicePixelRatio || 1;
        if (canvas) {
            var rect = canvas.getBoundingClientRect();
            if (layer.width != rect.width * dpr || layer.height != rect.height * dpr) {
                layer.style.width = rect.width + 'px';
                layer.style.height = rect.height + 'px';
                layer.width = rect.width * dpr;
                layer.height = rect.height * dpr;
            }
        }
        var ctx = layer.pozhilContext || (layer.pozhilContext = layer.getContext('2d'));
        ctx.setTransform(1, 0, 0, 1, 0, 0);
        ctx.clearRect(0, 0, layer.width, layer.height);
        ctx.scale(dpr, dpr);

        if (window.pozhilFontsLoaded === undefined) {
            window.pozhilFontsLoaded = 0;
            document.fonts.addEventListener('loadingdone', function() {
                window.pozhilFontsLoaded++;
            });
        }
        return document.fonts.status === 'loading' ? -1 : window.pozhilFontsLoaded;
    });
    if (fonts == -1 || fonts != fontsSeen) forgetTextWidths();
    fontsSeen = fonts;
}

void drawFixedText(float x, float y, const char* text, const char* color, float fontSize, const char* align, const char* fontWeight = "400", bool isUnderline = false, const char* fontPath = "", float alpha = 1.0f, float offsetY = 0.0f) {
    EM_ASM({
        var layer = document.getElementById('textCanvas');
        if (!layer) return;
        var x = $0;
        var y = $1 + $10;
        var text = UTF8ToString($2);
        var align = UTF8ToString($5);
        var fontPath = UTF8ToString($8);
        var ctx = layer.pozhilContext || (layer.pozhilContext = layer.getContext('2d'));
        ctx.save();
        ctx.globalAlpha = $9;

        var family = 'Noto Sans Tamil';
        if (fontPath) {
            family = 'Font_' + fontPath.replace(/[^a-zA-Z0-9]/g, "");
            window.pozhilFonts = window.pozhilFonts || ({});
            if (!window.pozhilFonts[family]) {
                window.pozhilFonts[family] = true;
                var fontUrl = fontPath;
                try {
                    if (typeof FS !== 'undefined' && FS.analyzePath(fontPath).exists) {
                        fontUrl = URL.createObjectURL(new Blob([FS.readFile(fontPath)]));
                    }
                } catch (e) {
                    console.warn("FS Font check failed, using URL:", fontPath);
                }
                var face = new FontFace(family, 'url(' + fontUrl + ')');
                face.load().then(function(loaded) {
                    document.fonts.add(loaded);
                }).catch(function(e) { console.error("Font load error:", e); });
            }
        }

        ctx.font = UTF8ToString($6) + ' ' + $4 + 'px "' + family +
                   '", "Noto Sans Tamil", Arial, sans-serif';
        ctx.fillStyle = UTF8ToString($3);
        ctx.textAlign = align;
        ctx.textBaseline = 'top';
        ctx.direction = 'ltr';
        ctx.fillText(text, x, y);
        if ($7) {
            var width = ctx.measureText(text).width;
            var start = x;
            if (align === 'center') start -= width / 2;
            if (align === 'right') start -= width;
            ctx.beginPath();
            ctx.strokeStyle = ctx.fillStyle;
            ctx.lineWidth = 2;
            ctx.moveTo(start, y + 5);
            ctx.lineTo(start + width, y + 5);
            ctx.stroke();
        }
        ctx.restore();
    }, x, y, text, color, fontSize, align, fontWeight, isUnderline, fontPath, alpha, offsetY);
}

void drawWebText(float x, float y, const char* text, const char* color, float size, const char* align) {
    EM_ASM({
        var element = document.createElement('div');
        element.textContent = UTF8ToString($2);
        element.style.position = 'absolute';
        element.style.left = $0 + 'px';
        element.style.top = $1 + 'px';
        element.style.color = UTF8ToString($3);
        element.style.fontSize = $4 + 'px';
        element.style.fontFamily = 'Arial, sans-serif';
        element.style.pointerEvents = 'none';
        element.style.whiteSpace = 'nowrap';
        if (UTF8ToString($5) === 'center') element.style.transform = 'translate(-50%, -50%)';
        document.body.appendChild(element);
        setTimeout(function() { element.remove(); }, 100);
    }, x, y, text, color, size, align);
}

float getTextWidth(const char* text, float fontSize) {
    TextWidth& known = placeOfTextWidth(text, fontSize);
    if (known.text && known.fontSize == fontSize && strcmp(known.text, text) == 0) {
        return known.width;
    }
    float width = (float)EM_ASM_DOUBLE({
        var layer = document.getElementById('textCanvas');
        if (!layer) return -1;
        var ctx = layer.pozhilContext || (layer.pozhilContext = layer.getContext('2d'));
        ctx.font = 'normal ' + $1 + 'px "Noto Sans Tamil", Arial, sans-serif';
        return ctx.measureText(UTF8ToString($0)).width;
    }, text, fontSize);
    if (width < 0.0f) return 0.0f;
    free(known.text);
    known.text = strdup(text);
    known.fontSize = fontSize;
    known.width = width;
    return width;
}

void copyToClipboard(const char* text) {
    EM_ASM({
        var str = UTF8ToString($0);
        navigator.clipboard.writeText(str).then(function() {
            console.log("Copied to clipboard: " + str);
        }).catch(function(err) { console.log("Could not copy text: " + err); });
    }, text);
}

// A paste goes to an input that the canvas draws, and is lost to the page's own. Meant.
void setupClipboardListener() {
    EM_ASM({
        document.addEventListener('paste', function(e) {
            e.preventDefault();
            var pastedText = (e.clipboardData || window.clipboardData).getData('text');
            Module.ccall('on_paste_text', null, ['string'], [pastedText]);
        });
    });
}
#endif
