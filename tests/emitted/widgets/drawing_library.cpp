// The drawing library: each call is recorded, save those that only make a colour or a paint.
#include <string>

#include "emitted/widgets/recording.h"
#include "emitted/widgets/stand_in/nanosvgrast.h"
#include "emitted/widgets/stand_in/nanovg_gl.h"

namespace {

using stand_in::answer;
using stand_in::call;
using stand_in::note;

/// A call on the context. Another than the one that was made is told.
template <typename... Values>
double draw(NVGcontext* context, const std::string& name, const Values&... values) {
    if (context != stand_in::context()) note("without the context:");
    return call(name, values...);
}

template <typename... Values>
NVGpaint paint(const std::string& name, const Values&... values) {
    std::string text = name + "(";
    for (const auto& each : stand_in::list(values...)) {
        text += (text.back() == '(' ? "" : ", ") + each.text;
    }
    return {text + ")"};
}

/// The bounds of a text: its place, the width that the test answers for `name`, a height of 16.
void setBounds(float* bounds, float x, float y, float width) {
    if (bounds == nullptr) return;
    bounds[0] = x;
    bounds[1] = y;
    bounds[2] = x + width;
    bounds[3] = y + 16;
}

}  // namespace

NVGcontext* nvgCreateGLES2(int flags) {
    call("nvgCreateGLES2", flags);
    return stand_in::context();
}

// ---- Frames and state ----
void nvgBeginFrame(NVGcontext* c, float width, float height, float pixelRatio) {
    draw(c, "nvgBeginFrame", width, height, pixelRatio);
}
void nvgCancelFrame(NVGcontext* c) { draw(c, "nvgCancelFrame"); }
void nvgEndFrame(NVGcontext* c) { draw(c, "nvgEndFrame"); }
void nvgSave(NVGcontext* c) { draw(c, "nvgSave"); }
void nvgRestore(NVGcontext* c) { draw(c, "nvgRestore"); }
void nvgReset(NVGcontext* c) { draw(c, "nvgReset"); }

// ---- Colours and paints ----
NVGcolor nvgRGB(unsigned char r, unsigned char g, unsigned char b) { return nvgRGBA(r, g, b, 255); }
NVGcolor nvgRGBf(float r, float g, float b) { return {r, g, b, 1}; }
NVGcolor nvgRGBA(unsigned char r, unsigned char g, unsigned char b, unsigned char a) {
    const auto part = [](unsigned char byte) { return static_cast<float>(byte) / 255.0F; };
    return {part(r), part(g), part(b), part(a)};
}
NVGcolor nvgRGBAf(float r, float g, float b, float a) { return {r, g, b, a}; }
NVGcolor nvgLerpRGBA(NVGcolor from, NVGcolor to, float share) {
    const auto part = [share](float a, float b) { return a + (b - a) * share; };
    return {part(from.r, to.r), part(from.g, to.g), part(from.b, to.b), part(from.a, to.a)};
}
NVGcolor nvgTransRGBA(NVGcolor colour, unsigned char a) {
    return {colour.r, colour.g, colour.b, static_cast<float>(a) / 255.0F};
}
NVGcolor nvgTransRGBAf(NVGcolor colour, float a) { return {colour.r, colour.g, colour.b, a}; }
NVGpaint nvgLinearGradient(NVGcontext*, float startX, float startY, float endX, float endY,
                           NVGcolor inner, NVGcolor outer) {
    return paint("linear", startX, startY, endX, endY, inner, outer);
}
NVGpaint nvgBoxGradient(NVGcontext*, float x, float y, float w, float h, float radius,
                        float feather, NVGcolor inner, NVGcolor outer) {
    return paint("box", x, y, w, h, radius, feather, inner, outer);
}
NVGpaint nvgRadialGradient(NVGcontext*, float x, float y, float innerRadius, float outerRadius,
                           NVGcolor inner, NVGcolor outer) {
    return paint("radial", x, y, innerRadius, outerRadius, inner, outer);
}
NVGpaint nvgImagePattern(NVGcontext*, float x, float y, float w, float h, float angle, int image,
                         float alpha) {
    return paint("image", x, y, w, h, angle, image, alpha);
}

