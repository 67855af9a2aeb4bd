// The stand-in for the drawing library declares what the library itself declares. Set-up installs
// the library's header; without it there is nothing to hold the stand-in against.
#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>

#include "support/case_files.h"

namespace ours {
#include "emitted/widgets/stand_in/nanovg.h"
}
#ifdef POZHIL_DRAWING_LIBRARY
namespace theirs {
#include POZHIL_DRAWING_LIBRARY
}
#else
namespace theirs = ours;
#endif

namespace {

/// The name of a type without the namespace that it was declared in.
template <typename Type>
std::string nameOf() {
    std::string name = __PRETTY_FUNCTION__;
    for (const std::string space : {"ours::", "theirs::"}) {
        for (std::size_t at = 0; (at = name.find(space)) != std::string::npos;) {
            name.erase(at, space.size());
        }
    }
    return name;
}

struct Row {
    std::string function;
    std::string ours;
    std::string theirs;
};

#define ROW(name) \
    { #name, nameOf < decltype(&ours::name)>(), nameOf < decltype(&theirs::name)>() }
const Row kRows[] = {
    ROW(nvgBeginFrame),
    ROW(nvgCancelFrame),
    ROW(nvgEndFrame),
    ROW(nvgSave),
    ROW(nvgRestore),
    ROW(nvgReset),
    ROW(nvgRGB),
    ROW(nvgRGBf),
    ROW(nvgRGBA),
    ROW(nvgRGBAf),
    ROW(nvgLerpRGBA),
    ROW(nvgTransRGBA),
    ROW(nvgTransRGBAf),
    ROW(nvgLinearGradient),
    ROW(nvgBoxGradient),
    ROW(nvgRadialGradient),
    ROW(nvgImagePattern),
    ROW(nvgFillColor),
    ROW(nvgFillPaint),
    ROW(nvgStrokeColor),
    ROW(nvgStrokePaint),
    ROW(nvgStrokeWidth),
    ROW(nvgMiterLimit),
    ROW(nvgLineCap),
    ROW(nvgLineJoin),
    ROW(nvgGlobalAlpha),
    ROW(nvgShapeAntiAlias),
    ROW(nvgResetTransform),
    ROW(nvgTranslate),
    ROW(nvgRotate),
    ROW(nvgScale),
    ROW(nvgScissor),
    ROW(nvgIntersectScissor),
    ROW(nvgResetScissor),
    ROW(nvgBeginPath),
    ROW(nvgMoveTo),
    ROW(nvgLineTo),
    ROW(nvgBezierTo),
    ROW(nvgQuadTo),
    ROW(nvgArcTo),
    ROW(nvgClosePath),
    ROW(nvgPathWinding),
    ROW(nvgArc),
    ROW(nvgRect),
    ROW(nvgRoundedRect),
    ROW(nvgRoundedRectVarying),
    ROW(nvgEllipse),
    ROW(nvgCircle),
    ROW(nvgFill),
    ROW(nvgStroke),
    ROW(nvgCreateImage),
    ROW(nvgCreateImageMem),
    ROW(nvgCreateImageRGBA),
    ROW(nvgImageSize),
    ROW(nvgDeleteImage),
    ROW(nvgCreateFont),
    ROW(nvgFindFont),
    ROW(nvgFontFace),
    ROW(nvgFontFaceId),
    ROW(nvgFontSize),
    ROW(nvgFontBlur),
    ROW(nvgTextAlign),
    ROW(nvgTextLetterSpacing),
    ROW(nvgTextLineHeight),
    ROW(nvgText),
    ROW(nvgTextBox),
    ROW(nvgTextBounds),
    ROW(nvgTextBoxBounds),
    ROW(nvgTextMetrics),
};
#undef ROW

#define VALUE(name) static_assert(int(ours::name) == int(theirs::name), #name)
VALUE(NVG_SOLID);
VALUE(NVG_HOLE);
VALUE(NVG_CCW);
VALUE(NVG_CW);
VALUE(NVG_BUTT);
VALUE(NVG_ROUND);
VALUE(NVG_SQUARE);
VALUE(NVG_BEVEL);
VALUE(NVG_MITER);
VALUE(NVG_ALIGN_LEFT);
VALUE(NVG_ALIGN_CENTER);
VALUE(NVG_ALIGN_RIGHT);
VALUE(NVG_ALIGN_TOP);
VALUE(NVG_ALIGN_MIDDLE);
VALUE(NVG_ALIGN_BOTTOM);
VALUE(NVG_ALIGN_BASELINE);
VALUE(NVG_IMAGE_GENERATE_MIPMAPS);
VALUE(NVG_IMAGE_REPEATX);
VALUE(NVG_IMAGE_REPEATY);
VALUE(NVG_IMAGE_FLIPY);
VALUE(NVG_IMAGE_PREMULTIPLIED);
VALUE(NVG_IMAGE_NEAREST);
#undef VALUE

TEST(Signatures, AreThoseOfTheLibrary) {
#ifndef POZHIL_DRAWING_LIBRARY
    GTEST_SKIP() << "the library's header isn't installed";
#endif
    for (const Row& row : kRows) EXPECT_EQ(row.ours, row.theirs) << row.function;
}

TEST(Signatures, AreAllLookedAt) {
    const std::string header = readText(POZHIL_ROOT "/tests/emitted/widgets/stand_in/nanovg.h");
    std::set<std::string> declared;
    for (std::size_t at = header.find("nvg"); at != std::string::npos;
         at = header.find("nvg", at)) {
        const std::size_t begin = at;
        while (std::isalnum(static_cast<unsigned char>(header[at])) != 0) at++;
        if (header[at] == '(') declared.insert(header.substr(begin, at - begin));
    }
    std::set<std::string> looked;
    for (const Row& row : kRows) looked.insert(row.function);
    EXPECT_EQ(declared, looked);
}

}  // namespace
