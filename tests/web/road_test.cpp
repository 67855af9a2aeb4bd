// The web road by the command line: texts, server, watch loop and end.
#include "web/road.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include "driver/web_road.h"

namespace fs = std::filesystem;

namespace {

TEST_F(WebRoad, OptionTakesAConsoleSourceThere) {
    fs::create_directory(work / "வெளியீடு");  // being there is no error
    LiveProcess live = start({"a.பொழில்", "--வலை", "--கண்காணி"});
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess)) << live.out() << live.err();
    EXPECT_EQ(live.err(), "");
    EXPECT_EQ(body("/version"), "2");
    EXPECT_EQ(body("/index.js"), "first");
    EXPECT_TRUE(pageIsOf("2"));
    EXPECT_EQ(openedAddresses(), "http://localhost:6931/\n");
    ASSERT_TRUE(fs::exists(cache / "generated.cpp"));
    EXPECT_EQ(fs::file_size(cache / "generated.cpp"), 0U) << "the text goes elsewhere";
    EXPECT_NE(readFileText(cache / "வலை_வெளியீடு.cpp").find("int main() {"), std::string::npos);
}

TEST_F(WebRoad, InterruptSaysGoodbye) {
    LiveProcess live = start();
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess)) << live.out() << live.err();
    EXPECT_EQ(body("/version"), "2") << "the handler is there before the server";
    live.interrupt();
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_TRUE(WIFEXITED(live.status));
    EXPECT_EQ(WEXITSTATUS(live.status), 0);
    EXPECT_EQ(live.out(), kFirstPart + kSuccess + kFarewell);
    EXPECT_EQ(live.err(), "");
}

TEST_F(WebRoad, FailedFirstBuildIsMendedBySaving) {
    compilerFails();
    LiveProcess live = start();
    std::string expected = kFirstPart + kBuildFailure + kFailure;
    ASSERT_TRUE(live.waitForOut(expected)) << live.out() << live.err();
    waitForWatch();
    EXPECT_EQ(body("/version"), "1");
    EXPECT_TRUE(pageIsOf("2")) << "the page is stored before em++ runs";
    EXPECT_EQ(get(kPort, "/index.js").substr(0, 12), "HTTP/1.1 404");
    EXPECT_FALSE(fs::exists(root / "opened")) << "no browser";

    compilerBuilds("mended");
    save("அச்சிடு(2)\n");
    expected += kChanged + kRenewed;
    ASSERT_TRUE(live.waitForOut(expected)) << live.out();
    EXPECT_EQ(body("/version"), "2");
    EXPECT_EQ(body("/index.js"), "mended");
    EXPECT_FALSE(fs::exists(root / "opened")) << "nor later";
}

TEST_F(WebRoad, CounterFollowsSuccessfulBuildsAlone) {
    LiveProcess live = start();
    std::string expected = kFirstPart + kSuccess;
    ASSERT_TRUE(live.waitForOut(expected)) << live.out() << live.err();
    waitForWatch();

    compilerBuilds("second");
    save("அச்சிடு(22)\n");
    expected += kChanged + kRenewed;
    ASSERT_TRUE(live.waitForOut(expected)) << live.out();
    EXPECT_EQ(body("/version"), "3");
    EXPECT_EQ(body("/index.js"), "second");
    EXPECT_TRUE(pageIsOf("3"));
    EXPECT_NE(readFileText(cache / "வலை_வெளியீடு.cpp").find("22LL"), std::string::npos);

    compilerFails();
    for (int i = 0; i < 2; i++) {
        save("அச்சிடு(33)\n");
        expected += kChanged + kBuildFailure;
        ASSERT_TRUE(live.waitForOut(expected)) << live.out();
        EXPECT_EQ(body("/version"), "3");
        EXPECT_TRUE(pageIsOf("4"));
        EXPECT_EQ(get(kPort, "/index.js").substr(0, 12), "HTTP/1.1 404");
    }

    compilerBuilds("fourth");
    save("அச்சிடு(44)\n", std::chrono::hours(-100));  // older: any other time counts
    expected += kChanged + kRenewed;
    ASSERT_TRUE(live.waitForOut(expected)) << live.out();
    EXPECT_EQ(body("/version"), "4");

    save("அச்சிடு(55)\n", std::chrono::hours(0));  // the same time: no change
    std::this_thread::sleep_for(kTwoPolls);
    EXPECT_EQ(live.out(), expected);
    EXPECT_EQ(live.err(), "");
}

