// The numbers and names of the token kinds.
#include <gtest/gtest.h>

#include <iterator>

#include "lexer/token.h"
#include "support/token_names.h"

namespace {

struct KindRow {
    int number;
    TokenType kind;
    const char* name;
};

// clang-format off
const KindRow kTokenKinds[] = {
    {0, TokenType::KEYWORD, "KEYWORD"},
    {1, TokenType::IDENTIFIER, "IDENTIFIER"},
    {2, TokenType::NUMBER, "NUMBER"},
    {3, TokenType::STRING, "STRING"},
    {4, TokenType::CHARACTER, "CHARACTER"},
    {5, TokenType::BOOLEAN, "BOOLEAN"},
    {6, TokenType::PRIVATE, "PRIVATE"},
    {7, TokenType::PERCENTAGE, "PERCENTAGE"},
    {8, TokenType::OPERATOR, "OPERATOR"},
    {9, TokenType::LEFT_PAREN, "LEFT_PAREN"},
    {10, TokenType::RIGHT_PAREN, "RIGHT_PAREN"},
    {11, TokenType::COLON, "COLON"},
    {12, TokenType::QUESTION, "QUESTION"},
    {13, TokenType::DOT_ALTERNATE, "DOT_ALTERNATE"},
    {14, TokenType::DOT, "DOT"},
    {15, TokenType::LEFT_BRACKET, "LEFT_BRACKET"},
    {16, TokenType::RIGHT_BRACKET, "RIGHT_BRACKET"},
    {17, TokenType::LEFT_BRACE, "LEFT_BRACE"},
    {18, TokenType::RIGHT_BRACE, "RIGHT_BRACE"},
    {19, TokenType::WEB_APP, "WEB_APP"},
    {20, TokenType::DATABASE_MANAGER, "DATABASE_MANAGER"},
    {21, TokenType::FIREBASE_CONFIG, "FIREBASE_CONFIG"},
    {22, TokenType::HEADER, "HEADER"},
    {23, TokenType::BODY, "BODY"},
    {24, TokenType::DEFINITIONS, "DEFINITIONS"},
    {25, TokenType::COLUMN, "COLUMN"},
    {26, TokenType::ROW, "ROW"},
    {27, TokenType::STACK, "STACK"},
    {28, TokenType::RESERVED_28, "RESERVED_28"},
    {29, TokenType::LIST_VIEW, "LIST_VIEW"},
    {30, TokenType::GRID_VIEW, "GRID_VIEW"},
    {31, TokenType::CROSS_AXIS_COUNT, "CROSS_AXIS_COUNT"},
    {32, TokenType::BOX, "BOX"},
    {33, TokenType::PADDING, "PADDING"},
    {34, TokenType::SPACING, "SPACING"},
    {35, TokenType::HEIGHT, "HEIGHT"},
    {36, TokenType::WIDTH, "WIDTH"},
    {37, TokenType::TEXT, "TEXT"},
    {38, TokenType::BUTTON, "BUTTON"},
    {39, TokenType::STYLE, "STYLE"},
    {40, TokenType::BUTTON_STYLE, "BUTTON_STYLE"},
    {41, TokenType::BUTTON_BACKGROUND, "BUTTON_BACKGROUND"},
    {42, TokenType::TEXT_COLOUR, "TEXT_COLOUR"},
    {43, TokenType::CORNER_CURVE, "CORNER_CURVE"},
    {44, TokenType::SHADOW, "SHADOW"},
    {45, TokenType::ON_PRESS, "ON_PRESS"},
    {46, TokenType::TEXT_BUTTON, "TEXT_BUTTON"},
    {47, TokenType::TEXT_BUTTON_STYLE, "TEXT_BUTTON_STYLE"},
    {48, TokenType::CHECK_BOX, "CHECK_BOX"},
    {49, TokenType::TOGGLE, "TOGGLE"},
    {50, TokenType::RADIO, "RADIO"},
    {51, TokenType::SLIDER, "SLIDER"},
    {52, TokenType::UNDERLINE, "UNDERLINE"},
    {53, TokenType::IMAGE, "IMAGE"},
    {54, TokenType::SOURCE, "SOURCE"},
    {55, TokenType::BOX_STYLE, "BOX_STYLE"},
    {56, TokenType::BOX_BACKGROUND, "BOX_BACKGROUND"},
    {57, TokenType::BACKGROUND, "BACKGROUND"},
    {58, TokenType::ASPECT_RATIO, "ASPECT_RATIO"},
    {59, TokenType::EXPANDED, "EXPANDED"},
    {60, TokenType::FLEXIBLE, "FLEXIBLE"},
    {61, TokenType::EMPTY_SPACE, "EMPTY_SPACE"},
    {62, TokenType::SHARE, "SHARE"},
    {63, TokenType::ROUND_IMAGE, "ROUND_IMAGE"},
    {64, TokenType::BORDER_COLOUR, "BORDER_COLOUR"},
    {65, TokenType::BORDER_SIZE, "BORDER_SIZE"},
    {66, TokenType::ALERT, "ALERT"},
    {67, TokenType::BOTTOM_BAR, "BOTTOM_BAR"},
    {68, TokenType::BOTTOM_ITEM, "BOTTOM_ITEM"},
    {69, TokenType::BOTTOM_SELECTION, "BOTTOM_SELECTION"},
    {70, TokenType::SELECTED_COLOUR, "SELECTED_COLOUR"},
    {71, TokenType::UNSELECTED_COLOUR, "UNSELECTED_COLOUR"},
    {72, TokenType::TAB_BAR, "TAB_BAR"},
    {73, TokenType::TAB_ITEM, "TAB_ITEM"},
    {74, TokenType::TAB_SELECTION, "TAB_SELECTION"},
    {75, TokenType::PAGE, "PAGE"},
    {76, TokenType::NAVIGATE, "NAVIGATE"},
    {77, TokenType::TITLE, "TITLE"},
    {78, TokenType::TEXT_FIELD, "TEXT_FIELD"},
    {79, TokenType::HINT, "HINT"},
    {80, TokenType::REFRESH, "REFRESH"},
    {81, TokenType::BACKGROUND_IMAGE, "BACKGROUND_IMAGE"},
    {82, TokenType::BACKGROUND_VIDEO, "BACKGROUND_VIDEO"},
    {83, TokenType::NOTICE_BAR, "NOTICE_BAR"},
    {84, TokenType::CARD, "CARD"},
    {85, TokenType::CARD_STYLE, "CARD_STYLE"},
    {86, TokenType::LIST_ITEM, "LIST_ITEM"},
    {87, TokenType::ELEVATION, "ELEVATION"},
    {88, TokenType::SEARCH_BAR, "SEARCH_BAR"},
    {89, TokenType::SEARCH_HINT, "SEARCH_HINT"},
    {90, TokenType::SEARCH_IMAGE, "SEARCH_IMAGE"},
    {91, TokenType::CLEAR_IMAGE, "CLEAR_IMAGE"},
    {92, TokenType::SEARCH_STYLE, "SEARCH_STYLE"},
    {93, TokenType::ALERT_STYLE, "ALERT_STYLE"},
    {94, TokenType::FIELD_BACKGROUND, "FIELD_BACKGROUND"},
    {95, TokenType::FONT_SIZE, "FONT_SIZE"},
    {96, TokenType::RTDB_INSERT, "RTDB_INSERT"},
    {97, TokenType::RTDB_UPDATE, "RTDB_UPDATE"},
    {98, TokenType::RTDB_DELETE, "RTDB_DELETE"},
    {99, TokenType::RTDB_READ, "RTDB_READ"},
    {100, TokenType::ANIMATION, "ANIMATION"},
    {101, TokenType::DURATION, "DURATION"},
    {102, TokenType::ANIMATION_CURVE, "ANIMATION_CURVE"},
    {103, TokenType::TARGET, "TARGET"},
    {104, TokenType::TRIGGER, "TRIGGER"},
    {105, TokenType::FADE_IN, "FADE_IN"},
    {106, TokenType::FADE_OUT, "FADE_OUT"},
    {107, TokenType::GROW, "GROW"},
    {108, TokenType::SHRINK, "SHRINK"},
    {109, TokenType::SLIDE_LEFT, "SLIDE_LEFT"},
    {110, TokenType::SLIDE_RIGHT, "SLIDE_RIGHT"},
    {111, TokenType::SLIDE_UP, "SLIDE_UP"},
    {112, TokenType::SLIDE_DOWN, "SLIDE_DOWN"},
    {113, TokenType::ROTATE_CLOCKWISE, "ROTATE_CLOCKWISE"},
    {114, TokenType::ROTATE_ANTICLOCKWISE, "ROTATE_ANTICLOCKWISE"},
    {115, TokenType::MOVE_HORIZONTAL, "MOVE_HORIZONTAL"},
    {116, TokenType::MOVE_VERTICAL, "MOVE_VERTICAL"},
    {117, TokenType::ANIMATE_COLOUR, "ANIMATE_COLOUR"},
    {118, TokenType::ANIMATE_WIDTH, "ANIMATE_WIDTH"},
    {119, TokenType::ANIMATE_HEIGHT, "ANIMATE_HEIGHT"},
    {120, TokenType::ANIMATE_CURVE, "ANIMATE_CURVE"},
    {121, TokenType::BOUNCE, "BOUNCE"},
    {122, TokenType::ELASTIC, "ELASTIC"},
    {123, TokenType::FADE_SLIDE, "FADE_SLIDE"},
    {124, TokenType::FLY, "FLY"},
    {125, TokenType::SOFT_SWITCH, "SOFT_SWITCH"},
    {126, TokenType::PUSH_SWITCH, "PUSH_SWITCH"},
    {127, TokenType::GROW_SWITCH, "GROW_SWITCH"},
    {128, TokenType::INDENT, "INDENT"},
    {129, TokenType::DEDENT, "DEDENT"},
    {130, TokenType::RESERVED_130, "RESERVED_130"},
    {131, TokenType::BIT_NOT, "BIT_NOT"},
    {132, TokenType::RESERVED_132, "RESERVED_132"},
    {133, TokenType::INCREMENT, "INCREMENT"},
    {134, TokenType::DECREMENT, "DECREMENT"},
    {135, TokenType::ASSIGN_OPERATOR, "ASSIGN_OPERATOR"},
    {136, TokenType::RESERVED_136, "RESERVED_136"},
    {137, TokenType::UNARY_PLUS, "UNARY_PLUS"},
    {138, TokenType::UNARY_MINUS, "UNARY_MINUS"},
    {139, TokenType::NEWLINE, "NEWLINE"},
    {140, TokenType::COMMA, "COMMA"},
    {141, TokenType::EQUALS, "EQUALS"},
    {142, TokenType::UNKNOWN, "UNKNOWN"},
    {143, TokenType::STAR, "STAR"},
    {144, TokenType::END_OF_FILE, "END_OF_FILE"},
};
// clang-format on

TEST(TokenKinds, HaveTheirNumbers) {
    for (const KindRow& row : kTokenKinds)
        EXPECT_EQ(static_cast<int>(row.kind), row.number) << row.name;
}

TEST(TokenKinds, AreOneHundredAndFortyFive) {
    ASSERT_EQ(std::size(kTokenKinds), 145U);
    for (int number = 0; number < 145; number++) EXPECT_EQ(kTokenKinds[number].number, number);
}

TEST(TokenKinds, HaveTheirNamesInTestTexts) {
    ASSERT_EQ(std::size(kTokenNames), std::size(kTokenKinds));
    for (const KindRow& row : kTokenKinds) EXPECT_STREQ(kTokenNames[row.number], row.name);
}

}  // namespace
