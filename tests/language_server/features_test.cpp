// What the server answers about a document, a test a rule.
#include <gtest/gtest.h>

#include <algorithm>

#include "client.h"

namespace {

using Json = Client::Json;

constexpr const char* kDocument = "untitled:document";

/// A client with one open document; ‸ in its text is the place that is asked about.
class Marked {
public:
    explicit Marked(std::string text) {
        const std::string mark = "‸";
        const std::size_t at = text.find(mark);
        if (at != std::string::npos) text.erase(at, mark.size());
        source = text;
        const std::string before = text.substr(0, std::min(at, text.size()));
        line = static_cast<int>(std::count(before.begin(), before.end(), '\n'));
        character = unitsOf(before.substr(before.rfind('\n') + 1));
        client.open(kDocument, text);
        client.settle();
    }
    Json ask(const std::string& method, Json more = Json::object()) {
        Json params = Client::at(kDocument, line, character);
        params.update(more);
        return client.ask("textDocument/" + method, params);
    }
    std::string hover() {
        const Json answer = ask("hover");
        return answer.is_null() ? "" : answer["contents"]["value"].get<std::string>();
    }
    /// The lines and characters of ranges, as "1:2 3:4".
    static std::string starts(const Json& list) {
        std::string text;
        for (const Json& entry : list) {
            const Json& start = entry["range"]["start"];
            text +=
                (text.empty() ? "" : " ") + start["line"].dump() + ":" + start["character"].dump();
        }
        return text;
    }
    /// The text behind the edits of a rename; its message if it was refused.
    std::string renamed(const char* newName) {
        const Json answer = ask("rename", {{"newName", newName}});
        if (answer.contains("message")) return answer["message"];
        Json edits = answer["changes"][kDocument];
        std::string text = source;
        for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) apply(*edit, text);
        return text;
    }
    static void apply(const Json& edit, std::string& text) {
        const companion::language_server::TextPlaces places(text);
        const companion::Range range =
            places.rangeOf(companion::language_server::rangeOf(edit["range"]));
        text.replace(range.begin, range.end - range.begin, edit["newText"].get<std::string>());
    }

    std::string source;
    Client client;

private:
    static int unitsOf(const std::string& text) {
        return companion::language_server::TextPlaces(text).positionOf(text.size()).character;
    }
    int line;
    int character;
};

bool holds(const std::string& text, const char* part) { return text.find(part) != text.npos; }

// ---- Hover ----

TEST(HoverAnswer, TellsWhatAWordDoes) {
    const std::string keyword = Marked("எனி‸ல் மெய்:\n    விடு\n").hover();
    EXPECT_TRUE(holds(keyword, "எனில் நிபந்தனை:")) << keyword;
    EXPECT_TRUE(holds(keyword, "எடுத்துக்காட்டு"));
    EXPECT_TRUE(holds(Marked("அச்சிடு(நீள‸ம்(\"அ\"))\n").hover(), "நீளம்("));
    EXPECT_EQ(Marked("அச்சிடு(1)\n\n‸\n").hover(), "");
    EXPECT_EQ(Marked("ஃ எனி‸ல்\nஅச்சிடு(1)\n").hover(), "") << "a comment";
}

TEST(HoverAnswer, TellsHowANameIsDeclared) {
    const std::string head =
        Marked("ஃ இரட்டிக்கும்\nசெயல் இரட்டி(அ):\n    திரும்பு அ\nஅச்சிடு(இரட்‸டி(1))\n").hover();
    EXPECT_TRUE(holds(head, "செயல் இரட்டி(அ)")) << head;
    EXPECT_TRUE(holds(head, "இரட்டிக்கும்"));
    EXPECT_TRUE(
        holds(Marked("கட்டமைப்பு பறவை:\n    சிறகு = 2\nகிளி = பற‸வை()\nஅச்சிடு(கிளி.சிறகு)\n").hover(),
              "கட்டமைப்பு பறவை"));
}

constexpr const char* kApplication =
    "வலைதளம் தளம்(\n    தலைமை(இணைய_தலைப்பு: \"அ\")\n    குமரி(\n        நெடுவரிசை(இடைவெளி: 16)(\n"
    "            உரைபெட்டி(அடையாளம்: \"ஊர்ப்பெயர்\", குறிப்பு: \"ஊர்\")\n"
    "            பொத்தான்(\"சொல்\", அழுத்தினால்: வினை(): சொல்லிவிடு())\n        )\n    )\n    வரையறை(\n"
    "        செயல் சொல்லிவிடு():\n            அச்சிடு(ஊர்ப்பெயர்.உரைதரவு)\n    )\n)\n";

