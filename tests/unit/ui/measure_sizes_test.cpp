// The size of a kind by itself, and what the source says instead: which keys, in which forms.
#include <gtest/gtest.h>

#include "unit/ui/measured.h"

namespace {

/// By its two keys a kind takes a number, nothing for a share, and passes over all else.
struct KeyRow {
    const char* kind;
    Size own;
    bool styledWidth;  ///< Whether style_அகலம் counts,
    bool width;        ///< and அகலம்,
    bool styledHeight;
    bool height;
};

const KeyRow kRows[] = {
    {"பொத்தான்", {80, 40}, true, true, true, true},
    {"அளவி", {200, 28}, true, true, true, true},
    {"கீழ்வரி", {200, 40}, false, true, false, false},
    {"படம்", {100, 100}, true, true, true, true},
    {"தேர்வுபெட்டி", {24, 24}, true, true, true, true},
    {"வட்டத்தேர்வு", {250, 30}, false, false, false, false},
    {"மாற்றி", {48, 28}, false, false, false, false},
    {"பெட்டி", {100, 100}, true, true, true, true},
    {"தேடுபொறி", {350, 50}, false, true, true, true},
    {"தேடல்_பட்டை", {350, 50}, true, true, true, true},
    {"பிரிப்பான்", {300, 20}, true, true, true, true},
    {"அட்டை", {350, 200}, true, true, true, true},
    {"எச்சரிக்கை", {400, 280}, true, true, true, true},
    {"முன்னேற்றவரி", {200, 6}, true, true, true, true},
    {"தகவல்பட்டை", {300, 40}, true, true, true, true},
    {"உரைபெட்டி", {320, 60}, true, true, true, true},
    {"பட்டியல்_உருப்படி", {200, 56}, false, true, false, true},
    {"வட்டபடம்", {48, 48}, true, true, true, true},
    {"தத்தல்", {0, 50}, false, false, false, false},
    {"உரைபொத்தான்", {80, 40}, false, false, false, false},
    {"உரை", {10 * (0.65F * 16), 16}, false, false, false, false},
    {"இவெ", {0, 0}, false, true, false, true},
    {"வெற்றிடம்", {0, 0}, false, false, false, true},
    {"மடிப்பு", {0, 20}, false, false, false, false},
    {"நெடுவரிசை", {0, 0}, false, false, false, false},
    {"கிடைவரிசை", {0, 0}, false, false, false, false},
    {"அடுக்கி", {0, 0}, false, false, false, false},
    {"நெகிழ்வு", {0, 0}, false, false, false, false},
    {"விரிவாக்கம்", {0, 0}, false, false, false, false},
    {"உள்_இவெ", {20, 20}, false, false, false, false},
    {"உள்_இவே", {20, 20}, false, false, false, false},
    {"சுழல்_காட்டி", {40, 40}, false, false, false, false},
    {"கட்டம்_காட்சி", {470, 0}, true, true, false, false},
};

void PrintTo(const KeyRow& row, std::ostream* out) { *out << row.kind; }

class MeasuredKind : public testing::TestWithParam<KeyRow> {
protected:
    template <typename Value>
    void set(const std::string& key, const std::string& value) {
        widget.properties[key] = std::make_unique<Value>(value);
    }

    Size size() const { return measured(&widget); }
    Size own() const { return GetParam().own; }

    /// A width of 70 under `key` and what it leaves.
    void expectWidth(const std::string& key, bool counts) {
        set<NumberLiteral>(key, "70");
        EXPECT_EQ(size(), (Size{counts ? 70 : own().width, own().height})) << key;
        widget.properties.erase(key);
    }
    void expectHeight(const std::string& key, bool counts) {
        set<NumberLiteral>(key, "70");
        EXPECT_EQ(size(), (Size{own().width, counts ? 70 : own().height})) << key;
        widget.properties.erase(key);
    }

