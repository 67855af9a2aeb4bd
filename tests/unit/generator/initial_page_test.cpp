// Which page an application shows first.
#include <gtest/gtest.h>

#include "support/generated_text.h"
#include "ui/application_head.h"

namespace {

using Value = std::unique_ptr<Expression>;

Value text(const std::string& value) { return std::make_unique<StringLiteral>(value); }
Value truth(const std::string& word) { return std::make_unique<BooleanLiteral>(word); }

std::unique_ptr<Statement> header(Value page, Value start = nullptr) {
    PropertyMap properties;
    if (page != nullptr) properties["பக்கம்"] = std::move(page);
    if (start != nullptr) properties["ஆரம்ப_பக்கம்"] = std::move(start);
    return std::make_unique<HeaderNode>("தலைமை", std::move(properties),
                                        std::vector<std::unique_ptr<Statement>>{}, ScreenConfig{},
                                        false);
}

class InitialPage : public testing::Test {
protected:
    void addApp(std::unique_ptr<Statement> head) {
        program.statements.push_back(
            std::make_unique<WebAppNode>("தளம்", nullptr, std::move(head), nullptr, nullptr));
    }
    std::string page() const { return readApplicationHead(program).initialPage; }

    Program program;
};

TEST_F(InitialPage, IsHomeWithoutAnApplication) {
    EXPECT_EQ(page(), "home");
    program.statements.push_back(nullptr);
    program.statements.push_back(std::make_unique<PassStatement>());
    EXPECT_EQ(page(), "home");
}

TEST_F(InitialPage, IsTheApplicationsPage) {
    addApp(header(text("முகப்பு")));
    EXPECT_EQ(page(), "முகப்பு");
}

TEST_F(InitialPage, IsTheFirstOfSeveral) {
    addApp(header(text("ஒன்று")));
    addApp(header(text("இரண்டு")));
    EXPECT_EQ(page(), "ஒன்று");
}

TEST_F(InitialPage, IsTheOneMarkedAsTheStart) {
    addApp(header(text("ஒன்று")));
    addApp(header(text("இரண்டு"), truth("மெய்")));
    addApp(header(text("மூன்று")));
    EXPECT_EQ(page(), "இரண்டு");
}

TEST_F(InitialPage, IsTheLastOfSeveralMarked) {
    addApp(header(text("ஒன்று"), truth("மெய்")));
    addApp(header(text("இரண்டு"), truth("மெய்")));
    EXPECT_EQ(page(), "இரண்டு");
}

TEST_F(InitialPage, IsNotOneMarkedAsFalse) {
    addApp(header(text("ஒன்று")));
    addApp(header(text("இரண்டு"), truth("பொய்")));
    addApp(header(text("மூன்று"), text("மெய்")));
    EXPECT_EQ(page(), "ஒன்று");
}

TEST_F(InitialPage, LeavesOutANameThatIsNoStringLiteral) {
    addApp(header(std::make_unique<NumberLiteral>("1"), truth("மெய்")));
    EXPECT_EQ(page(), "home");
    addApp(header(text("இரண்டு")));
    EXPECT_EQ(page(), "இரண்டு");
}

TEST_F(InitialPage, LeavesOutAnApplicationWithoutAName) {
    addApp(header(nullptr, truth("மெய்")));
    addApp(nullptr);
    addApp(std::make_unique<PassStatement>());
    EXPECT_EQ(page(), "home");
}

TEST_F(InitialPage, IsHomeForAnEmptyName) {
    addApp(header(text("")));
    EXPECT_EQ(page(), "home");
    addApp(header(text("இரண்டு")));
    EXPECT_EQ(page(), "இரண்டு");
}

TEST_F(InitialPage, IsReadFromAnyWidgetAsHeader) {
    PropertyMap properties;
    properties["பக்கம்"] = text("முகப்பு");
    addApp(std::make_unique<WidgetNode>("தலைமை", std::move(properties),
                                        std::vector<std::unique_ptr<Statement>>{},
                                        சீரமைப்பு_வகை::மையம், false));
    EXPECT_EQ(page(), "முகப்பு");
}

TEST_F(InitialPage, IsWrittenAsTheSourceWritesIt) {
    addApp(header(text(R"(முகப்பு\t1)")));
    Generator generator(program, {}, {}, {}, "", "");
    try {
        generator.generate();
    } catch (const std::runtime_error&) {
        // A bare application may be refused further down; its page stands written by then.
    }
    EXPECT_NE(generator.out.str().find(R"(std::string g_currentPage = "முகப்பு\t1";)"),
              std::string::npos);
}

}  // namespace
