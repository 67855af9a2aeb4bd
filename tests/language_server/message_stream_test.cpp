#include "companion/language_server/message_stream.h"

#include <gtest/gtest.h>

#include "companion/language_server/json_repair.h"

namespace {

using companion::language_server::framed;
using companion::language_server::MessageStream;
using companion::language_server::repairedJson;

TEST(MessageStream, TellsTheLengthInBytes) {
    EXPECT_EQ(framed("\"அ\""), "Content-Length: 5\r\n\r\n\"அ\"");
}

TEST(MessageStream, CutsWhateverWayTheBytesCome) {
    const std::string bytes = framed("{\"அ\":1}") + framed("") + framed("[2]");
    for (std::size_t step = 1; step <= bytes.size(); step++) {
        MessageStream stream;
        std::vector<std::string> bodies;
        for (std::size_t at = 0; at < bytes.size(); at += step) {
            stream.feed(std::string_view(bytes).substr(at, step));
            while (auto body = stream.next()) bodies.push_back(*body);
        }
        ASSERT_EQ(bodies.size(), 3U) << step;
        EXPECT_EQ(bodies[0], "{\"அ\":1}");
        EXPECT_EQ(bodies[1], "");
        EXPECT_EQ(bodies[2], "[2]");
    }
}

TEST(MessageStream, ReadsHeadsOfAnyKind) {
    MessageStream stream;
    stream.feed("Content-Type: a/b; charset=utf-8\r\ncontent-LENGTH:  2 \r\n\r\n{}");
    EXPECT_EQ(stream.next(), "{}");
    EXPECT_EQ(stream.next(), std::nullopt);
}

TEST(MessageStream, GoesOnBehindABrokenHead) {
    for (const char* head : {"Content-Length: -5", "Content-Length: abc",
                             "Content-Length:", "Content-Length: 99999999999999999999",
                             "Content-Length: 999999999", "Something: else", ""}) {
        MessageStream stream;
        stream.feed(std::string(head) + "\r\n\r\n" + framed("{}"));
        EXPECT_EQ(stream.next(), "") << head;
        EXPECT_EQ(stream.next(), "{}") << head;
    }
}

/// What is no head at all isn't kept for ever.
TEST(MessageStream, DropsWhatHasNoHead) {
    MessageStream stream;
    stream.feed(std::string(MessageStream::kLongestHead + 1, 'x'));
    EXPECT_EQ(stream.next(), "");
    EXPECT_EQ(stream.next(), std::nullopt);
    stream.feed(framed("{}"));
    EXPECT_EQ(stream.next(), "{}");
}

TEST(JsonRepair, LeavesSoundTextAlone) {
    for (const char* text :
         {"", "{\"அ\": \"\\u0b85 \\ud83d\\ude00 \\\\ud83d \\\" 😀\"}", "[\"\\n\"]"}) {
        EXPECT_EQ(repairedJson(text), text);
    }
}

/// Half a pair is one unit of UTF-16, and so is what replaces it.
TEST(JsonRepair, ReplacesHalvesOfPairs) {
    EXPECT_EQ(repairedJson("\"\\ud83dx\""), "\"\\ufffdx\"");
    EXPECT_EQ(repairedJson("\"\\ude00\""), "\"\\ufffd\"");
    EXPECT_EQ(repairedJson("\"\\ude00\\ude00\""), "\"\\ufffd\\ufffd\"");
    EXPECT_EQ(repairedJson("\"\\ud83d\\ud83d\\ude00\""), "\"\\ufffd\\ud83d\\ude00\"");
    EXPECT_EQ(repairedJson("\"\\\\\\ud83d\""), "\"\\\\\\ufffd\"");
}

TEST(JsonRepair, ReplacesWhatIsNoUtf8) {
    EXPECT_EQ(repairedJson("\"\xFF\""), "\"\uFFFD\"");
    EXPECT_EQ(repairedJson("\"\xE0\xAE\""), "\"\uFFFD\uFFFD\"");
    EXPECT_EQ(repairedJson("\"\xED\xA0\x80\""), "\"\uFFFD\uFFFD\uFFFD\"") << "a surrogate";
    EXPECT_EQ(repairedJson("\"\xC0\x80\""), "\"\uFFFD\uFFFD\"") << "longer than need be";
    EXPECT_EQ(repairedJson("\"\\\xE0\xAE\x85\""), "\"\\\xE0\xAE\x85\"");
}

}  // namespace