    WidgetNode widget{GetParam().kind, {}, {}, சீரமைப்பு_வகை::மேல்_இடது, false};
};

TEST_P(MeasuredKind, IsAsLargeAsItsRowSays) { EXPECT_EQ(size(), own()); }

TEST_P(MeasuredKind, TakesANumberUnderItsKeys) {
    expectWidth("style_அகலம்", GetParam().styledWidth);
    expectWidth("அகலம்", GetParam().width);
    expectHeight("style_உயரம்", GetParam().styledHeight);
    expectHeight("உயரம்", GetParam().height);
}

class MeasuredStyledKind : public MeasuredKind {};

TEST_P(MeasuredStyledKind, TakesTheStylesNumberFirst) {
    set<NumberLiteral>("அகலம்", "70");
    set<NumberLiteral>("உயரம்", "60");
    set<NumberLiteral>("style_அகலம்", "30");
    set<NumberLiteral>("style_உயரம்", "20");
    EXPECT_EQ(size(), (Size{30, 20}));
    set<PercentageLiteral>("style_அகலம்", "50%");
    set<PercentageLiteral>("style_உயரம்", "50%");
    EXPECT_EQ(size(), (Size{0, 0})) << "a share of the style's ends the search";
    set<VariableAccess>("style_அகலம்", "அ");
    set<VariableAccess>("style_உயரம்", "அ");
    EXPECT_EQ(size(), (Size{70, 60})) << "any other value goes on to the plain key";
    set<PercentageLiteral>("அகலம்", "50%");
    set<PercentageLiteral>("உயரம்", "50%");
    EXPECT_EQ(size(), (Size{0, 0}));
}

/// Where a share of the plain keys isn't 0, the kind reads numbers alone.
TEST_P(MeasuredKind, IsNothingByAShareOfTheFrame) {
    const std::string kind = GetParam().kind;
    const bool readsNumbersAlone = kind == "பட்டியல்_உருப்படி" || kind == "இவெ" || kind == "வெற்றிடம்";
    set<PercentageLiteral>("அகலம்", "50%");
    EXPECT_EQ(size().width, GetParam().width && !readsNumbersAlone ? 0 : own().width);
    set<PercentageLiteral>("உயரம்", "50%");
    EXPECT_EQ(size().height, GetParam().height ? 0 : own().height);
}

TEST_P(MeasuredKind, EvaluatesNothing) {
    set<VariableAccess>("அகலம்", "அ");
    set<VariableAccess>("உயரம்", "அ");
    EXPECT_EQ(size(), own());
    set<DoubleLiteral>("style_அகலம்", "1.5");
    set<DoubleLiteral>("style_உயரம்", "1.5");
    EXPECT_EQ(size(), own());
}

INSTANTIATE_TEST_SUITE_P(All, MeasuredKind, testing::ValuesIn(kRows),
                         [](const auto& row) { return std::to_string(row.index); });

std::vector<KeyRow> styledRows() {
    std::vector<KeyRow> rows;
    for (const KeyRow& row : kRows) {
        if (row.styledWidth && row.width && row.styledHeight && row.height) rows.push_back(row);
    }
    return rows;
}

INSTANTIATE_TEST_SUITE_P(All, MeasuredStyledKind, testing::ValuesIn(styledRows()),
                         [](const auto& row) { return std::to_string(row.index); });

TEST(MeasuredSize, OfOtherKindsIsNothing) {
    for (const char* kind :
         {"அடிப்பகுதி", "பட்டியல்_காட்சி", "கடவுமறை", "அறிவிப்பு_பட்டை", "பக்கம்", "பங்கு", "அறியாதது"}) {
        WidgetNode widget(kind, {}, {}, சீரமைப்பு_வகை::மேல்_இடது, false);
        widget.properties["அகலம்"] = std::make_unique<NumberLiteral>("70");
        widget.properties["உயரம்"] = std::make_unique<NumberLiteral>("70");
        EXPECT_EQ(measured(&widget), (Size{0, 0})) << kind;
    }
}

TEST(MeasuredSize, OfATextFieldInASourceIsItsImage) {
    EXPECT_EQ(measured("படம்(\"அ.png\", அகலம்: 50%)"), (Size{0, 100}));
    EXPECT_EQ(measured("படம்(\"அ.png\", அகலம்: \"50%\")"), (Size{100, 100}))
        << "a string is a share for the frame alone";
}

TEST(MeasuredSize, OfASpinnerIsItsStyles) {
    WidgetNode spinner("சுழல்_காட்டி", {}, {}, சீரமைப்பு_வகை::மேல்_இடது, false);
    spinner.properties["style_அளவு"] = std::make_unique<NumberLiteral>("64");
    EXPECT_EQ(measured(&spinner), (Size{64, 64}));
    spinner.properties["style_அளவு"] = std::make_unique<PercentageLiteral>("50%");
    EXPECT_EQ(measured(&spinner), (Size{40, 40}));
}

TEST(MeasuredSize, OfAListItemGrowsWithItsSecondLine) {
    EXPECT_EQ(measured("பட்டியல்_உருப்படி(தலைப்பு: \"அ\", துணைத்_தலைப்பு: \"ஆ\")"), (Size{200, 72}));
    EXPECT_EQ(measured("பட்டியல்_உருப்படி(துணைத்_தலைப்பு: அ, உயரம்: 90, அகலம்: 150)"), (Size{150, 90}));
}

TEST(MeasuredSize, OfAGridReadsItsEnglishWidthLast) {
    EXPECT_EQ(measured("கட்டம்_காட்சி(width: 250)()").width, 250);
    EXPECT_EQ(measured("கட்டம்_காட்சி(width: 250, அகலம்: 70)()").width, 70);
    EXPECT_EQ(measured("கட்டம்_காட்சி(width: 50%)()").width, 470);
}

// ---- Buttons ----

TEST(MeasuredSize, OfAButtonGrowsWithItsLabel) {
    EXPECT_EQ(measured("பொத்தான்(\"அ\")"), (Size{80, 40})) << "at least 80";
    EXPECT_EQ(measured("பொத்தான்(\"வணக்கம் உலகம்\")"), (Size{32 + 13 * (0.45F * 16), 40}));
    EXPECT_EQ(measured("பொத்தான்(அ)"), (Size{80, 40}));
    EXPECT_EQ(measured("பொத்தான்(\"வணக்கம் உலகம்\", style_அளவு: 40)").width, 32 + 13 * (0.45F * 16));
    EXPECT_EQ(measured("பொத்தான்(உரை: அ, அடையாளம்: \"வணக்கம் உலகம்\")").width, 80)
        << "its own text alone";
}

TEST(MeasuredSize, OfATextButtonKnowsItsStylesSize) {
    WidgetNode button("உரைபொத்தான்", {}, {}, சீரமைப்பு_வகை::மேல்_இடது, false);
    button.properties["உரை"] = std::make_unique<StringLiteral>("வணக்கம் உலகம்");
    EXPECT_EQ(measured(&button), (Size{32 + 13 * (0.45F * 16), 40}));
    button.properties["style_அளவு"] = std::make_unique<NumberLiteral>("30");
    EXPECT_EQ(measured(&button), (Size{32 + 13 * (0.45F * 30), 40}));
}

TEST(MeasuredSize, OfANumberInOtherDigitsIsNone) {
    WidgetNode image("படம்", {}, {}, சீரமைப்பு_வகை::மேல்_இடது, false);
    image.properties["அகலம்"] = std::make_unique<NumberLiteral>("௫௦");
    EXPECT_THROW(calculateWidgetWidth(&image), std::invalid_argument);
    image.properties["அகலம்"] = std::make_unique<NumberLiteral>("12.5");
    EXPECT_EQ(calculateWidgetWidth(&image), 12.5F);
}

}  // namespace
