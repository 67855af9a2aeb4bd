// Times as text, lines read from the input, and the request to scroll.
#include <gtest/gtest.h>

#include "emitted/placeholders.h"
#include "emitted_in_order.h"
#include "support/subprocess.h"

namespace {

std::tm firstOfMarch() {
    std::tm time = {};
    time.tm_mday = 1;
    time.tm_mon = 2;
    time.tm_year = 99;
    time.tm_hour = 23;
    time.tm_min = 4;
    time.tm_sec = 59;
    return time;
}

TEST(Time, IsWrittenAsDateAsClockAndAsBoth) {
    std::tm time = firstOfMarch();
    EXPECT_EQ(fn_தேதி(&time), "01-03-1999");
    EXPECT_EQ(fn_நேரம்(&time), "23:04:59");
    EXPECT_EQ(fn_முழுவதும்(&time), "01-03-1999 23:04:59");
}

TEST(Time, IsWrittenInAnyFormatOfUpTo79Bytes) {
    std::tm time = firstOfMarch();
    EXPECT_EQ(fn_நேரம்_உருவாக்கு(&time, "%Y/%m"), "1999/03");
    const std::string longest(79, 'x');
    EXPECT_EQ(fn_நேரம்_உருவாக்கு(&time, longest.c_str()), longest);
}

TEST(Time, OfEveryValueIsTheSameObject) {
    std::time_t early = 0;
    const std::any first = std::localtime(&early);
    const std::string before = fn_any_to_string(first);
    std::time_t late = 86400LL * 400;
    const std::any second = std::localtime(&late);
    EXPECT_EQ(std::any_cast<std::tm*>(first), std::any_cast<std::tm*>(second));
    EXPECT_NE(fn_any_to_string(first), before);
}

/// What the program prints that reads two lines from `input`, each shown in brackets.
std::string readTwice(const std::string& input) {
    ProcessOptions options;
    options.input = input;
    return runForked(
               [] {
                   for (int i = 0; i < 2; i++) {
                       const std::any line = fn_உள்ளீடு("பெயர்? ");
                       std::cout << "[" << std::any_cast<std::string>(line) << "]";
                   }
                   return 0;
               },
               options)
        .out;
}

TEST(Input, IsReadByLinesBehindThePrompt) {
    EXPECT_EQ(readTwice("அ ஆ\n 12 \n"), "பெயர்? [அ ஆ]பெயர்? [ 12 ]");
}

TEST(Input, WithoutALastLineEndIsReadAllTheSame) {
    EXPECT_EQ(readTwice("அ\nஆ"), "பெயர்? [அ]பெயர்? [ஆ]");
}

TEST(Input, AtItsEndIsTheEmptyText) {
    EXPECT_EQ(readTwice(""), "பெயர்? []பெயர்? []");
    EXPECT_EQ(readTwice("அ\n"), "பெயர்? [அ]பெயர்? []");
}

TEST(Scrolling, RemembersWhereToGo) {
    EXPECT_EQ(g_scrollToId, "");
    EXPECT_FALSE(fn_நகர்த்து(std::string("தொடர்பு")).has_value());
    EXPECT_EQ(g_scrollToId, "தொடர்பு");
    நகர்த்து("முகப்பு");
    EXPECT_EQ(g_scrollToId, "முகப்பு");
}

TEST(Scrolling, ToWhatIsNoTextIsIgnored) {
    g_scrollToId = "முகப்பு";
    EXPECT_FALSE(fn_நகர்த்து(5LL).has_value());
    EXPECT_FALSE(fn_நகர்த்து(_PozhilChar{"அ"}).has_value());
    EXPECT_FALSE(fn_நகர்த்து(std::any()).has_value());
    EXPECT_EQ(g_scrollToId, "முகப்பு");
}

TEST(Scrolling, StateStartsEmpty) {
    EXPECT_TRUE(g_widgetPositions.empty());
    EXPECT_EQ(g_widgetPositions["அ"].x, 0.0F);
    EXPECT_EQ(g_widgetPositions["அ"].y, 0.0F);
    g_widgetPositions["அ"] = {(float)(1.5), (float)(2)};
    EXPECT_EQ(g_widgetPositions["அ"].y, 2.0F);
    EXPECT_TRUE(id_map.empty());
    EXPECT_EQ(targetScrollY, 0.0F);
    EXPECT_EQ(currentScrollY, 0.0F);
    updateUI();
}

}  // namespace
