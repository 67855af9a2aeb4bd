// Completion through the protocol: items, ranges, what the client can do, settings.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "client.h"
#include "companion/language_server/uris.h"

namespace {

using Json = Client::Json;

constexpr const char* kOpened = "untitled:completed";

Json capable(bool knowsSnippets) {
    return {{"textDocument",
             {{"completion",
               {{"completionItem",
                 {{"snippetSupport", knowsSnippets},
                  {"insertTextModeSupport", {{"valueSet", {1, 2}}}}}}}}}}};
}

/// A client that begins with these options.
class Completed {
public:
    explicit Completed(const Json& capabilities = capable(true), const Json& options = nullptr)
        : client(false) {
        told = client.ask("initialize",
                          {{"capabilities", capabilities}, {"initializationOptions", options}});
        client.tell("initialized", Json::object());
    }
    Json listAt(const std::string& text, int line, int character) {
        client.open(kOpened, text, ++version);
        return client.ask("textDocument/completion", Client::at(kOpened, line, character));
    }
    Json first(const std::string& text, int line, int character) {
        const Json list = listAt(text, line, character);
        return list["items"].empty() ? Json() : list["items"][0];
    }

    Client client;
    Json told;

private:
    int version = 0;
};

TEST(CompletionAnswer, TellsThatItIsThere) {
    EXPECT_TRUE(Completed().told["capabilities"].contains("completionProvider"));
}

TEST(CompletionAnswer, OffersASnippetForWhatWasTyped) {
    Completed completed;
    const Json list = completed.listAt("அ = \"😀\"\nif\n", 1, 2);
    EXPECT_EQ(list["isIncomplete"], true);
    const Json& item = list["items"][0];
    EXPECT_EQ(item["label"], "எனில்");
    EXPECT_EQ(item["filterText"], "if");
    EXPECT_EQ(item["kind"], 14);
    EXPECT_EQ(item["insertTextFormat"], 2);
    EXPECT_EQ(item["insertTextMode"], 2);
    EXPECT_EQ(item["textEdit"]["newText"], "எனில் ${1:நிபந்தனை}:\n    $0");
    EXPECT_EQ(item["textEdit"]["range"],
              Json::parse(R"({"start":{"line":1,"character":0},"end":{"line":1,"character":2}})"));
    EXPECT_FALSE(item["documentation"].get<std::string>().empty());
}

TEST(CompletionAnswer, CountsPlacesInUnits) {
    const Json item = Completed().first("அ = \"😀\" inai\n", 0, 13);
    EXPECT_EQ(item["label"], "இணை");
    EXPECT_EQ(item["textEdit"]["range"]["start"]["character"], 9);
    EXPECT_EQ(item["textEdit"]["range"]["end"]["character"], 13);
}

TEST(CompletionAnswer, WritesPlainTextForOneThatKnowsNoSnippets) {
    const Json item = Completed(capable(false)).first("if", 0, 2);
    EXPECT_EQ(item["textEdit"]["newText"], "எனில்");
    EXPECT_FALSE(item.contains("insertTextFormat"));
    EXPECT_FALSE(item.contains("insertTextMode"));
    EXPECT_EQ(Completed(Json::object()).first("if", 0, 2)["textEdit"]["newText"], "எனில்");
}

TEST(CompletionAnswer, AQuoteOpensNoListWhereItEndsAText) {
    Completed completed;
    const auto countAt = [&](int character, const Json& context) {
        Json params = Client::at(kOpened, 0, character);
        params["context"] = context;
        return completed.client.ask("textDocument/completion", params)["items"].size();
    };
    completed.client.open(kOpened, "நிகழ்(\"அ\"");
    const Json quote = {{"triggerKind", 2}, {"triggerCharacter", "\""}};
    EXPECT_EQ(countAt(9, quote), 0U);
    EXPECT_GT(countAt(9, {{"triggerKind", 1}}), 0U);
    completed.client.open(kOpened, "பெட்டி(பெட்டி_பாணி(நிறம்: \"", 2);
    EXPECT_GT(countAt(27, quote), 0U);
}

TEST(CompletionAnswer, TransliterationIsASetting) {
    const std::string text = "ஃ vanakkam";
    EXPECT_EQ(Completed().first(text, 0, 10)["label"], "வணக்கம்");
    for (const char* options :
         {R"({"transliteration": false})", R"({"pozhil": {"transliteration": false}})"}) {
        Completed completed(capable(true), Json::parse(options));
        EXPECT_TRUE(completed.listAt(text, 0, 10)["items"].empty());
        const Json on = {{"settings", {{"pozhil", {{"transliteration", true}}}}}};
        completed.client.tell("workspace/didChangeConfiguration", on);
        EXPECT_EQ(completed.first(text, 0, 10)["label"], "வணக்கம்");
    }
}

TEST(CompletionAnswer, AsksForSettingsWhereTheClientTellsThem) {
    Json capabilities = capable(true);
    capabilities["workspace"] = {{"configuration", true}};
    Client client(false);
    client.ask("initialize", {{"capabilities", capabilities}});
    client.queue("initialized", Json::object());
    Json question;
    for (const Json& message : client.settle()) {
        if (message.value("method", "") == "workspace/configuration") question = message;
    }
    ASSERT_FALSE(question.is_null());
    EXPECT_EQ(question["params"]["items"][0]["section"], "pozhil");
    Json answer = {{"jsonrpc", "2.0"}, {"id", question["id"]}};
    answer["result"] = Json::array({{{"transliteration", false}}});
    EXPECT_TRUE(client.takeBody(answer.dump()).empty());
    client.open(kOpened, "ஃ vanakkam");
    const Json list = client.ask("textDocument/completion", Client::at(kOpened, 0, 10));
    EXPECT_TRUE(list["items"].empty());
    // What can't be read changes nothing.
    for (const Json& result : {Json(), Json::array(), Json::array({1}), Json::object()}) {
        answer["result"] = result;
        client.takeBody(answer.dump());
    }
    EXPECT_TRUE(client.ask("textDocument/completion", Client::at(kOpened, 0, 10))["items"].empty());
}

TEST(CompletionAnswer, FindsTheModulesBesideTheDocument) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::u8path(testing::TempDir()) / fs::u8path("நிறைவு_நூல்கள்");
    fs::remove_all(folder);
    fs::create_directories(folder);
    std::ofstream(folder / fs::u8path("கணக்குநூல்.பொழில்")) << "செயல் இரட்டிப்பு(அ):\n    விடு\n";
    const std::string uri =
        companion::language_server::uriOfPath((folder / fs::u8path("நிரல்.பொழில்")).u8string());
    Completed completed;
    completed.client.open(uri, "நூஇறக்கி \"\nநூஇறக்கி \"கணக்குநூல்\"\nirat\n");
    const auto labels = [&](int line, int character) {
        std::vector<std::string> all;
        const Json list =
            completed.client.ask("textDocument/completion", Client::at(uri, line, character));
        for (const Json& item : list["items"]) all.push_back(item["label"]);
        return all;
    };
    const auto paths = labels(0, 10);
    EXPECT_NE(std::find(paths.begin(), paths.end(), "கணக்குநூல்"), paths.end());
    EXPECT_EQ(labels(2, 4).at(0), "இரட்டிப்பு");
    fs::remove_all(folder);
}

TEST(CompletionAnswer, KnowsNothingOfADocumentThatIsNotOpen) {
    Completed completed;
    EXPECT_TRUE(completed.client.ask("textDocument/completion", Client::at("untitled:other", 0, 0))
                    .is_null());
}

}  // namespace
