// The drawing library as the emitted text sees it. Each call becomes a line of the recording. A
// test holds the signatures against those of the library, where it is installed.
#pragma once

#include <string>

#define NVG_PI 3.14159265358979323846264338327f

struct NVGcontext;

struct NVGcolor {
    float r, g, b, a;
};

/// Its own description.
struct NVGpaint {
    std::string text;
};

enum NVGsolidity { NVG_SOLID = 1, NVG_HOLE = 2 };
enum NVGwinding { NVG_CCW = 1, NVG_CW = 2 };
enum NVGlineCap { NVG_BUTT, NVG_ROUND, NVG_SQUARE, NVG_BEVEL, NVG_MITER };
enum NVGalign {
    NVG_ALIGN_LEFT = 1 << 0,
    NVG_ALIGN_CENTER = 1 << 1,
    NVG_ALIGN_RIGHT = 1 << 2,
    NVG_ALIGN_TOP = 1 << 3,
    NVG_ALIGN_MIDDLE = 1 << 4,
    NVG_ALIGN_BOTTOM = 1 << 5,
    NVG_ALIGN_BASELINE = 1 << 6,
};
enum NVGimageFlags {
    NVG_IMAGE_GENERATE_MIPMAPS = 1 << 0,
    NVG_IMAGE_REPEATX = 1 << 1,
    NVG_IMAGE_REPEATY = 1 << 2,
    NVG_IMAGE_FLIPY = 1 << 3,
    NVG_IMAGE_PREMULTIPLIED = 1 << 4,
    NVG_IMAGE_NEAREST = 1 << 5,
};

// ---- Frames and state ----
void nvgBeginFrame(NVGcontext*, float width, float height, float pixelRatio);
void nvgCancelFrame(NVGcontext*);
void nvgEndFrame(NVGcontext*);
void nvgSave(NVGcontext*);
void nvgRestore(NVGcontext*);
void nvgReset(NVGcontext*);

// ---- Colours and paints ----
NVGcolor nvgRGB(unsigned char r, unsigned char g, unsigned char b);
NVGcolor nvgRGBf(float r, float g, float b);
NVGcolor nvgRGBA(unsigned char r, unsigned char g, unsigned char b, unsigned char a);
NVGcolor nvgRGBAf(float r, float g, float b, float a);
NVGcolor nvgLerpRGBA(NVGcolor from, NVGcolor to, float share);
NVGcolor nvgTransRGBA(NVGcolor, unsigned char a);
NVGcolor nvgTransRGBAf(NVGcolor, float a);
NVGpaint nvgLinearGradient(NVGcontext*, float startX, float startY, float endX, float endY,
                           NVGcolor inner, NVGcolor outer);
NVGpaint nvgBoxGradient(NVGcontext*, float x, float y, float w, float h, float radius,
                        float feather, NVGcolor inner, NVGcolor outer);
NVGpaint nvgRadialGradient(NVGcontext*, float x, float y, float innerRadius, float outerRadius,
                           NVGcolor inner, NVGcolor outer);
NVGpaint nvgImagePattern(NVGcontext*, float x, float y, float w, float h, float angle, int image,
                         float alpha);

// ---- Style ----
void nvgFillColor(NVGcontext*, NVGcolor);
void nvgFillPaint(NVGcontext*, NVGpaint);
void nvgStrokeColor(NVGcontext*, NVGcolor);
void nvgStrokePaint(NVGcontext*, NVGpaint);
void nvgStrokeWidth(NVGcontext*, float width);
void nvgMiterLimit(NVGcontext*, float limit);
void nvgLineCap(NVGcontext*, int cap);
void nvgLineJoin(NVGcontext*, int join);
void nvgGlobalAlpha(NVGcontext*, float alpha);
void nvgShapeAntiAlias(NVGcontext*, int enabled);

// ---- Transform and scissor ----
void nvgResetTransform(NVGcontext*);
void nvgTranslate(NVGcontext*, float x, float y);
void nvgRotate(NVGcontext*, float angle);
void nvgScale(NVGcontext*, float x, float y);
void nvgScissor(NVGcontext*, float x, float y, float w, float h);
void nvgIntersectScissor(NVGcontext*, float x, float y, float w, float h);
void nvgResetScissor(NVGcontext*);

// ---- Paths ----
void nvgBeginPath(NVGcontext*);
void nvgMoveTo(NVGcontext*, float x, float y);
void nvgLineTo(NVGcontext*, float x, float y);
void nvgBezierTo(NVGcontext*, float x1, float y1, float x2, float y2, float x, float y);
void nvgQuadTo(NVGcontext*, float controlX, float controlY, float x, float y);
void nvgArcTo(NVGcontext*, float x1, float y1, float x2, float y2, float radius);
void nvgClosePath(NVGcontext*);
void nvgPathWinding(NVGcontext*, int direction);
void nvgArc(NVGcontext*, float x, float y, float radius, float from, float to, int direction);
void nvgRect(NVGcontext*, float x, float y, float w, float h);
void nvgRoundedRect(NVGcontext*, float x, float y, float w, float h, float radius);
void nvgRoundedRectVarying(NVGcontext*, float x, float y, float w, float h, float topLeft,
                           float topRight, float bottomRight, float bottomLeft);
void nvgEllipse(NVGcontext*, float x, float y, float radiusX, float radiusY);
void nvgCircle(NVGcontext*, float x, float y, float radius);
void nvgFill(NVGcontext*);
void nvgStroke(NVGcontext*);

// ---- Images ----
int nvgCreateImage(NVGcontext*, const char* path, int flags);
int nvgCreateImageMem(NVGcontext*, int flags, unsigned char* data, int bytes);
int nvgCreateImageRGBA(NVGcontext*, int w, int h, int flags, const unsigned char* data);
void nvgImageSize(NVGcontext*, int image, int* w, int* h);
void nvgDeleteImage(NVGcontext*, int image);

// ---- Text ----
int nvgCreateFont(NVGcontext*, const char* name, const char* path);
int nvgFindFont(NVGcontext*, const char* name);
void nvgFontFace(NVGcontext*, const char* name);
void nvgFontFaceId(NVGcontext*, int font);
void nvgFontSize(NVGcontext*, float size);
void nvgFontBlur(NVGcontext*, float blur);
void nvgTextAlign(NVGcontext*, int align);
void nvgTextLetterSpacing(NVGcontext*, float spacing);
void nvgTextLineHeight(NVGcontext*, float height);
float nvgText(NVGcontext*, float x, float y, const char* text, const char* end);
void nvgTextBox(NVGcontext*, float x, float y, float width, const char* text, const char* end);
float nvgTextBounds(NVGcontext*, float x, float y, const char* text, const char* end,
                    float* bounds);
void nvgTextBoxBounds(NVGcontext*, float x, float y, float width, const char* text, const char* end,
                      float* bounds);
void nvgTextMetrics(NVGcontext*, float* ascender, float* descender, float* lineHeight);