// ---- Style ----
void nvgFillColor(NVGcontext* c, NVGcolor colour) { draw(c, "nvgFillColor", colour); }
void nvgFillPaint(NVGcontext* c, NVGpaint paint) { draw(c, "nvgFillPaint", paint); }
void nvgStrokeColor(NVGcontext* c, NVGcolor colour) { draw(c, "nvgStrokeColor", colour); }
void nvgStrokePaint(NVGcontext* c, NVGpaint paint) { draw(c, "nvgStrokePaint", paint); }
void nvgStrokeWidth(NVGcontext* c, float width) { draw(c, "nvgStrokeWidth", width); }
void nvgMiterLimit(NVGcontext* c, float limit) { draw(c, "nvgMiterLimit", limit); }
void nvgLineCap(NVGcontext* c, int cap) { draw(c, "nvgLineCap", cap); }
void nvgLineJoin(NVGcontext* c, int join) { draw(c, "nvgLineJoin", join); }
void nvgGlobalAlpha(NVGcontext* c, float alpha) { draw(c, "nvgGlobalAlpha", alpha); }
void nvgShapeAntiAlias(NVGcontext* c, int enabled) { draw(c, "nvgShapeAntiAlias", enabled); }

// ---- Transform and scissor ----
void nvgResetTransform(NVGcontext* c) { draw(c, "nvgResetTransform"); }
void nvgTranslate(NVGcontext* c, float x, float y) { draw(c, "nvgTranslate", x, y); }
void nvgRotate(NVGcontext* c, float angle) { draw(c, "nvgRotate", angle); }
void nvgScale(NVGcontext* c, float x, float y) { draw(c, "nvgScale", x, y); }
void nvgScissor(NVGcontext* c, float x, float y, float w, float h) {
    draw(c, "nvgScissor", x, y, w, h);
}
void nvgIntersectScissor(NVGcontext* c, float x, float y, float w, float h) {
    draw(c, "nvgIntersectScissor", x, y, w, h);
}
void nvgResetScissor(NVGcontext* c) { draw(c, "nvgResetScissor"); }

// ---- Paths ----
void nvgBeginPath(NVGcontext* c) { draw(c, "nvgBeginPath"); }
void nvgMoveTo(NVGcontext* c, float x, float y) { draw(c, "nvgMoveTo", x, y); }
void nvgLineTo(NVGcontext* c, float x, float y) { draw(c, "nvgLineTo", x, y); }
void nvgBezierTo(NVGcontext* c, float x1, float y1, float x2, float y2, float x, float y) {
    draw(c, "nvgBezierTo", x1, y1, x2, y2, x, y);
}
void nvgQuadTo(NVGcontext* c, float controlX, float controlY, float x, float y) {
    draw(c, "nvgQuadTo", controlX, controlY, x, y);
}
void nvgArcTo(NVGcontext* c, float x1, float y1, float x2, float y2, float radius) {
    draw(c, "nvgArcTo", x1, y1, x2, y2, radius);
}
void nvgClosePath(NVGcontext* c) { draw(c, "nvgClosePath"); }
void nvgPathWinding(NVGcontext* c, int direction) { draw(c, "nvgPathWinding", direction); }
void nvgArc(NVGcontext* c, float x, float y, float radius, float from, float to, int direction) {
    draw(c, "nvgArc", x, y, radius, from, to, direction);
}
void nvgRect(NVGcontext* c, float x, float y, float w, float h) { draw(c, "nvgRect", x, y, w, h); }
void nvgRoundedRect(NVGcontext* c, float x, float y, float w, float h, float radius) {
    draw(c, "nvgRoundedRect", x, y, w, h, radius);
}
void nvgRoundedRectVarying(NVGcontext* c, float x, float y, float w, float h, float topLeft,
                           float topRight, float bottomRight, float bottomLeft) {
    draw(c, "nvgRoundedRectVarying", x, y, w, h, topLeft, topRight, bottomRight, bottomLeft);
}
void nvgEllipse(NVGcontext* c, float x, float y, float radiusX, float radiusY) {
    draw(c, "nvgEllipse", x, y, radiusX, radiusY);
}
void nvgCircle(NVGcontext* c, float x, float y, float radius) {
    draw(c, "nvgCircle", x, y, radius);
}
void nvgFill(NVGcontext* c) { draw(c, "nvgFill"); }
void nvgStroke(NVGcontext* c) { draw(c, "nvgStroke"); }