std::string applicationWith(const char* word, const char* marked) {
    std::string text = kApplication;
    const std::size_t at = text.find(word);
    return text.replace(at, std::string(word).size(), marked);
}

TEST(HoverAnswer, TellsAPropertyOfTheWidgetAroundIt) {
    const std::string hint = Marked(applicationWith("குறிப்பு:", "குறி‸ப்பு:")).hover();
    EXPECT_TRUE(holds(hint, "மதிப்பு")) << hint;
    EXPECT_TRUE(holds(Marked(applicationWith("உரைபெட்டி(", "உரைபெட்‸டி(")).hover(),
                      "எழுத்தைத் தட்டச்சு செய்யும் பெட்டி"));
}

/// One word means one thing in the head and another in a widget.
TEST(HoverAnswer, TellsTheMeaningOfTheVeryWidget) {
    const std::string inHead =
        Marked(applicationWith("இணைய_தலைப்பு: \"அ\"", "பின்‸னணி: \"#FFFFFF\"")).hover();
    EXPECT_TRUE(holds(inHead, "பக்கத்தின் பின்னணி நிறம்")) << inHead;
    EXPECT_TRUE(holds(inHead, "எழுதாவிட்டால்"));
    const std::string inWidget =
        Marked(applicationWith("குறிப்பு: \"ஊர்\"", "பின்‸னணி: \"#FFFFFF\"")).hover();
    EXPECT_TRUE(holds(inWidget, "பெட்டியின் நிறம்")) << inWidget;
}

TEST(HoverAnswer, TellsAFindingWhole) {
    const std::string told = Marked("அச்சிடு(“அ‸”)\n").hover();
    const std::string atPlace = Marked("அச்சிடு(‸“அ”)\n").hover();
    EXPECT_TRUE(holds(atPlace, "துணை-112")) << atPlace << told;
}

// ---- Structure ----

TEST(SymbolAnswer, IsATree) {
    Marked marked(
        "எண்ணி = 1\nகட்டமைப்பு பறவை:\n    சிறகு = 2\n    செயல் பாடு(தான்):\n        விடு\n"
        "வகை நிறங்கள்:\n    சிவப்பு\n    பச்சை\nவிடு\nசெயல் ஆடு():\n    விடு\n");
    const Json symbols = marked.ask("documentSymbol");
    ASSERT_EQ(symbols.size(), 4U) << symbols.dump();
    EXPECT_EQ(symbols[0]["name"], "எண்ணி");
    EXPECT_EQ(symbols[1]["name"], "பறவை");
    EXPECT_EQ(symbols[1]["children"].size(), 2U);
    EXPECT_EQ(symbols[1]["children"][1]["name"], "பாடு");
    EXPECT_EQ(symbols[2]["children"][1]["name"], "பச்சை");
    EXPECT_EQ(symbols[3]["name"], "ஆடு");
    EXPECT_EQ(symbols[3]["range"]["end"]["line"], 10);
}

TEST(SymbolAnswer, HoldsTheWidgetsOfAnApplication) {
    const Json symbols = Marked(kApplication).ask("documentSymbol");
    ASSERT_EQ(symbols.size(), 1U) << symbols.dump();
    EXPECT_EQ(symbols[0]["name"], "தளம்");
    const Json& sections = symbols[0]["children"];
    ASSERT_EQ(sections.size(), 3U) << sections.dump();
    EXPECT_EQ(sections[1]["children"][0]["children"][1]["name"], "பொத்தான்");
    EXPECT_EQ(sections[2]["children"][0]["name"], "சொல்லிவிடு");
}

TEST(SymbolAnswer, ServesHalfOfASource) {
    const Json symbols = Marked("செயல் ஆடு(அ\n    விடு\nசெயல்\nகட்டமைப்பு பற").ask("documentSymbol");
    ASSERT_EQ(symbols.size(), 2U) << symbols.dump();
    EXPECT_EQ(symbols[1]["name"], "பற");
}

TEST(FoldingAnswer, FoldsBlocksBracketsAndComments) {
    Marked marked(
        "ஃ ஒன்று\nஃ இரண்டு\nஎனில் மெய்:\n    சுற்று பொய்:\n        விடு\n\nஅட்டவணை = {\n    \"அ\": 1\n}\n");
    std::string lines;
    for (const Json& range : marked.ask("foldingRange")) {
        lines += range["startLine"].dump() + "-" + range["endLine"].dump() + " ";
    }
    EXPECT_EQ(lines, "0-1 2-4 3-4 6-7 ");
}

// ---- Names ----

