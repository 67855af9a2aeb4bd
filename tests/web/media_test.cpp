// What an application needs at run time: the walk over its tree, Base64, and the preload flags.
#include "driver/media.h"

#include "support/front_end.h"
#include "web/scratch_directory.h"
#include "web/tree.h"

namespace {

using Paths = std::set<std::string>;

Paths pathsIn(const Statement* node) {
    Paths paths;
    collectImagePaths(node, paths);
    return paths;
}

Paths pathsIn(const std::unique_ptr<Statement>& node) { return pathsIn(node.get()); }

std::unique_ptr<WidgetNode> image(const std::string& path) {
    return widget("படம்", properties(entry("பாதை", text(path))));
}

TEST(ImagePaths, OfImagesIconsAndFonts) {
    EXPECT_EQ(pathsIn(image("a.png").get()), Paths{"a.png"});
    EXPECT_EQ(pathsIn(widget("பொத்தான்", properties(entry("சின்னம்", text("b.png")))).get()),
              Paths{"b.png"});
    auto letters = widget("உரை");
    letters->textStyle.fontFamily = "c.ttf";
    EXPECT_EQ(pathsIn(letters.get()), Paths{"c.ttf"});
    auto all = widget("படம்", properties(entry("பாதை", text("a")), entry("சின்னம்", text("b"))));
    all->textStyle.fontFamily = "c";
    EXPECT_EQ(pathsIn(all.get()), (Paths{"a", "b", "c"}));
}

TEST(ImagePaths, OnlyAnImagesPathIsOne) {
    EXPECT_EQ(pathsIn(widget("பெட்டி", properties(entry("பாதை", text("a.png")))).get()), Paths{});
    EXPECT_EQ(pathsIn(widget("படம்", properties(entry("பாதை ", text("a.png")))).get()), Paths{});
}

TEST(ImagePaths, ComputedOnesAreNotFound) {
    EXPECT_EQ(pathsIn(widget("படம்", properties(entry("பாதை", variable("பாதை")),
                                               entry("சின்னம்", color("#aaaaaa", true))))
                          .get()),
              Paths{});
}

TEST(ImagePaths, OfHeadAndBodyAndAllChildren) {
    auto row = widget("கிடைவரிசை");
    row->children.push_back(image("deep.png"));
    auto column = widget("நெடுவரிசை");
    column->children.push_back(std::move(row));
    column->children.push_back(nullptr);
    column->children.push_back(image("b.png"));
    EXPECT_EQ(
        pathsIn(application(head(properties(entry("சின்னம்", text("icon.png")))), std::move(column))),
        (Paths{"b.png", "deep.png", "icon.png"}));
}

TEST(ImagePaths, NotOfLogicPressStatementsOrOtherStatements) {
    auto block = std::make_unique<BlockStatement>();
    block->statements.push_back(image("logic.png"));
    EXPECT_EQ(
        pathsIn(application(nullptr, nullptr, std::make_unique<LogicBlockNode>(std::move(block)))),
        Paths{});
    auto button = widget("பொத்தான்");
    button->onTapStatements.push_back(image("press.png"));
    EXPECT_EQ(pathsIn(button.get()), Paths{});
    BlockStatement other;
    other.statements.push_back(image("block.png"));
    EXPECT_EQ(pathsIn(&other), Paths{});
    EXPECT_EQ(pathsIn(static_cast<const Statement*>(nullptr)), Paths{});
}

TEST(Base64, KnownTextsOfEveryLength) {
    const auto encode = [](const std::string& bytes) {
        return base64_encode_logo({bytes.begin(), bytes.end()});
    };
    EXPECT_EQ(encode(""), "");
    EXPECT_EQ(encode("f"), "Zg==");
    EXPECT_EQ(encode("fo"), "Zm8=");
    EXPECT_EQ(encode("foo"), "Zm9v");
    EXPECT_EQ(encode("foob"), "Zm9vYg==");
    EXPECT_EQ(encode("fooba"), "Zm9vYmE=");
    EXPECT_EQ(encode("foobar"), "Zm9vYmFy");
    EXPECT_EQ(encode(std::string("\0\0\0", 3)), "AAAA");
    EXPECT_EQ(encode("\xFF\xFF\xFF"), "////");
    EXPECT_EQ(encode("\xFB\xEF\xBE"), "++++");
}

class Preload : public ScratchDirectory {
protected:
    static std::string flags(std::unique_ptr<WidgetNode> body, PropertyMap headProperties = {}) {
        return preloadFlags(program(application(head(std::move(headProperties)), std::move(body))));
    }

