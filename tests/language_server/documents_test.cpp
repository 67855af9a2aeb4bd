#include "companion/language_server/documents.h"

#include <gtest/gtest.h>

#include "companion/language_server/uris.h"

namespace {

using companion::language_server::Document;
using companion::language_server::folderOf;
using companion::language_server::pathOfUri;
using companion::language_server::Position;
using companion::language_server::PositionRange;
using companion::language_server::TextChange;
using companion::language_server::tidyPath;
using companion::language_server::uriOfPath;

TextChange change(Position start, Position end, const char* text) {
    return {PositionRange{start, end}, text};
}

TEST(Documents, ChangeBehindWideCharacters) {
    Document document("untitled:1", 1, "அ😀ஆ = 1\n");
    document.change(2, {change({0, 3}, {0, 4}, "எண்")});
    EXPECT_EQ(*document.text(), "அ😀எண் = 1\n");
    EXPECT_EQ(document.version(), 2);
}

TEST(Documents, EachChangeSeesTheOneBefore) {
    Document document("untitled:1", 1, "ab");
    document.change(2, {change({0, 1}, {0, 1}, "\n"), change({1, 0}, {1, 1}, "c")});
    EXPECT_EQ(*document.text(), "a\nc");
    document.change(3, {{std::nullopt, "new"}, change({0, 0}, {0, 3}, "")});
    EXPECT_EQ(*document.text(), "");
}

TEST(Documents, TakeAbsurdPlaces) {
    Document document("untitled:1", 1, "ab\n");
    document.change(2, {change({-1, -1}, {900, 900}, "x")});
    EXPECT_EQ(*document.text(), "x");
    document.change(3, {change({5, 5}, {0, 0}, "y")});
    EXPECT_EQ(*document.text(), "xy");
}

TEST(Documents, WhoHoldsATextKeepsIt) {
    Document document("untitled:1", 1, "ab");
    const auto held = document.text();
    document.change(2, {{std::nullopt, "cd"}});
    EXPECT_EQ(*held, "ab");
}

TEST(Uris, ArePathsBothWays) {
    EXPECT_EQ(pathOfUri("file:///a/b%20c/%E0%AE%85.x"), "/a/b c/அ.x");
    EXPECT_EQ(uriOfPath("/a/b c/அ.x"), "file:///a/b%20c/%E0%AE%85.x");
    EXPECT_EQ(pathOfUri("file://localhost/a/./b/../c"), "/a/c");
    EXPECT_EQ(pathOfUri("untitled:Untitled-1"), "");
    EXPECT_EQ(pathOfUri("file:///a%00b"), "");
    EXPECT_EQ(pathOfUri("file:///a%2"), "/a%2");
}

TEST(Uris, PathsAreTidied) {
    EXPECT_EQ(tidyPath("b/../c", "/a"), "/a/c");
    EXPECT_EQ(tidyPath("/c", "/a"), "/c");
    EXPECT_EQ(folderOf("/a/b"), "/a");
}

}  // namespace
