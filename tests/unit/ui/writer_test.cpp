// What the writer of widgets puts into a block: handlers in their three forms, and animations.
#include <gtest/gtest.h>

#include <sstream>

#include "ui/animation.h"
#include "ui/widget_writer.h"

namespace {

class WrittenBlock : public testing::Test {
protected:
    /// Expressions and statements are shown by what they are.
    WrittenBlock()
        : text(out, level),
          writer(text, {[this](const Expression* node) { show(node); },
                        [this](const Statement*) { text.line("statement;"); }, nullptr}) {}

    void show(const Expression* node) {
        const auto* variable = dynamic_cast<const VariableAccess*>(node);
        out << (variable == nullptr ? "another expression" : variable->name);
    }

    void setHandler(std::unique_ptr<Expression> value) {
        widget.properties["அழுத்தினால்"] = std::move(value);
    }

    std::string handler() {
        out.str("");
        writer.writeHandler(site, "அழுத்தினால்");
        return out.str();
    }

    std::string animation(const std::function<void()>& turnColour = {}) {
        out.str("");
        writeAnimation(writer, site, {"bX", "bY", "bW", "bH"}, {"பின்னணி", "பொபின்னணி"}, turnColour);
        return out.str();
    }

    /// The animation of the widget, made anew.
    AnimationNode& animate() {
        widget.animation = std::make_unique<AnimationNode>();
        return *widget.animation;
    }

    std::ostringstream out;
    int level = 0;
    TextWriter text;
    WidgetWriter writer;
    WidgetNode widget{"பொத்தான்", {}, {}, சீரமைப்பு_வகை::மேல்_இடது, false};
    const Site site = {widget, "wX", "wY", "7"};
};

// ---- Handlers ----

const char* const kCalled =
    "{\n"
    "    std::any callback = செயல்;\n"
    "    try {\n"
    "        if (callback.type() == typeid(std::function<std::any()>)) {\n"
    "            std::any_cast<std::function<std::any()>>(callback)();\n"
    "        }\n"
    "    } catch (...) {\n"
    "    }\n"
    "}\n";

TEST_F(WrittenBlock, CallsAHandlerThatIsAFunction) {
    setHandler(std::make_unique<VariableAccess>("செயல்"));
    EXPECT_EQ(handler(), kCalled);
}

TEST_F(WrittenBlock, RunsThePressBlockWithoutAHandler) {
    EXPECT_EQ(handler(), "");
    widget.onTapStatements.push_back(nullptr);
    widget.onTapStatements.push_back(nullptr);
    EXPECT_EQ(handler(), "statement;\nstatement;\n");
    setHandler(std::make_unique<VariableAccess>("செயல்"));
    EXPECT_EQ(handler(), kCalled) << "the handler goes before the block";
}

TEST_F(WrittenBlock, CallsTheTriggerOfAMessageAndDrawsAnyOtherWidget) {
    setHandler(std::make_unique<WidgetExpression>(std::make_unique<SnackBarNode>(WidgetList())));
    EXPECT_NE(handler().find("std::any callback = another expression;\n"), std::string::npos);
    setHandler(std::make_unique<WidgetExpression>(std::make_unique<WidgetNode>(
        "உரை", PropertyMap(), WidgetList(), சீரமைப்பு_வகை::மேல்_இடது, false)));
    EXPECT_EQ(handler().find("callback"), std::string::npos);
    EXPECT_NE(handler().find("another expression"), std::string::npos);
}

// ---- Animations ----

TEST_F(WrittenBlock, HasNoAnimationWithoutANode) { EXPECT_EQ(animation(), ""); }

TEST_F(WrittenBlock, AnimatesNothingWithoutTargets) {
    AnimationNode& node = animate();
    node.duration = 300;
    node.trigger = "hover";
    EXPECT_EQ(animation(),
              "{\n"
              "    bool animActive = false;\n"
              "    std::string aCond = \"hover\";\n"
              "    if (aCond == \"மவுஸ்_மேலே\" || aCond == \"hover\" || aCond == \"சுட்டி_மேல்\") "
              "animActive = isHover;\n"
              "    if (aCond == \"தானாக\") animActive = true;\n"
              "    float progress =\n"
              "        updateProgress(7ULL, aCond, animActive, bY, winHeight, 300.000f);\n"
              "    float t = getCurveValue(\"linear\", progress);\n"
              "}\n");
}

/// The lines behind those that every animation has.
std::string targetLines(const std::string& block) {
    const std::size_t begin = block.find(";\n", block.find("float t = ")) + 2;
    return block.substr(begin, block.rfind("}\n") - begin);
}

TEST_F(WrittenBlock, AnimatesEachTargetThatIsANumber) {
    const struct {
        const char* word;
        const char* lines;
    } rows[] = {
        {"அகலம்", "    bW = lerp(bW, 12.500f, t);\n"},
        {"உயரம்", "    bH = lerp(bH, 12.500f, t);\n"},
        {"வளைவு", "    radius = lerp(radius, 12.500f, t);\n"},
        {"விரிவு",
         "    float scale = lerp(1.0f, 12.500f, t);\n"
         "    bX -= bW * (scale - 1.0f) / 2.0f;\n"
         "    bY -= bH * (scale - 1.0f) / 2.0f;\n"
         "    bW *= scale;\n"
         "    bH *= scale;\n"},
        {"கி_நகர்வு", "    bX = lerp(bX, bX + 12.500f, t);\n"},
        {"நெ_நகர்வு", "    bY = lerp(bY, bY + 12.500f, t);\n"},
        {"மதிப்பு", ""},
    };
    std::string all;
    for (const auto& row : rows) {
        animate().numberTargets[row.word] = 12.5F;
        EXPECT_EQ(targetLines(animation()), row.lines) << row.word;
        all += row.lines;
    }
    AnimationNode& node = animate();
    for (const auto& row : rows) node.numberTargets[row.word] = 12.5F;
    EXPECT_EQ(targetLines(animation()), all) << "in this order";
}

TEST_F(WrittenBlock, TurnsToTheFirstColourByItsKeys) {
    const auto turn = [this] { text.line("turn(t, targetCol);"); };
    const auto lines = [](const std::string& channels) {
        return "    NVGcolor targetCol = nvgRGBAf(" + channels + ");\n    turn(t, targetCol);\n";
    };
    AnimationNode& node = animate();
    node.stringTargets = {{"நிறம்", "#FF0000"}};
    EXPECT_EQ(targetLines(animation(turn)), "") << "not by any other key";
    node.stringTargets = {{"பொபின்னணி", "#FF000080"}};
    EXPECT_EQ(targetLines(animation(turn)), lines("1.000f, 0.000f, 0.000f, 0.502f"));
    node.stringTargets["பின்னணி"] = "நீலம்";
    EXPECT_EQ(targetLines(animation(turn)), lines("0.000f, 0.000f, 1.000f, 1.000f"));
}

}  // namespace