TEST_F(WebRoad, GoesOnAfterAnException) {
    LiveProcess live = start();
    std::string expected = kFirstPart + kSuccess;
    ASSERT_TRUE(live.waitForOut(expected)) << live.out() << live.err();
    waitForWatch();

    std::string failures =
        "\033[1;31m🚨 லெக்சர் பிழை (சொல் பகுப்பாய்வு): உமது நிரலில் ஏதோ பிழை உள்ளது. "
        "சரிபார்க்கவும்!\033[0m\n";
    save("\t");
    ASSERT_TRUE(live.waitForErr(failures)) << live.out() << live.err();
    failures += "\033[1;31m🚨 பார்சர் பிழை (இலக்கணப் பகுப்பாய்வு): நிரலின் கட்டமைப்பில் பிழை உள்ளது!\033[0m\n";
    save(kShareTooLarge);
    ASSERT_TRUE(live.waitForErr(failures)) << live.out() << live.err();
    failures +=
        "\033[1;31m🚨 ஜெனரேட்டர் பிழை (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!"
        "\033[0m\n";
    save("அச்சிடு(௧)\n");
    ASSERT_TRUE(live.waitForErr(failures)) << live.out() << live.err();
    EXPECT_EQ(live.err(), failures) << "without the exception's own text";
    EXPECT_EQ(body("/version"), "2");
    EXPECT_EQ(body("/index.js"), "first") << "the last good program stays";

    save("அச்சிடு(3)\n");
    expected += kChanged + kChanged + kChanged + kChanged + kRenewed;
    ASSERT_TRUE(live.waitForOut(expected)) << live.out();
    EXPECT_EQ(body("/version"), "3");
}

TEST_F(WebRoad, DiagnosticEndsServerAndAll) {
    LiveProcess live = start();
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess)) << live.out() << live.err();
    waitForWatch();
    EXPECT_EQ(body("/version"), "2");
    save("அச்சிடு(\"\n");
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_TRUE(WIFEXITED(live.status));
    EXPECT_EQ(WEXITSTATUS(live.status), 1);
    EXPECT_EQ(live.out().find(kFirstPart + kSuccess + kChanged), 0U) << live.out();
    EXPECT_NE(live.out().find("பொழில்-102"), std::string::npos) << live.out();
    EXPECT_FALSE(Client(kPort, 0, 0).connected());
}

TEST_F(WebRoad, VanishedSourceEndsItAbnormally) {
    LiveProcess live = start();
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess)) << live.out() << live.err();
    waitForWatch();
    fs::remove(work / "a.பொழில்");
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_TRUE(WIFSIGNALED(live.status));
    EXPECT_EQ(WTERMSIG(live.status), SIGABRT);
}

TEST_F(WebRoad, PortAlreadyTaken) {
    LiveProcess other = start();
    ASSERT_TRUE(other.waitForOut(kFirstPart + kSuccess)) << other.out() << other.err();
    ASSERT_EQ(body("/version"), "2");

    fs::create_directory(root / "second");
    LiveProcess live({compiler.u8string(), "--வலை", "a.பொழில்"}, work, environment(),
                     root / "second");
    ASSERT_TRUE(live.waitForErr("🚨 6931 போர்ட்டில் சர்வரைத் தொடங்க முடியவில்லை!\n")) << live.err();
    std::string expected = kFirstPart + kSuccess;
    ASSERT_TRUE(live.waitForOut(expected)) << live.out();
    waitForWatch();
    save("அச்சிடு(2)\n");
    expected += kChanged + kRenewed;
    EXPECT_TRUE(live.waitForOut(expected)) << "the watch loop runs on: " << live.out();
    EXPECT_EQ(live.err(), "🚨 6931 போர்ட்டில் சர்வரைத் தொடங்க முடியவில்லை!\n");
}

