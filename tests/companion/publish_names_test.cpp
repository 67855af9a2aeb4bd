// Names that change with the content, and sizes as people read them.
#include <gtest/gtest.h>

#include <sstream>

#include "companion/publish/content_name.h"
#include "companion/publish/sizes.h"
#include "web/scratch_directory.h"

namespace {

using companion::contentDigits;
using companion::contentName;
using companion::isContentName;

TEST(ContentName, HoldsTheDigitsOfTheContent) {
    EXPECT_EQ(contentDigits(""), "cbf29ce484222325");
    EXPECT_EQ(contentDigits("a"), "af63dc4c8601ec8c");
    EXPECT_EQ(contentDigits("foobar"), "85944171f73967e8");
    EXPECT_EQ(contentName("index.js", "a"), "index.af63dc4c8601ec8c.js");
    EXPECT_NE(contentDigits(std::string("a\0b", 3)), contentDigits(std::string("a\0c", 3)));
}

TEST(ContentName, IsKnownFromAnyOtherName) {
    EXPECT_TRUE(isContentName("index.af63dc4c8601ec8c.js"));
    EXPECT_TRUE(isContentName(contentName("NotoSansTamil-Bold.ttf", "b")));
    for (const char* name :
         {"", "index.html", "index.js", "af63dc4c8601ec8c.js", ".af63dc4c8601ec8c.js",
          "index.af63dc4c8601ec8.js", "index.af63dc4c8601ec8g.js", "index.af63dc4c8601ec8c.",
          "index-af63dc4c8601ec8c.js", "../index.af63dc4c8601ec8c.js",
          "a/index.af63dc4c8601ec8c.js", "index.af63dc4c8601ec8c.js/..",
          "பக்கம்.af63dc4c8601ec8c.js"}) {
        EXPECT_FALSE(isContentName(name)) << name;
    }
}

TEST(Sizes, AreToldInTheLargestUnitThatFits) {
    EXPECT_EQ(companion::sizeText(0), "0 பைட்");
    EXPECT_EQ(companion::sizeText(999), "999 பைட்");
    EXPECT_EQ(companion::sizeText(1000), "1.0 கிலோபைட்");
    EXPECT_EQ(companion::sizeText(52349), "52.3 கிலோபைட்");
    EXPECT_EQ(companion::sizeText(1250000), "1.3 மெகாபைட்");
}

TEST(Sizes, OfSeveralFilesEndInTheirSum) {
    std::ostringstream out;
    companion::printSizes(out, {{"index.html", 2000, 1000}, {"a.js", 500, 250}});
    EXPECT_EQ(out.str(),
              "   index.html   2.0 கிலோபைட்   சுருக்கினால் 1.0 கிலோபைட்\n"
              "   a.js         500 பைட்       சுருக்கினால் 250 பைட்\n"
              "   மொத்தம்        2.5 கிலோபைட்   சுருக்கினால் 1.3 கிலோபைட்\n");
    out.str("");
    companion::printSizes(out, {{"நிரல்", 2000, std::nullopt}});
    EXPECT_EQ(out.str(), "   நிரல்   2.0 கிலோபைட்\n");
}

using SizesOfFiles = ScratchDirectory;

TEST_F(SizesOfFiles, AreThoseOnTheDiskAndThoseThatGzipMakes) {
    write("வெளி யே/a.js", std::string(5000, 'a'));
    const auto sizes = companion::measureFiles("வெளி யே", {"a.js"});
    ASSERT_EQ(sizes.size(), 1U);
    EXPECT_EQ(sizes[0].bytes, 5000U);
    ASSERT_TRUE(sizes[0].gzipBytes.has_value());
    EXPECT_LT(*sizes[0].gzipBytes, 100U);
    EXPECT_GT(*sizes[0].gzipBytes, 20U);
}

}  // namespace
