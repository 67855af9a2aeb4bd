// Vector images: read, drawn once into memory as large as they fit, handed over and let go.
#include "emitted/widgets/surroundings.h"

namespace {

class VectorImageTest : public Surroundings {
protected:
    /// The calls of loading an image of that size into 100 by 60 pixels.
    static Calls load(double width, double height, int expected, float w = 100, float h = 60) {
        browser().answerWith("width of the vector image", width);
        browser().answerWith("height of the vector image", height);
        return callsOf([&] { EXPECT_EQ(loadSVGImage(vg, "அ.svg", w, h), expected); });
    }

    static Calls drawn(const std::string& scale, const std::string& w, const std::string& h,
                       const std::string& stride) {
        return {"nsvgParseFromFile(\"அ.svg\", \"px\", 96)",
                "nsvgCreateRasterizer()",
                "nsvgRasterize(0, 0, " + scale + ", " + w + ", " + h + ", " + stride + ")",
                "nvgCreateImageRGBA(" + w + ", " + h + ", 0)",
                "nsvgDeleteRasterizer()",
                "nsvgDelete()"};
    }
};

TEST_F(VectorImageTest, FitsByItsSmallerScale) {
    browser().answerWith("nvgCreateImageRGBA", 5);
    EXPECT_EQ(load(200, 60, 5), drawn("0.5", "100", "60", "400")) << "by its width";
    EXPECT_EQ(load(50, 240, 5), drawn("0.25", "100", "60", "400")) << "by its height";
    EXPECT_EQ(load(10, 20, 5), drawn("3", "100", "60", "400")) << "larger than it is";
}

TEST_F(VectorImageTest, OfPartsOfPixelsIsWhole) {
    EXPECT_EQ(load(50.75, 50.75, 0, 50.75F, 50.75F), drawn("1", "50", "50", "200"));
}

TEST_F(VectorImageTest, ThatDoesNotParseIsNone) {
    EXPECT_EQ(load(0, 0, -1), Calls{"nsvgParseFromFile(\"அ.svg\", \"px\", 96)"});
}

}  // namespace