    static std::unique_ptr<WidgetNode> images(const std::vector<std::string>& paths) {
        auto column = widget("நெடுவரிசை");
        for (const std::string& path : paths) column->children.push_back(image(path));
        return column;
    }
};

TEST_F(Preload, NothingNeeded) { EXPECT_EQ(flags(nullptr), ""); }

TEST_F(Preload, FilesInSortedOrder) {
    for (const char* name : {"b.png", "a.png", "படம்.png", "sub/z.gif"}) write(name, "x");
    EXPECT_EQ(flags(images({"b.png", "படம்.png", "sub/z.gif", "a.png", "a.png"})),
              " --preload-file a.png --preload-file b.png --preload-file sub/z.gif"
              " --preload-file படம்.png");
}

TEST_F(Preload, AssetsFolderCoversWhatLiesInIt) {
    write("assets/a.png", "x");
    write("assets2/b.png", "x");
    EXPECT_EQ(flags(images({"assets/a.png", "assets2/b.png"})),
              " --preload-file assets --preload-file assets2/b.png");
}

TEST_F(Preload, PathUnderAMissingAssetsFolderIsSkippedAllTheSame) {
    EXPECT_EQ(flags(images({"assets/a.png"})), "");
    write("x/assets/a.png", "x");
    EXPECT_EQ(flags(images({"x/assets/a.png", "./assets/b.png"})),
              " --preload-file x/assets/a.png");
}

TEST_F(Preload, EndingsThatArePacked) {
    std::string expected;
    std::vector<std::string> paths;
    for (const char* ending : {"gif", "jpeg", "jpg", "mp4", "otf", "png", "ttf", "woff", "woff2"}) {
        const std::string name = std::string("a.") + ending;
        write(name, "x");
        paths.push_back(name);
        expected += " --preload-file " + name;
    }
    for (const char* other : {"logo.bmp", "logo.svg", "logo.PNG", "logo.webp", "logo"}) {
        write(other, "x");
        paths.emplace_back(other);
    }
    EXPECT_EQ(flags(images(paths)), expected);
}

TEST_F(Preload, WhatBashReadsAsOneWordStandsAsItIs) {
    for (const char* name :
         {"a.png", "படம்.png", "a-b_c+d,e%f^g:h=i.png", "a#b.png", "a~b.png", "a!b.png", "a{b}.png",
          "a]b.png", "-a.png", "!.png", "{}.png", "a}b,c{d.png", "=.png", "%41.png"}) {
        write(name, "x");
        EXPECT_EQ(flags(images({name})), std::string(" --preload-file ") + name);
    }
}

TEST_F(Preload, WhatBashWouldReadOtherwiseIsQuoted) {
    const std::pair<const char*, const char*> rows[] = {
        {"a b.png", R"("a b.png")"},       {"a$b.png", R"("a\$b.png")"},
        {"a`b.png", R"("a\`b.png")"},      {"a\"b.png", R"("a\"b.png")"},
        {"a\\b.png", R"("a\\b.png")"},     {"a'b.png", R"("a'b.png")"},
        {"a;b.png", R"("a;b.png")"},       {"#a.png", R"("#a.png")"},
        {"~a.png", R"("~a.png")"},         {"a=~b.png", R"("a=~b.png")"},
        {"a{b,c}.png", R"("a{b,c}.png")"}, {"a{1..2}.png", R"("a{1..2}.png")"},
        {"a*.png", R"("a*.png")"},         {"a?.png", R"("a?.png")"},
        {"[a].png", R"("[a].png")"},       {"a\nb.png", "\"a\nb.png\""},
    };
    for (const auto& [name, word] : rows) {
        write(name, "x");
        EXPECT_EQ(flags(images({name})), std::string(" --preload-file ") + word);
    }
}

TEST_F(Preload, AnAtSignIsDoubled) {
    write("a@2x.png", "x");
    write("b@@c d.png", "x");
    EXPECT_EQ(flags(images({"a@2x.png", "b@@c d.png"})),
              " --preload-file a@@2x.png --preload-file \"b@@@@c d.png\"");
}

TEST_F(Preload, AFileMayBeSeenUnderAnotherName) {
    EXPECT_EQ(preloadFlag("a@b.ttf", "c@.ttf"), " --preload-file a@@b.ttf@c@@.ttf");
    EXPECT_EQ(preloadFlag("@a b.ttf", "c.ttf"), " --preload-file \"./@@a b.ttf@c.ttf\"");
}

TEST_F(Preload, ANameThatBeginsWithAnAtSignIsNoFileOfArguments) {
    write("@a.png", "x");
    EXPECT_EQ(flags(images({"@a.png"})), " --preload-file ./@@a.png");
}

TEST_F(Preload, MissingFileIsPassedOverWithoutAWord) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(flags(images({"இல்லை.png"})), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(Preload, NameThatNoFileCanHaveIsMissing) {
    const std::string name = std::string(300, 'a') + ".png";  // longer than a name can be
    EXPECT_EQ(flags(images({name, "b.png/c.png"})), "");
    write("b.png", "x");
    EXPECT_EQ(flags(images({name, "b.png/c.png", "b.png"})), " --preload-file b.png");
}

TEST_F(Preload, VideoStandsLastWhateverItsEnding) {
    write("a.png", "x");
    write("v.webm", "x");
    EXPECT_EQ(flags(images({"a.png"}), properties(entry("பின்னணிகாணொளி", text("v.webm")))),
              " --preload-file a.png --preload-file v.webm");
}

TEST_F(Preload, MissingVideoIsWarnedOf) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(flags(nullptr, properties(entry("பின்னணிகாணொளி", text("v.mp4")))), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "\n⚠️ எச்சரிக்கை: v.mp4 என்ற கோப்பு "
              "காணப்படவில்லை! "
              "\n");
}

TEST_F(Preload, WhatASourceNames) {
    for (const char* name : {"deep.jpg", "f.ttf", "head.png", "v.mp4", "logo.bmp"}) {
        write(name, "x");
    }
    const Parsed source = parse(
        "வலைதளம் கணக்கி(\n"
        "    தலைமை(சின்னம்: \"head.png\" பின்னணிகாணொளி: \"v.mp4\")\n"
        "    குமரி(\n"
        "        நெடுவரிசை(\n"
        "            படம்(பாதை: \"deep.jpg\")\n"
        "            படம்(பாதை: \"logo.bmp\")\n"
        "            படம்(பாதை: கோப்பு_பெயர்)\n"
        "            உரை(\"வணக்கம்\", உரைபாணி(எழுத்துரு: \"f.ttf\"))\n"
        "        )\n"
        "    )\n"
        "    வரையறை()\n"
        ")\n");
    EXPECT_EQ(preloadFlags(source.program),
              " --preload-file deep.jpg --preload-file f.ttf --preload-file head.png"
              " --preload-file v.mp4");
}

TEST_F(Preload, AllTopLevelStatementsAreWalked) {
    write("a.png", "x");
    write("b.png", "x");
    EXPECT_EQ(preloadFlags(program(application(nullptr, image("b.png")), image("a.png"))),
              " --preload-file a.png --preload-file b.png");
}

}  // namespace
