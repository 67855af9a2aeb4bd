// Every place of every source is answered, in the middle of words and letters too, and so is a
// source that ends there, as one does that is being written.
#include <gtest/gtest.h>

#include "companion/completion/completion.h"
#include "support/case_files.h"

namespace {

using companion::completion::completionsAt;

constexpr std::size_t kStep = 61;  ///< Bytes between two places; no multiple of a letter's three.

void look(const std::string& text, std::size_t offset) {
    const companion::completion::CompletionSettings settings;
    const auto items = completionsAt(text, offset, {}, settings);
    EXPECT_LE(items.size(), settings.most);
    for (const auto& item : items) {
        EXPECT_LE(item.replaced.begin, item.replaced.end);
        EXPECT_EQ(item.replaced.end, offset);
        EXPECT_FALSE(item.label.empty());
        EXPECT_FALSE(item.inserted.empty()) << item.label;
    }
}

TEST(AnyPlace, IsAnswered) {
    int places = 0;
    for (const char* lane : {"trees", "widgets", "companion/mistakes/whole_programs"}) {
        for (const CaseFile& file : findCases(lane, "")) {
            const std::string text = readText(file.source);
            for (std::size_t offset = 0; offset <= text.size(); offset += kStep) {
                look(text, offset);
                look(text.substr(0, offset), offset);
                places++;
            }
        }
    }
    EXPECT_GT(places, 1000);
}

TEST(AnyPlace, OfWhatIsNoTextIsAnswered) {
    for (const std::string text :
         {"", "\xE0", "\xE0\xAE", "\xFF\xFE", "((((((", "))))", "\"", "'", "ஃஃ", "...", "செயல்",
          "வலைதளம் அ(குமரி(நெடுவரிசை(", "அ.\n.ஆ", ": : :", "}{"}) {
        for (std::size_t offset = 0; offset <= text.size(); offset++) look(text, offset);
    }
    EXPECT_TRUE(completionsAt("அ", 100, {}, {}).size() > 0);
}

}  // namespace
