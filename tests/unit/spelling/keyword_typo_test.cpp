// Names within one edit of one of nineteen words.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/front_end.h"

namespace {

using Letters = std::vector<std::string>;

const char* const kWords[] = {
    "அச்சிடு",   "சுற்று",  "எனில்",  "இல்லைஎனில்", "இல்லை",     "செயல்",      "திரும்பு",
    "ஒவ்வொன்றாக", "தேர்வு",  "நிலை",  "மற்றவை",    "கட்டமைப்பு", "வடிவமைப்பு", "முயற்சி",
    "பிடி",     "வலைதளம்", "தலைமை", "குமரி",    "வரையறை",
};

constexpr std::size_t kFree = 3;  // words of so many code points are never looked at

/// The words are of Tamil letters and signs alone: three bytes each.
Letters split(const std::string& word) {
    Letters letters;
    for (std::size_t i = 0; i < word.size(); i += 3) letters.push_back(word.substr(i, 3));
    return letters;
}

std::string join(const Letters& letters) {
    std::string word;
    for (const std::string& letter : letters) word += letter;
    return word;
}

bool isSign(const std::string& letter) { return letter >= "ா" && letter <= "்"; }

std::size_t distance(const Letters& a, const Letters& b) {
    std::vector<std::vector<std::size_t>> rows(a.size() + 1,
                                               std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); i++) {
        for (std::size_t j = 0; j <= b.size(); j++) {
            if (i == 0 || j == 0) {
                rows[i][j] = i + j;
            } else if (a[i - 1] == b[j - 1]) {
                rows[i][j] = rows[i - 1][j - 1];
            } else {
                rows[i][j] = 1 + std::min({rows[i - 1][j - 1], rows[i - 1][j], rows[i][j - 1]});
            }
        }
    }
    return rows[a.size()][b.size()];
}

bool isNearAWord(const Letters& letters) {
    return std::any_of(std::begin(kWords), std::end(kWords),
                       [&](const char* word) { return distance(letters, split(word)) == 1; });
}

testing::AssertionResult isFree(const std::string& word) {
    const std::string tokens = describe(scan(word));
    if (tokens == "IDENTIFIER:" + word + " END_OF_FILE") return testing::AssertionSuccess();
    return testing::AssertionFailure() << word << " is scanned as " << tokens;
}

/// What a word that was made from one of the nineteen by edits must come to.
void expectByItsLetters(const Letters& letters, bool near) {
    const std::string word = join(letters);
    if (Lexer("", "").lookupKeyword(word) != TokenType::IDENTIFIER) return;  // இல் of இல்லை
    if (isSign(letters[0])) {
        EXPECT_TRUE(scanRefused(word, "பொழில்-106", 1)) << word;
    } else if (letters.size() <= kFree || !near) {
        EXPECT_TRUE(isFree(word));
    } else {
        EXPECT_TRUE(scanRefused(word, "பொழில்-113", 1)) << word;
    }
}

TEST(KeywordTypo, TheNineteenWordsThemselvesAreKeywords) {
    for (const char* word : kWords) {
        EXPECT_NE(Lexer("", "").lookupKeyword(word), TokenType::IDENTIFIER) << word;
        EXPECT_EQ(scan(word)[0].text, word);
    }
}

TEST(KeywordTypo, OneSignAddedIsRefused) {
    for (const char* word : kWords) {
        const Letters letters = split(word);
        for (std::size_t at = 0; at <= letters.size(); at++) {
            Letters edited = letters;
            edited.insert(edited.begin() + static_cast<std::ptrdiff_t>(at), "ஞ");
            expectByItsLetters(edited, true);
        }
    }
}

TEST(KeywordTypo, OneSignDroppedIsRefused) {
    for (const char* word : kWords) {
        const Letters letters = split(word);
        for (std::size_t at = 0; at < letters.size(); at++) {
            Letters edited = letters;
            edited.erase(edited.begin() + static_cast<std::ptrdiff_t>(at));
            expectByItsLetters(edited, true);
        }
    }
}

TEST(KeywordTypo, OneSignChangedIsRefused) {
    for (const char* word : kWords) {
        const Letters letters = split(word);
        for (std::size_t at = 0; at < letters.size(); at++) {
            Letters edited = letters;
            edited[at] = "ஞ";
            expectByItsLetters(edited, true);
        }
    }
}