TEST_F(WebRoad, ServesWhileTheCompilerRuns) {
    LiveProcess live = start();
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess)) << live.out() << live.err();
    waitForWatch();
    script("em++", "while [ ! -e '" + (root / "go").u8string() + "' ]; do sleep 0.05; done");
    save("அச்சிடு(2)\n");
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess + kChanged)) << live.out();
    for (int i = 0; i < 100 && !pageIsOf("3"); i++) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    EXPECT_TRUE(pageIsOf("3"));
    EXPECT_EQ(body("/version"), "2") << "raised by success alone";
    EXPECT_EQ(get(kPort, "/index.js").substr(0, 12), "HTTP/1.1 404") << "gone for the while";
    writeFileText(root / "go", "");
    EXPECT_TRUE(live.waitForOut(kFirstPart + kSuccess + kChanged + kRenewed)) << live.out();
    EXPECT_EQ(body("/version"), "3");
}

TEST_F(WebRoad, SourceThatIsEmptyForAMomentIsNotAnnounced) {
    LiveProcess live = start();
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess)) << live.out() << live.err();
    waitForWatch();
    write("a.பொழில்", "");
    std::this_thread::sleep_for(std::chrono::milliseconds(600));
    write("a.பொழில்", "அச்சிடு(22)\n");
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess + kChanged + kRenewed)) << live.out();
    EXPECT_NE(readFileText(cache / "வலை_வெளியீடு.cpp").find("22LL"), std::string::npos);
    std::this_thread::sleep_for(kTwoPolls);
    EXPECT_EQ(live.out(), kFirstPart + kSuccess + kChanged + kRenewed);
}

TEST_F(WebRoad, SaveDuringARebuildIsBuiltNext) {
    LiveProcess live = start();
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess)) << live.out() << live.err();
    waitForWatch();
    script("em++", "while [ ! -e '" + (root / "go").u8string() + "' ]; do sleep 0.05; done");
    save("அச்சிடு(22)\n");
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess + kChanged)) << live.out();
    save("அச்சிடு(33)\n");
    writeFileText(root / "go", "");
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess + kChanged + kRenewed + kChanged + kRenewed))
        << live.out();
    EXPECT_NE(readFileText(cache / "வலை_வெளியீடு.cpp").find("33LL"), std::string::npos);
}

TEST_F(WebRoad, TextThatDoesNotFitIsNotCompiled) {
    fs::create_directories(cache);
    fs::create_symlink("/dev/full", cache / "வலை_வெளியீடு.cpp");
    LiveProcess live = start();
    ASSERT_TRUE(live.waitForOut(kFirstPart + kFailure)) << live.out() << live.err();
    EXPECT_EQ(live.err(), "பிழை: '" + cache.u8string() +
                              "/வலை_வெளியீடு.cpp' என்ற கோப்பை முழுமையாக எழுத முடியவில்லை. வட்டில் இடம் "
                              "உள்ளதா எனச் சரிபார்க்கவும்.\n");
    EXPECT_FALSE(fs::exists(fs::u8path((work / "வெளியீடு/index.js").u8string())));
}

TEST_F(WebRoad, FullDiskIsNamedBeforeTheBuildIsBlamed) {
    compilerFails();
    const LiveProcess live(
        {"/bin/bash", "-c",
         "trap '' XFSZ; ulimit -f 4000; exec '" + compiler.u8string() + "' --வலை a.பொழில்"},
        work, environment(), root);
    ASSERT_TRUE(live.waitForOut(kFirstPart + kBuildFailure + kFailure)) << live.out();
    EXPECT_EQ(live.err(), "பிழை: '" + cache.u8string() +
                              "' கோப்புறை உள்ள வட்டில் இடம் போதவில்லை. தேவையற்ற கோப்புகளை நீக்கிவிட்டு "
                              "மீண்டும் முயலவும்.\n");
}

TEST_F(WebRoad, MissingCompilerIsNamedBeforeTheBuildIsBlamed) {
    fs::remove(root / "bin" / "em++");
    std::vector<std::string> settings = environment();
    settings.push_back("PATH=" + (root / "bin").u8string());
    const LiveProcess live({compiler.u8string(), "--வலை", "a.பொழில்"}, work, settings, root);
    ASSERT_TRUE(live.waitForOut(kFirstPart + kBuildFailure + kFailure)) << live.out();
    EXPECT_EQ(live.err(),
              "பிழை: நிரலைத் தொகுக்கத் தேவையான em++ இந்தக் கணினியில் கிடைக்கவில்லை! "
              "நிறுவ: sudo apt install emscripten\n");
}