TEST(DefinitionAnswer, LeadsToTheDeclaration) {
    EXPECT_EQ(Marked::starts(Marked("செயல் பாடு(அ):\n    அச்சிடு(அ)\nபா‸டு(1)\n").ask("definition")),
              "0:6");
    EXPECT_EQ(Marked::starts(Marked("செயல் பாடு(அ):\n    அச்சிடு(அ‸)\nபாடு(1)\n").ask("definition")),
              "0:11");
    EXPECT_EQ(Marked::starts(Marked("எண்ணி = 1\nஎண்ணி = 2\nஅச்சிடு(எண்‸ணி)\n").ask("definition")),
              "0:0");
    EXPECT_EQ(Marked::starts(Marked("அச்சிடு(நீள‸ம்(\"அ\"))\n").ask("definition")), "");
}

/// A source that is refused is read by its words.
TEST(DefinitionAnswer, ServesARefusedSource) {
    EXPECT_EQ(Marked::starts(Marked("செயல் பாடு(அ):\n    அச்சிடு(அ)\nபா‸டு(1\n").ask("definition")),
              "0:6");
    EXPECT_EQ(Marked::starts(Marked("செயல் பாடு(அ):\n    அச்சிடு(அ‸\nபாடு(1)\n").ask("definition")),
              "0:11");
}

TEST(ReferenceAnswer, TellsLocalsFromShared) {
    const char* text =
        "அ = 1\nசெயல் பாடு(அ):\n    அச்சிடு(அ‸)\nஒவ்வொன்றாக ஆ இல் வரம்பு(3):\n    அச்சிடு(ஆ)\nஅச்சிடு(அ)\n";
    EXPECT_EQ(Marked::starts(Marked(text).ask("references")), "1:11 2:12");
    EXPECT_EQ(
        Marked::starts(
            Marked("அ‸ = 1\nசெயல் பாடு(அ):\n    அச்சிடு(அ)\nஅச்சிடு(அ)\nபாடு(அ)\n").ask("references")),
        "0:0 3:8 4:5");
}

/// A function doesn't see the loop variables around it.
TEST(ReferenceAnswer, KeepsFunctionsApartFromTheLoopAroundThem) {
    EXPECT_EQ(Marked::starts(
                  Marked("ஒவ்வொன்றாக ஆ இல் வரம்பு(3):\n    செயல் பாடு():\n        அச்சிடு(ஆ)\nஆ‸ = 1\n")
                      .ask("references")),
              "2:16 3:0");
}

TEST(ReferenceAnswer, FindsMembersEnumerationsAndTextsThatAreNames) {
    EXPECT_EQ(Marked::starts(Marked("கட்டமைப்பு பறவை:\n    சிற‸கு = 2\nகிளி = பறவை()\nகிளி.சிறகு = "
                                    "3\nஅச்சிடு(கிளி.சிறகு, {\"சிறகு\": 1})\n")
                                 .ask("references")),
              "1:4 3:5 4:13");
    EXPECT_EQ(
        Marked::starts(Marked("வகை நிறங்கள்:\n    சிவந்தது\n    பசுமை\nவிடு\nஅச்சிடு(நிறங்கள்.பசு‸மை)\n")
                           .ask("references")),
        "2:4 4:17");
    EXPECT_EQ(Marked::starts(Marked(applicationWith("(ஊர்ப்பெயர்.", "(ஊர்ப்‸பெயர்.")).ask("references")),
              "4:33 10:20");
}

TEST(HighlightAnswer, TellsWritingFromReading) {
    const Json list = Marked("எண்ணி = 1\nஅச்சிடு(எண்ணி‸)\n").ask("documentHighlight");
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0]["kind"], 3);
    EXPECT_EQ(list[1]["kind"], 2);
}

TEST(RenameAnswer, WritesTheNewNameEverywhere) {
    EXPECT_EQ(Marked("செயல் பாடு(அ):\n    அச்சிடு(அ)\nபா‸டு(1)\n").renamed("பாடல்"),
              "செயல் பாடல்(அ):\n    அச்சிடு(அ)\nபாடல்(1)\n");
    EXPECT_EQ(Marked("அ = 1\nசெயல் பாடு(அ‸):\n    அச்சிடு(அ)\nபாடு(அ)\n").renamed("மதிப்பு"),
              "அ = 1\nசெயல் பாடு(மதிப்பு):\n    அச்சிடு(மதிப்பு)\nபாடு(அ)\n");
    const std::string renamed =
        Marked(applicationWith("(ஊர்ப்பெயர்.", "(ஊர்ப்‸பெயர்.")).renamed("நகர்ப்பெயர்");
    EXPECT_TRUE(holds(renamed, "அடையாளம்: \"நகர்ப்பெயர்\"")) << renamed;
    EXPECT_TRUE(holds(renamed, "நகர்ப்பெயர்.உரைதரவு"));
}