// ---- Images: 0, which is no image, unless the test answers otherwise ----
int nvgCreateImage(NVGcontext* c, const char* path, int flags) {
    return static_cast<int>(draw(c, "nvgCreateImage", path, flags));
}
int nvgCreateImageMem(NVGcontext* c, int flags, unsigned char*, int bytes) {
    return static_cast<int>(draw(c, "nvgCreateImageMem", flags, bytes));
}
int nvgCreateImageRGBA(NVGcontext* c, int w, int h, int flags, const unsigned char*) {
    return static_cast<int>(draw(c, "nvgCreateImageRGBA", w, h, flags));
}
void nvgImageSize(NVGcontext* c, int image, int* w, int* h) {
    draw(c, "nvgImageSize", image);
    *w = static_cast<int>(answer("width of the image"));
    *h = static_cast<int>(answer("height of the image"));
}
void nvgDeleteImage(NVGcontext* c, int image) { draw(c, "nvgDeleteImage", image); }

// ---- Text ----
int nvgCreateFont(NVGcontext* c, const char* name, const char* path) {
    return static_cast<int>(draw(c, "nvgCreateFont", name, path));
}
int nvgFindFont(NVGcontext* c, const char* name) {
    return static_cast<int>(draw(c, "nvgFindFont", name));
}
void nvgFontFace(NVGcontext* c, const char* name) { draw(c, "nvgFontFace", name); }
void nvgFontFaceId(NVGcontext* c, int font) { draw(c, "nvgFontFaceId", font); }
void nvgFontSize(NVGcontext* c, float size) { draw(c, "nvgFontSize", size); }
void nvgFontBlur(NVGcontext* c, float blur) { draw(c, "nvgFontBlur", blur); }
void nvgTextAlign(NVGcontext* c, int align) { draw(c, "nvgTextAlign", align); }
void nvgTextLetterSpacing(NVGcontext* c, float spacing) {
    draw(c, "nvgTextLetterSpacing", spacing);
}
void nvgTextLineHeight(NVGcontext* c, float height) { draw(c, "nvgTextLineHeight", height); }
float nvgText(NVGcontext* c, float x, float y, const char* text, const char*) {
    return x + static_cast<float>(draw(c, "nvgText", x, y, text));
}
void nvgTextBox(NVGcontext* c, float x, float y, float width, const char* text, const char*) {
    draw(c, "nvgTextBox", x, y, width, text);
}
float nvgTextBounds(NVGcontext* c, float x, float y, const char* text, const char*, float* bounds) {
    const auto width = static_cast<float>(draw(c, "nvgTextBounds", x, y, text));
    setBounds(bounds, x, y, width);
    return width;
}
void nvgTextBoxBounds(NVGcontext* c, float x, float y, float width, const char* text, const char*,
                      float* bounds) {
    draw(c, "nvgTextBoxBounds", x, y, width, text);
    setBounds(bounds, x, y, width);
}
void nvgTextMetrics(NVGcontext* c, float* ascender, float* descender, float* lineHeight) {
    draw(c, "nvgTextMetrics");
    if (ascender != nullptr) *ascender = 12;
    if (descender != nullptr) *descender = -4;
    if (lineHeight != nullptr) *lineHeight = 16;
}

// ---- Vector images: none, unless the test answers with a width and a height ----
NSVGimage* nsvgParseFromFile(const char* path, const char* units, float dpi) {
    call("nsvgParseFromFile", path, units, dpi);
    const auto width = static_cast<float>(answer("width of the vector image"));
    const auto height = static_cast<float>(answer("height of the vector image"));
    return width > 0 ? new NSVGimage{width, height} : nullptr;
}
void nsvgDelete(NSVGimage* image) {
    call("nsvgDelete");
    delete image;
}
struct NSVGrasterizer {};
NSVGrasterizer* nsvgCreateRasterizer() {
    call("nsvgCreateRasterizer");
    return new NSVGrasterizer;
}
void nsvgRasterize(NSVGrasterizer*, NSVGimage*, float x, float y, float scale,
                   unsigned char* pixels, int w, int h, int stride) {
    call("nsvgRasterize", x, y, scale, w, h, stride);
    // The last pixel too must be the caller's.
    pixels[0] = 255;
    pixels[stride * h - 1] = 255;
}
void nsvgDeleteRasterizer(NSVGrasterizer* rasterizer) {
    call("nsvgDeleteRasterizer");
    delete rasterizer;
}
