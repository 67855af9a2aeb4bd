// The texts of the web road, as far as it goes.
#include <csignal>

#include "driver/console_texts.h"
#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

const std::string kOpening =
    "🚀 பொழில் - வலைத்தள உருவாக்கம் தொடங்குகிறது...\n"
    "-------------------------------------------------------\n"
    "⌛ உங்கள் பொழில் ஆழமாகப் பகுப்பாய்வு செய்யப்படுகிறது...    ";

class WebRoad : public Workplace {};

TEST_F(WebRoad, OptionTakesAConsoleSourceThere) {
    write("a.பொழில்", "அச்சிடு(1)\n");
    fs::create_directory(work / "வெளியீடு");  // being there is no error
    const ProcessResult run = compile({"a.பொழில்", "--வலை", "--கண்காணி"});
    EXPECT_EQ(run.out, kOpening +
                           "முடிந்தது\n"
                           "🎨 பயனர் இடைமுகம் மற்றும் அசைவூட்டங்கள் செதுக்கப்படுகிறது... முடிந்தது\n"
                           "📦 ஊடகக் கோப்புகள் அனைத்தும் இணைக்கப்படுகிறது...        \n"
                           "🌍 நவீன வலைத்தளம் முழுமையாகத் தொகுக்கப்படுகிறது...      \n");
    EXPECT_EQ(run.err, "பிழை: வலைத்தள உருவாக்கம் இந்தப் பதிப்பில் இன்னும் சேர்க்கப்படவில்லை.\n");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(fs::is_directory(work / "வெளியீடு"));
    ASSERT_TRUE(fs::exists(cache / "generated.cpp"));
    EXPECT_EQ(fs::file_size(cache / "generated.cpp"), 0U) << "the text goes elsewhere";
}

TEST_F(WebRoad, OpensBeforeAPhaseFails) {
    write("a.பொழில்", "\t");
    const ProcessResult scan = compile({"--வலை", "a.பொழில்"});
    EXPECT_EQ(scan.out, kOpening);
    EXPECT_EQ(scan.exitCode, 1);

    write("a.பொழில்", "அச்சிடு(௧)\n");
    const ProcessResult generate = compile({"--வலை", "a.பொழில்"});
    EXPECT_EQ(generate.out, kOpening +
                                "முடிந்தது\n"
                                "🎨 பயனர் இடைமுகம் மற்றும் அசைவூட்டங்கள் செதுக்கப்படுகிறது... ");
    EXPECT_EQ(generate.exitCode, 1);
    EXPECT_FALSE(fs::exists(work / "வெளியீடு"));
}

TEST_F(WebRoad, MissingSourceOpensNothing) {
    const ProcessResult run = compile({"--வலை", "a.பொழில்"});
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "பிழை: 'a.பொழில்' என்ற கோப்பை திறக்க முடியவில்லை!\n");
    EXPECT_EQ(run.exitCode, 1);
}

TEST(Farewell, EndsWithStatusZero) {
    const ProcessResult run = runForked([] {
        signal_handler(SIGINT);
        return 7;
    });
    EXPECT_EQ(run.out, "\n👋 சேவையகம் நிறுத்தப்பட்டது \n");
    EXPECT_EQ(run.exitCode, 0);
}

}  // namespace
