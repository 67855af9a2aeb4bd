#include "companion/descriptions/widget_probe.h"

#include "companion/refusal.h"
#include "driver/page.h"
#include "kept_memory.h"
#include "support/generated_text.h"

namespace {

const std::string kItemsMark = "⋯";

std::string replacedOnce(std::string text, const std::string& mark, const std::string& by) {
    text.replace(text.find(mark), mark.size(), by);
    return text;
}

/// What a column and a row read of their children beside their sizes.
bool isOfRows(const std::string& widget) {
    return widget == "இவெ" || widget == "வெற்றிடம்" || widget == "விரிவாக்கம்" || widget == "நெகிழ்வு";
}

/// A widget stands in a stack, which reads most of its children.
std::string applicationOf(const Shape& shape, const std::string& items) {
    const std::string widget = replacedOnce(shape.source, kItemsMark, items);
    if (shape.widget == "தலைமை") {
        return "வலைதளம் சோதனை(\n" + widget + "\nகுமரி(உரை(\"அ\"))\nவரையறை()\n)\n";
    }
    if (shape.widget == "பயர்பேசு_அமைப்பு") {
        return "வலைதளம் சோதனை(\nதலைமை()\nகுமரி()\nவரையறை()\nதரவுத்தளமேலாண்மை(" + widget + ")\n)\n";
    }
    const std::string stack = "அடுக்கி(\n" + widget + "\n)\n";
    const std::string body = isOfRows(shape.widget) ? "நெடுவரிசை(\n" + widget + "\nகிடைவரிசை(\n" +
                                                          widget + "\n)\n" + stack + ")"
                                                    : stack;
    return "வலைதளம் சோதனை(\nதலைமை()\nகுமரி(" + body + ")\nவரையறை()\n)\n";
}

}  // namespace

