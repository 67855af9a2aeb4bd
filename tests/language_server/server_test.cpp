// The server's life, its messages, and when it checks.
#include "companion/language_server/server.h"

#include <gtest/gtest.h>

#include "client.h"

namespace {

using Json = Client::Json;
namespace codes = companion::language_server::codes;

constexpr const char* kUri = "untitled:one";

int codeOf(const Json& error) { return error.is_object() ? error.value("code", 0) : 0; }

// ---- Life ----

TEST(Server, AsksForInitializeFirst) {
    Client client(false);
    EXPECT_EQ(codeOf(client.ask("textDocument/hover", client.at(kUri, 0, 0))),
              codes::kServerNotInitialized);
    client.open(kUri, "அச்சிடு(");
    EXPECT_TRUE(client.settle().empty()) << "notices before it are passed over";
    EXPECT_TRUE(client.ask("initialize", Json::object()).contains("capabilities"));
    EXPECT_EQ(codeOf(client.ask("initialize", Json::object())), codes::kInvalidRequest);
}

TEST(Server, EndsWellOnlyBehindShutdown) {
    Client polite;
    EXPECT_TRUE(polite.ask("shutdown", nullptr).is_null());
    EXPECT_EQ(codeOf(polite.ask("textDocument/hover", polite.at(kUri, 0, 0))),
              codes::kInvalidRequest);
    polite.tell("exit", nullptr);
    polite.settle();
    EXPECT_TRUE(polite.server.hasEnded());
    EXPECT_EQ(polite.server.status(), 0);

    Client abrupt;
    abrupt.tell("exit", nullptr);
    abrupt.settle();
    EXPECT_TRUE(abrupt.server.hasEnded());
    EXPECT_EQ(abrupt.server.status(), 1);
}

TEST(Server, TellsWhatItCan) {
    Client client(false);
    const Json can = client.ask("initialize", Json::object())["capabilities"];
    EXPECT_EQ(can["positionEncoding"], "utf-16");
    EXPECT_EQ(can["textDocumentSync"]["change"], 2);
    for (const char* name :
         {"hoverProvider", "definitionProvider", "referencesProvider", "documentHighlightProvider",
          "documentSymbolProvider", "foldingRangeProvider", "renameProvider",
          "documentFormattingProvider"}) {
        EXPECT_EQ(can[name], true) << name;
    }
}

// ---- Messages ----

TEST(Server, AnswersWhatIsNoMessage) {
    Client client;
    const struct {
        const char* body;
        int code;
    } cases[] = {
        {"", codes::kParseError},
        {"{", codes::kParseError},
        {"\xFF\xFE", codes::kParseError},
        {"[]", codes::kInvalidRequest},
        {"7", codes::kInvalidRequest},
        {"{}", codes::kInvalidRequest},
        {"{\"id\":1}", codes::kInvalidRequest},
        {"{\"id\":1,\"method\":5}", codes::kInvalidRequest},
        {"{\"id\":{},\"method\":\"shutdown\"}", codes::kInvalidRequest},
        {"{\"id\":1,\"method\":\"unknown\"}", codes::kMethodNotFound},
        {"{\"id\":1,\"method\":\"textDocument/hover\"}", codes::kInvalidParams},
        {"{\"id\":1,\"method\":\"textDocument/hover\",\"params\":[1]}", codes::kInvalidParams},
        {"{\"id\":1,\"method\":\"textDocument/hover\",\"params\":{\"textDocument\":{\"uri\":\"a\"},"
         "\"position\":{\"line\":\"x\",\"character\":0}}}",
         codes::kInvalidParams},
    };
    for (const auto& entry : cases) {
        const auto answers = client.takeBody(entry.body);
        ASSERT_EQ(answers.size(), 1U) << entry.body;
        EXPECT_EQ(codeOf(answers[0].value("error", Json())), entry.code) << entry.body;
    }
}

TEST(Server, PassesOverNoticesThatItCantRead) {
    Client client;
    for (const char* body :
         {"{\"method\":\"unknown\"}", "{\"method\":\"textDocument/didOpen\"}",
          "{\"method\":\"textDocument/didChange\",\"params\":{\"textDocument\":{\"uri\":\"x\"}}}",
          "{\"method\":\"textDocument/didOpen\",\"params\":{\"textDocument\":{\"uri\":7}}}",
          "{\"method\":\"$/setTrace\",\"params\":{}}", "{\"id\":5,\"result\":null}",
          "{\"method\":\"$/cancelRequest\"}"}) {
        EXPECT_TRUE(client.takeBody(body).empty()) << body;
    }
}

TEST(Server, StandsNestingWithoutEnd) {
    Client client;
    const std::string deep(200000, '[');
    EXPECT_EQ(client.takeBody(deep).size(), 1U);
    const std::string closed = deep + std::string(deep.size(), ']');
    const auto answers =
        client.takeBody("{\"id\":1,\"method\":\"unknown\",\"params\":" + closed + "}");
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_EQ(codeOf(answers[0]["error"]), codes::kMethodNotFound);
}

TEST(Server, DropsARequestThatIsTakenBack) {
    Client client;
    client.open(kUri, "அச்சிடு(1)\n");
    const Json place = client.at(kUri, 0, 1);
    client.server.take(
        Json({{"id", "a"}, {"method", "textDocument/hover"}, {"params", place}}).dump());
    const auto answers =
        client.takeBody("{\"method\":\"$/cancelRequest\",\"params\":{\"id\":\"a\"}}");
    ASSERT_FALSE(answers.empty());
    EXPECT_EQ(codeOf(answers[0]["error"]), codes::kRequestCancelled);
    client.server.take(
        Json({{"id", "a"}, {"method", "textDocument/hover"}, {"params", place}}).dump());
    EXPECT_TRUE(client.settle().front().contains("result")) << "the next of that id is another";
}

TEST(Server, AnswersNothingForDocumentsThatArentOpen) {
    Client client;
    for (const char* method : {"textDocument/hover", "textDocument/definition",
                               "textDocument/documentSymbol", "textDocument/formatting"}) {
        EXPECT_TRUE(client.ask(method, client.at(kUri, 0, 0)).is_null()) << method;
    }
}

TEST(Server, TakesPlacesThatArentThere) {
    Client client;
    client.open(kUri, "அ = 1\nஅச்சிடு(அ)\n");
    for (const Json& place :
         {client.at(kUri, -1, -1), client.at(kUri, 1000000, 0), client.at(kUri, 0, 1000000)}) {
        for (const char* method : {"textDocument/hover", "textDocument/definition",
                                   "textDocument/references", "textDocument/documentHighlight",
                                   "textDocument/signatureHelp", "textDocument/prepareRename"}) {
            const Json answer = client.ask(method, place);
            EXPECT_NE(codeOf(answer), codes::kInternalError) << method;
            EXPECT_NE(codeOf(answer), codes::kInvalidParams) << method;
        }
    }
    Json huge = client.at(kUri, 0, 0);
    huge["position"]["line"] = std::uint64_t{1} << 63U;
    EXPECT_NE(codeOf(client.ask("textDocument/hover", huge)), codes::kInvalidParams);
}

// ---- Findings ----

TEST(Findings, AreToldAtOnceWhenADocumentOpens) {
    Client client;
    client.open(kUri, "😀 = \"அ\"\nஅச்சிடு(\"அ\" கூட்டு ஆ\n");
    const Json found = client.published(kUri);
    ASSERT_FALSE(found.empty());
    bool isTold = false;
    for (const Json& finding : found) {
        if (finding["code"] != "பொழில்-204") continue;
        isTold = true;
        EXPECT_EQ(finding["severity"], 1);
        EXPECT_EQ(finding["source"], "பொழில்");
        EXPECT_EQ(finding["range"]["start"]["line"], 1);
        EXPECT_FALSE(finding["message"].get<std::string>().empty());
    }
    EXPECT_TRUE(isTold) << found.dump();
}

TEST(Findings, HaveTheirPlaceInUtf16) {
    Client client;
    client.open(kUri, "அச்சிடு(\"😀😀\", “ஆ”)\n");
    const Json found = client.published(kUri);
    bool isTold = false;
    for (const Json& finding : found) {
        if (finding["code"] != "துணை-112") continue;
        isTold = true;
        EXPECT_EQ(finding["range"]["start"]["character"], 16);
        EXPECT_EQ(finding["range"]["end"]["character"], 17);
    }
    EXPECT_TRUE(isTold) << found.dump();
}

TEST(Findings, WaitUntilNobodyTypes) {
    Client client;
    client.open(kUri, "அச்சிடு(1)\n");
    EXPECT_EQ(client.published(kUri), Json::array());
    client.change(kUri, 2, "அச்சிடு(1\n");
    client.pass(std::chrono::milliseconds(100));
    EXPECT_TRUE(client.published(kUri).is_null());
    client.pass(std::chrono::milliseconds(51));
    EXPECT_EQ(client.published(kUri).size(), 1U);
}

/// Two hundred changes in a second.
TEST(Findings, AreFewInAStorm) {
    Client client;
    client.open(kUri, "அச்சிடு(1)\n");
    client.settle();
    const int before = client.publications();
    for (int version = 2; version < 202; version++) {
        client.change(kUri, version, "அச்சிடு(" + std::to_string(version) + ")\n");
        client.pass(std::chrono::milliseconds(5));
        client.settle();
    }
    client.pass(std::chrono::milliseconds(200));
    client.settle();
    EXPECT_GE(client.publications() - before, 1);
    EXPECT_LE(client.publications() - before, 3);
}

TEST(Findings, ComeAtTheLatestWithinASecondOfTyping) {
    Client client;
    client.open(kUri, "அச்சிடு(1)\n");
    client.settle();
    const int before = client.publications();
    for (int version = 2; version < 22; version++) {
        client.change(kUri, version, "அச்சிடு(1\n");
        client.pass(std::chrono::milliseconds(100));
        client.settle();
    }
    EXPECT_GE(client.publications() - before, 1);
}

/// A check is done, and before it is told the text goes on.
TEST(Findings, OfAnOlderTextAreDropped) {
    Client client;
    client.queue("textDocument/didOpen", Client::openingOf(kUri, "அச்சிடு(1\n"));
    const companion::language_server::Moment now{};
    ASSERT_TRUE(client.server.work(now));  // the notice
    ASSERT_TRUE(client.server.work(now));  // the check
    client.change(kUri, 2, "அச்சிடு(1)\n");
    client.settle();
    EXPECT_EQ(client.publications(), 0);
    client.pass(std::chrono::milliseconds(200));
    EXPECT_EQ(client.published(kUri), Json::array());
}

TEST(Findings, AreTakenBackWhenADocumentIsClosed) {
    Client client;
    client.open(kUri, "அச்சிடு(1\n");
    EXPECT_EQ(client.published(kUri).size(), 1U);
    client.tell("textDocument/didClose", {{"textDocument", {{"uri", kUri}}}});
    EXPECT_EQ(client.published(kUri), Json::array());
    client.pass(std::chrono::seconds(2));
    EXPECT_TRUE(client.published(kUri).is_null());
}

TEST(Findings, AreNoMoreThanAnybodyReads) {
    Client client;
    std::string text;
    for (int i = 0; i < 3000; i++) text += "+ ";
    client.open(kUri, text);
    EXPECT_EQ(client.published(kUri).size(), 1000U);
}

// ---- Modules ----

constexpr const char* kMain =
    "file:///nowhere/main.%E0%AE%AA%E0%AF%8A%E0%AE%B4%E0%AE%BF%E0%AE%B2%E0%AF%8D";
constexpr const char* kModule =
    "file:///nowhere/tools.%E0%AE%AA%E0%AF%8A%E0%AE%B4%E0%AE%BF%E0%AE%B2%E0%AF%8D";

TEST(Modules, AreReadFromOpenDocuments) {
    Client client;
    client.open(kMain, "நூஇறக்கி \"tools\"\nபாடு(1)\n");
    EXPECT_EQ(client.published(kMain).at(0)["code"], "பொழில்-281");
    client.open(kModule, "செயல் பாடு(அ):\n    அச்சிடு(அ)\n");
    client.pass(std::chrono::milliseconds(200));
    EXPECT_EQ(client.published(kMain), Json::array()) << "the document is checked anew";
    client.change(kModule, 2, "செயல் பாடு(அ, ஆ):\n    அச்சிடு(அ, ஆ)\n");
    client.pass(std::chrono::milliseconds(200));
    EXPECT_EQ(client.published(kMain).at(0)["code"], "பொழில்-331");
    client.tell("textDocument/didClose", {{"textDocument", {{"uri", kModule}}}});
    client.pass(std::chrono::milliseconds(200));
    EXPECT_EQ(client.published(kMain).at(0)["code"], "பொழில்-281");
}

/// The scanner stops at an open text before anything is imported.
TEST(Modules, AreKnownWhileALineIsBeingWritten) {
    Client client;
    client.open(kModule, "செயல் பாடு(அ):\n    அச்சிடு(அ)\n");
    client.open(kMain, "நூஇறக்கி \"tools\"\nபாடு(1)\n");
    client.change(kMain, 2, "நூஇறக்கி \"tools\"\nபாடு(\"\n");
    const Json place = Client::at(kMain, 1, 5);
    const Json help = client.ask("textDocument/signatureHelp", place);
    ASSERT_FALSE(help.is_null());
    EXPECT_EQ(help["signatures"][0]["label"], "பாடு(அ)");
    const Json definition = client.ask("textDocument/definition", Client::at(kMain, 1, 1));
    ASSERT_EQ(definition.size(), 1U);
    EXPECT_EQ(definition[0]["uri"], kModule);
}

TEST(Modules, AreRenamedTogetherWithTheirImporters) {
    Client client;
    client.open(kModule, "செயல் பாடு(அ):\n    அச்சிடு(அ)\n");
    client.open(kMain, "நூஇறக்கி \"tools\"\nபாடு(1)\n");
    for (const char* uri : {kModule, kMain}) {
        Json params = uri == kMain ? Client::at(kMain, 1, 1) : Client::at(kModule, 0, 7);
        params["newName"] = "பாடல்";
        const Json changes = client.ask("textDocument/rename", params)["changes"];
        ASSERT_EQ(changes.size(), 2U) << uri;
        EXPECT_EQ(changes[kModule][0]["range"]["start"]["character"], 6);
        EXPECT_EQ(changes[kMain][0]["range"]["start"]["line"], 1);
    }
    Json local = Client::at(kModule, 0, 12);
    local["newName"] = "பாடல்";
    EXPECT_EQ(client.ask("textDocument/rename", local)["changes"].size(), 1U);
}

/// A module of the library is found by its absolute path: nobody's to change.
TEST(Modules, OfTheLibraryKeepTheirNames) {
    Client client;
    client.open(kModule, "செயல் பாடு(அ):\n    அச்சிடு(அ)\n");
    client.open(kMain, "நூஇறக்கி \"/nowhere/tools\"\nபாடு(1)\n");
    const Json refused = client.ask("textDocument/prepareRename", Client::at(kMain, 1, 1));
    ASSERT_TRUE(refused.contains("message")) << refused.dump();
    EXPECT_NE(refused["message"].get<std::string>().find("நூலில்"), std::string::npos);
}

TEST(Modules, MayImportEachOther) {
    Client client;
    client.open(kMain, "நூஇறக்கி \"tools\"\nசெயல் ஆடு():\n    அச்சிடு(1)\nபாடு()\n");
    client.open(kModule, "நூஇறக்கி \"main\"\nசெயல் பாடு():\n    அச்சிடு(2)\n");
    client.pass(std::chrono::milliseconds(200));
    // Each brings the other's functions and its own once more.
    EXPECT_EQ(client.published(kModule).at(0)["code"], "துணை-308");
    EXPECT_EQ(client.published(kMain).at(0)["code"], "துணை-308");
}

TEST(Modules, TellTheirFaultAtTheImport) {
    Client client;
    client.open(kModule, "செயல் பாடு(:\n");
    client.open(kMain, "அ = 1\nநூஇறக்கி \"tools\"\n");
    const Json found = client.published(kMain);
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found[0]["range"]["start"]["line"], 1);
}

}  // namespace