TEST(RenameAnswer, RefusesWhatTheProgramCouldntTake) {
    const char* text = "எண்ணி‸ = 1\nமற்றது = 2\nஅச்சிடு(எண்ணி, மற்றது)\n";
    for (const char* name : {"எனில்", "நீளம்", "மற்றது", "ஒரு பெயர்", "", "1அ", "அ-ஆ", "சுற்றி", "\""}) {
        const std::string refusal = Marked(text).renamed(name);
        EXPECT_TRUE(holds(refusal, "பெய") || holds(refusal, "சொல்")) << name << ": " << refusal;
        EXPECT_FALSE(holds(refusal, "அச்சிடு(")) << name;
    }
}

TEST(RenameAnswer, RefusesWhatIsNoNameOfTheProgram) {
    for (const char* text : {"அச்சிடு(நீள‸ம்(\"அ\"))\n", "எனி‸ல் மெய்:\n    விடு\n",
                             "அச்சிடு(\"எண்‸ணி\")\n", "அச்சிடு(திரை_அக‸லம்)\n", "எண்‸ணி = (1\n"}) {
        const Json answer = Marked(text).ask("prepareRename");
        ASSERT_TRUE(answer.contains("message")) << text << answer.dump();
        EXPECT_FALSE(answer["message"].get<std::string>().empty());
    }
    const Json ready = Marked("எண்‸ணி = 1\n").ask("prepareRename");
    EXPECT_EQ(ready["placeholder"], "எண்ணி");
}

// ---- Calls ----

TEST(SignatureAnswer, ServesOwnFunctionsAndBuiltIns) {
    const std::string head = "செயல் சேர்த்திடு(அ, மாற்று ஆ):\n    விடு\n";
    const Json own = Marked(head + "அச்சிடு(சேர்த்திடு(1, ‸").ask("signatureHelp");
    ASSERT_FALSE(own.is_null());
    EXPECT_EQ(own["signatures"][0]["label"], "சேர்த்திடு(அ, மாற்று ஆ)");
    EXPECT_EQ(own["signatures"][0]["parameters"][1]["label"], "மாற்று ஆ");
    EXPECT_EQ(own["activeParameter"], 1);
    const Json builtin = Marked("பதில்(\"அ\", ‸)\n").ask("signatureHelp");
    ASSERT_FALSE(builtin.is_null());
    EXPECT_EQ(builtin["signatures"][0]["parameters"].size(), 3U);
    EXPECT_EQ(builtin["activeParameter"], 1);
    EXPECT_TRUE(Marked("எண்ணி = (1 கூட்டு ‸2)\n").ask("signatureHelp").is_null());
    EXPECT_TRUE(Marked("செயல் பாடு(அ‸):\n    விடு\n").ask("signatureHelp").is_null());
}

TEST(SignatureAnswer, LeavesTheReceiverOfAMethodOut) {
    const Json method =
        Marked("கட்டமைப்பு பறவை:\n    செயல் பாடு(தான், ஒலி):\n        விடு\nகிளி = பறவை()\nகிளி.பாடு(‸")
            .ask("signatureHelp");
    ASSERT_FALSE(method.is_null());
    EXPECT_EQ(method["signatures"][0]["label"], "பாடு(ஒலி)");
}

TEST(SignatureAnswer, KnowsHowAStructureIsMade) {
    const Json made =
        Marked(
            "கட்டமைப்பு பறவை:\n    ஒலி = 1\n    செயல் துவக்கம்(தான், சத்தம்):\n        தான்.ஒலி = சத்தம்\n"
            "கிளி = பறவை(‸")
            .ask("signatureHelp");
    ASSERT_FALSE(made.is_null());
    EXPECT_EQ(made["signatures"][0]["label"], "பறவை(சத்தம்)");
}

// ---- Colours ----