std::optional<std::string> becomes(const Shape& shape, const std::string& items) {
    static const bool isKept = (keepFreedMemory(), true);
    static_cast<void>(isKept);
    const std::string source = applicationOf(shape, items);
    try {
        const Parsed parsed = parse(source);
        const Parser& parser = *parsed.parser;
        Generator generator(parsed.program, parser.functionParameters, parser.structDefinitions,
                            parser.abstractStructDefinitions, source, "test.பொழில்");
        const auto& app = dynamic_cast<const WebAppNode&>(*parsed.program.statements.at(0));
        generator.visitWebAppNode(&app);
        if (app.databaseManager != nullptr) {
            generator.visitDatabaseManagerNode(
                dynamic_cast<const DatabaseManagerNode*>(app.databaseManager.get()));
        }
        const PageHead page = readPageHead(parsed.program);
        return generator.out.str() + page.title + "\n" + page.icon + "\n" + page.background;
    } catch (const companion::CompilerRefusal&) {
        return std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

const std::vector<Shape>& allShapes() {
    static const std::vector<Shape> shapes = {
        {"தலைமை", "", R"(தலைமை(⋯))"},
        {"பயர்பேசு_அமைப்பு", "", R"(பயர்பேசு_அமைப்பு(⋯))"},
        {"பக்கம்", "", R"(பக்கம்(உரை("அ"), ⋯))"},

        {"உரை", "", R"(உரை("அ", ⋯))"},
        {"உரை", "உரைபாணி", R"(உரை("அ", உரைபாணி(⋯)))"},
        {"படம்", "", R"(படம்(⋯))"},
        {"வட்டபடம்", "", R"(வட்டபடம்(உரை("அ"), படம்(பாதை: "அ.png"), கரை_அளவு: 2, ⋯))"},
        {"பொத்தான்", "", R"(பொத்தான்("அ", ⋯))"},
        {"பொத்தான்", "பொ_பாணி",
         R"(பொத்தான்("அ", style_கரை_அளவு: 2, style_கரை_நிறம்: "#111111", பொ_பாணி(⋯)))"},
        {"உரைபொத்தான்", "", R"(உரைபொத்தான்(உரை "அ", ⋯))"},
        {"உரைபொத்தான்", "உரைபொ_பாணி", R"(உரைபொத்தான்(உரை "அ", உரைபொ_பாணி(⋯)))"},

        {"நெடுவரிசை", "", R"(நெடுவரிசை(வேறு: 1, ⋯)(உரை("அ"), உரை("ஆ")))"},
        {"கிடைவரிசை", "", R"(கிடைவரிசை(வேறு: 1, ⋯)(உரை("அ"), உரை("ஆ")))"},
        {"அடுக்கி", "", R"(அடுக்கி(வேறு: 1, ⋯)(உரை("அ"), உரை("ஆ")))"},
        {"மடிப்பு", "", R"(மடிப்பு(வேறு: 1, ⋯)(உரை("அ"), உரை("ஆ")))"},
        {"பட்டியல்_காட்சி", "", R"(பட்டியல்_காட்சி(வேறு: 1, ⋯)(உரை("அ"), உரை("ஆ")))"},
        {"கட்டம்_காட்சி", "", R"(கட்டம்_காட்சி(⋯)(உரை("அ"), உரை("ஆ"), உரை("இ"), உரை("ஈ")))"},
        {"கட்டம்_காட்சி", "இவெ", R"(கட்டம்_காட்சி(இவெ(⋯))(உரை("அ"), உரை("ஆ"), உரை("இ"), உரை("ஈ")))"},
        {"பெட்டி", "", R"(பெட்டி(அழுத்தினால்: 1, ⋯ உரை("அ")))"},
        {"பெட்டி", "()", R"(பெட்டி(⋯)(உரை("அ")))"},
        {"பெட்டி", "பெட்டி_பாணி", R"(பெட்டி(பெட்டி_பாணி(⋯) உரை("அ")))"},
        {"அட்டை", "", R"(அட்டை(⋯ உரை("அ")))"},
        {"அட்டை", "அட்டை_பாணி", R"(அட்டை(அட்டை_பாணி(⋯) உரை("அ")))"},

        {"விரிவாக்கம்", "", R"(விரிவாக்கம்(⋯ உரை("அ")))"},
        {"நெகிழ்வு", "", R"(நெகிழ்வு(⋯ உரை("அ")))"},
        {"வெற்றிடம்", "", R"(வெற்றிடம்(⋯))"},
        {"இவெ", "", R"(இவெ(⋯))"},
        {"பிரிப்பான்", "", R"(பிரிப்பான்(⋯))"},
        {"உள்_இவெ", "", R"(உள்_இவெ(⋯)(உரை("அ")))"},

        {"தேர்வுபெட்டி", "", R"(தேர்வுபெட்டி(உரை("அ"), ⋯))"},
        {"வட்டத்தேர்வு", "", R"(வட்டத்தேர்வு("அ", மதிப்பு: 1, குழு_மதிப்பு: 1, ⋯))"},
        {"மாற்றி", "", R"(மாற்றி(⋯))"},
        {"அளவி", "", R"(அளவி(⋯))"},
        {"கீழ்வரி", "", R"(கீழ்வரி(⋯))"},
        {"உரைபெட்டி", "", R"(உரைபெட்டி(⋯))"},
        {"உரைபெட்டி", "தேடல்_பாணி", R"(உரைபெட்டி(தேடல்_பாணி(⋯)))"},
        {"கடவுமறை", "", R"(கடவுமறை(⋯))"},
        {"தேடல்_பட்டை", "", R"(தேடல்_பட்டை(⋯))"},
        {"தேடல்_பட்டை", "தேடல்_பாணி", R"(தேடல்_பட்டை(தேடல்_பாணி(⋯)))"},
        {"தேடுபொறி", "", R"(தேடுபொறி(⋯))"},
        {"தேடுபொறி", "தேடல்_பாணி", R"(தேடுபொறி(தேடல்_பாணி(⋯)))"},

        {"சுழல்_காட்டி", "", R"(சுழல்_காட்டி(⋯))"},
        {"முன்னேற்றவரி", "", R"(முன்னேற்றவரி(⋯))"},
        {"தகவல்பட்டை", "", R"(தகவல்பட்டை(⋯))"},
        {"பட்டியல்_உருப்படி", "", R"(பட்டியல்_உருப்படி(⋯))"},

        {"எச்சரிக்கை", "", R"(எச்சரிக்கை(⋯ உரை("அ")))"},
        {"எச்சரிக்கை", "எச்சரிக்கை_பாணி", R"(எச்சரிக்கை(எச்சரிக்கை_பாணி(⋯) உரை("அ")))"},
        {"அடிப்பகுதி", "", R"(அடிப்பகுதி(⋯, அடி_உருப்படி("அ")))"},
        {"அடி_உருப்படி", "", R"(அடிப்பகுதி(அடி_உருப்படி("அ", ⋯)))"},
        {"தத்தல்", "", R"(தத்தல்(⋯, தத்தல்_உருப்படி("அ")))"},
        {"தத்தல்_உருப்படி", "", R"(தத்தல்(தத்தல்_உருப்படி("அ", ⋯)))"},
        {"அறிவிப்பு_பட்டை", "", R"(பொத்தான்("அ", அழுத்தினால்: அறிவிப்பு_பட்டை(⋯)))"},

        {"அசைவூட்டம்", "", R"(பொத்தான்("அ", அசைவூட்டம்(⋯)))"},
        {"உரை", "இலக்கு", R"(உரை("அ", அசைவூட்டம்(இலக்கு(⋯))))"},
        {"பொத்தான்", "இலக்கு", R"(பொத்தான்("அ", அசைவூட்டம்(இலக்கு(⋯))))"},
        {"பெட்டி", "இலக்கு", R"(பெட்டி(அசைவூட்டம்(இலக்கு(⋯)) உரை("அ")))"},
    };
    return shapes;
}