TEST_F(WebRoad, BuildsTakeTurns) {
    fs::create_directories(cache);
    const int turn = open((cache / "வலை_பூட்டு").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(flock(turn, LOCK_EX | LOCK_NB), 0);
    LiveProcess live = start();
    ASSERT_TRUE(live.waitForErr("⏳ ")) << live.err();
    EXPECT_FALSE(fs::exists(cache / "வலை_வெளியீடு.cpp")) << "the text is another's to change";
    close(turn);
    EXPECT_TRUE(live.waitForOut(kFirstPart + kSuccess)) << live.out();
}

TEST_F(WebRoad, MissingTemplateFailsTheBuild) {
    fs::remove(home / "உள்ளடக்கம்" / "template.html");
    LiveProcess live = start();
    ASSERT_TRUE(live.waitForOut(kFirstPart + kFailure)) << live.out() << live.err();
    EXPECT_EQ(live.err(), "பிழை: template.html கோப்பு கிடைக்கவில்லை! '" + home.u8string() +
                              "/உள்ளடக்கம்/template.html' உள்ளதா எனச் சரிபார்க்கவும்.\n");
    EXPECT_EQ(body("/version"), "1");
    EXPECT_EQ(body("/"), "");
}

TEST_F(WebRoad, OutputThatCannotBeRemovedEndsItAbnormally) {
    fs::create_directories(work / "வெளியீடு" / "index.js" / "full");
    const ProcessResult run = compile({"--வலை", "a.பொழில்"});
    EXPECT_EQ(run.signal, SIGABRT);
    EXPECT_EQ(run.out, kFirstPart);
}

TEST_F(WebRoad, OpensBeforeAPhaseFails) {
    write("a.பொழில்", "\t");
    const ProcessResult scan = compile({"--வலை", "a.பொழில்"});
    EXPECT_EQ(scan.out, kOpening);
    EXPECT_EQ(scan.exitCode, 1);

    write("a.பொழில்", kShareTooLarge);
    const ProcessResult parse = compile({"--வலை", "a.பொழில்"});
    EXPECT_EQ(parse.out, kOpening);
    EXPECT_EQ(parse.exitCode, 1);

    write("a.பொழில்", "அச்சிடு(௧)\n");
    const ProcessResult generate = compile({"--வலை", "a.பொழில்"});
    EXPECT_EQ(generate.out, kOpening +
                                "முடிந்தது\n"
                                "🎨 பயனர் இடைமுகம் மற்றும் அசைவூட்டங்கள் செதுக்கப்படுகிறது... ");
    EXPECT_EQ(generate.exitCode, 1);
    EXPECT_FALSE(fs::exists(work / "வெளியீடு"));
}

TEST_F(WebRoad, MissingSourceOpensNothing) {
    const ProcessResult run = compile({"--வலை", "இல்லை.பொழில்"});
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "பிழை: 'இல்லை.பொழில்' என்ற கோப்பை திறக்க முடியவில்லை!\n");
    EXPECT_EQ(run.exitCode, 1);
}

TEST(Farewell, EndsWithStatusZero) {
    const ProcessResult run = runForked([] {
        signal_handler(SIGINT);
        return 7;
    });
    EXPECT_EQ(run.out, kFarewell);
    EXPECT_EQ(run.exitCode, 0);
}

TEST_F(WebRoad, ApplicationTakesItByItself) {
    write("a.பொழில்",
          "வலைதளம் கணக்கி(\n    தலைமை(\n        இணைய_தலைப்பு: \"என் தளம்\"\n"
          "        பின்னணி: \"#123456\"\n    )\n    குமரி(\n        உரை(\"வணக்கம்\")\n    )\n"
          "    வரையறை(\n        எண்ணிக்கை = 0\n    )\n)\n");
    LiveProcess live = start({"a.பொழில்"});
    ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess)) << live.out() << live.err();
    EXPECT_NE(body("/").find("<title>என் தளம்</title>"), std::string::npos);
    EXPECT_NE(body("/").find("background: #123456;"), std::string::npos);
}

TEST_F(WebRoad, ApplicationOpensTheRoadOnlyBehindTheParser) {
    write("a.பொழில்", "வலைதளம் கணக்கி()\n");
    const ProcessResult run = compile({"a.பொழில்"});
    EXPECT_EQ(run.out.find("🚀"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("பொழில்-401"), std::string::npos) << run.out;
    EXPECT_EQ(run.exitCode, 1);
}

}  // namespace