TEST(SemanticAnswer, FollowsTheSource) {
    Marked marked(
        "செயல் பாடு(அ):\n    அச்சிடு(அ, \"இ\\n\") ஃ உரை\nவகை நிறங்கள்:\n    சிவந்தது\nவிடு\nவேறு(1)\n");
    const Json data = marked.ask("semanticTokens/full")["data"];
    ASSERT_EQ(data.size() % 5, 0U);
    const companion::language_server::TextPlaces places(marked.source);
    const std::vector<std::string> types = {"keyword",   "operator", "function",   "struct",
                                            "interface", "enum",     "enumMember", "variable",
                                            "parameter", "property", "string",     "number",
                                            "comment",   "class",    "method"};
    std::string told;
    int line = 0;
    int character = 0;
    for (std::size_t at = 0; at < data.size(); at += 5) {
        const int lines = data[at];
        line += lines;
        character = lines == 0 ? character + data[at + 1].get<int>() : data[at + 1].get<int>();
        const companion::Range range =
            places.rangeOf({{line, character}, {line, character + data[at + 2].get<int>()}});
        told += marked.source.substr(range.begin, range.end - range.begin) + "=" +
                types.at(data[at + 3]) + (data[at + 4] == 1 ? "! " : " ");
    }
    EXPECT_EQ(told,
              "செயல்=keyword பாடு=function! அ=parameter! அச்சிடு=keyword அ=parameter "
              "\"இ\\n\"=string ஃ உரை=comment வகை=keyword நிறங்கள்=enum! சிவந்தது=enumMember! "
              "விடு=keyword வேறு=function 1=number ");
}

TEST(SemanticAnswer, KeepsEachTokenInItsLine) {
    Marked marked("ஃஃ ஒன்று\nஇரண்டு ஃஃ\nஅச்சிடு(1)\n");
    const Json data = marked.ask("semanticTokens/full")["data"];
    EXPECT_EQ(data[5], 1) << "the comment goes on in the next line as a token of its own";
}

// ---- Changes ----

TEST(FormattingAnswer, ChangesTheLinesThatDiffer) {
    Marked marked("அ = 1\nஆ=2\nஅச்சிடு(அ,ஆ)\nஇ = 3\n");
    const Json edits = marked.ask("formatting", {{"options", Json::object()}});
    ASSERT_EQ(edits.size(), 1U);
    EXPECT_EQ(edits[0]["range"]["start"]["line"], 1);
    EXPECT_EQ(edits[0]["range"]["end"]["line"], 3);
    std::string text = marked.source;
    Marked::apply(edits[0], text);
    EXPECT_EQ(text, "அ = 1\nஆ = 2\nஅச்சிடு(அ, ஆ)\nஇ = 3\n");
    EXPECT_EQ(Marked("அ = 1\n").ask("formatting"), Json::array());
    EXPECT_TRUE(Marked("அ = \"\n").ask("formatting").is_null()) << "left alone";
}

std::string fixed(const std::string& text) {
    Marked marked(text);
    const Json range = {{"start", {{"line", 0}, {"character", 0}}},
                        {"end", {{"line", 100}, {"character", 0}}}};
    const Json actions =
        marked.ask("codeAction", {{"range", range}, {"context", {{"diagnostics", Json::array()}}}});
    if (actions.empty()) return "";
    EXPECT_EQ(actions[0]["kind"], "quickfix");
    EXPECT_FALSE(actions[0]["title"].get<std::string>().empty());
    std::string result = marked.source;
    Marked::apply(actions[0]["edit"]["changes"][kDocument][0], result);
    return result;
}

TEST(QuickFixAnswer, WritesWhatWasMeant) {
    EXPECT_EQ(fixed("சுற்றி பொய்:\n    விடு\n"), "சுற்று பொய்:\n    விடு\n");
    EXPECT_EQ(fixed("எனில் மெய்\n    விடு\n"), "எனில் மெய்:\n    விடு\n");
    EXPECT_EQ(fixed("அச்சிடு(1\n"), "அச்சிடு(1)\n");
    EXPECT_EQ(fixed("அச்சிடு(“அ”)\n"), "அச்சிடு(\"அ\")\n");
    EXPECT_EQ(fixed("எனில் மெய்:\n\tவிடு\n"), "எனில் மெய்:\n    விடு\n");
    EXPECT_EQ(fixed("அச்\u200Bசிடு(1)\n"), "அச்சிடு(1)\n");
    EXPECT_EQ(fixed("அச்சிடு(1)\n"), "");
}

TEST(QuickFixAnswer, KeepsToThePlaceAndTheKindAskedFor) {
    Marked marked("அச்சிடு(1)\nஅச்சிடு(“அ”)\n");
    const auto ask = [&](int line, const Json& context) {
        const Json range = {{"start", {{"line", line}, {"character", 0}}},
                            {"end", {{"line", line}, {"character", 30}}}};
        return marked.ask("codeAction", {{"range", range}, {"context", context}}).size();
    };
    EXPECT_EQ(ask(0, Json::object()), 0U);
    EXPECT_GE(ask(1, Json::object()), 1U);
    EXPECT_EQ(ask(1, {{"only", {"refactor"}}}), 0U);
    EXPECT_GE(ask(1, {{"only", {"quickfix"}}}), 1U);
}

}  // namespace