TEST(KeywordTypo, TwoNeighboursSwappedAreTwoEdits) {
    int swapped = 0;
    for (const char* word : kWords) {
        const Letters letters = split(word);
        for (std::size_t at = 0; at + 1 < letters.size(); at++) {
            if (letters[at] == letters[at + 1]) continue;
            Letters edited = letters;
            std::swap(edited[at], edited[at + 1]);
            expectByItsLetters(edited, false);
            swapped++;
        }
    }
    EXPECT_GT(swapped, 90);
}

TEST(KeywordTypo, TwoEditsAgreeWithTheFullMatrix) {
    for (const char* word : kWords) {
        const Letters letters = split(word);
        for (std::size_t drop = 0; drop < letters.size(); drop++) {
            Letters shorter = letters;
            shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(drop));
            for (std::size_t at = 0; at <= shorter.size(); at++) {
                Letters edited = shorter;
                edited.insert(edited.begin() + static_cast<std::ptrdiff_t>(at), "ஞ");
                expectByItsLetters(edited, isNearAWord(edited));
            }
            for (std::size_t at = 0; at < shorter.size(); at++) {
                Letters edited = shorter;
                edited.erase(edited.begin() + static_cast<std::ptrdiff_t>(at));
                expectByItsLetters(edited, isNearAWord(edited));
            }
        }
    }
}

TEST(KeywordTypo, AnyCodePointCountsAsOne) {
    for (const char* tail : {"x", "_", "1", "௧", "é", "😀", "ஃ", "்"}) {
        EXPECT_TRUE(scanRefused(std::string("நிலை") + tail, "பொழில்-113", 1)) << tail;
        EXPECT_TRUE(isFree(std::string("நிலை") + tail + tail)) << tail;
    }
    EXPECT_TRUE(scanRefused("xநிலை", "பொழில்-113", 1));
}

TEST(KeywordTypo, CommonWordsMayBeCaught) {
    EXPECT_TRUE(scanRefused("விலை", "பொழில்-113", 1));
    EXPECT_TRUE(scanRefused("நிலா", "பொழில்-113", 1));
    EXPECT_TRUE(scanRefused("குமாரி", "பொழில்-113", 1));
    EXPECT_TRUE(scanRefused("செயலி", "பொழில்-113", 1));
    EXPECT_TRUE(scanRefused("தலைமைக", "பொழில்-113", 1));
    EXPECT_TRUE(scanRefused("a\nb = விலை கூட்டு 1\n", "பொழில்-113", 2));
}

TEST(KeywordTypo, MemberNamesAreCaughtToo) { EXPECT_TRUE(scanRefused("a.விலை", "பொழில்-113", 1)); }

TEST(KeywordTypo, NamesFurtherOffAreFree) {
    for (const char* word : {"நிலையம்", "பிடித்து", "தலைவர்", "செயல்முறை", "குமரன்", "நிலை_2"}) {
        EXPECT_TRUE(isFree(word));
    }
}

TEST(KeywordTypo, NamesOfThreeCodePointsAreFree) {
    for (const char* word : {"நில", "பிட", "படி", "லை"}) EXPECT_TRUE(isFree(word));
    EXPECT_TRUE(scanRefused("இல்ல", "பொழில்-113", 1));  // four
}

TEST(KeywordTypo, OtherKeywordsAreNotInTheList) {
    // One sign beyond தொடர், விடு, பெருக்கு, பொத்தான்.
    for (const char* word : {"தொடர்க", "விடுக", "பெருக்குக", "பொத்தான"}) EXPECT_TRUE(isFree(word));
}

TEST(KeywordTypo, WordsOfTheTablesAreFree) {
    EXPECT_EQ(describe(scan("நிலைமை")), "TRIGGER:நிலைமை END_OF_FILE");
    EXPECT_EQ(describe(scan("மாற்று")), "KEYWORD:மாற்று END_OF_FILE");
}

TEST(KeywordTypo, IsReportedByFixedTexts) {
    try {
        scan("a\n\n  தலைமைக = 1\nb\n");
        FAIL() << "nothing was refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.kind, LEXICAL_ERROR);
        EXPECT_EQ(refusal.code, "பொழில்-113");
        EXPECT_EQ(refusal.message, "திறவுச்சொல்லில் ஒற்றுப் பிழை (Typo) உள்ளது.");
        EXPECT_EQ(refusal.line, 3);
        EXPECT_EQ(refusal.lineText, "  தலைமைக = 1");
        EXPECT_EQ(refusal.fix, "எழுத்துப் பிழையைச் சரிபார்த்துச் சரியான சொல்லைப் பயன்படுத்து.");
    }
}

}  // namespace
