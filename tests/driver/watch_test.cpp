// The console watch loop.
#include <signal.h>
#include <sys/wait.h>

#include <chrono>
#include <thread>

#include "driver/live_process.h"
#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

const std::string kChanged = "\n🔄 மாற்றம் கண்டறியப்பட்டது! புதுப்பிக்கப்படுகிறது...\n";
constexpr auto kTwoPolls = std::chrono::milliseconds(1200);

class Watch : public Workplace {
protected:
    Watch() {
        fakeCompiler("echo ஓடியது");
        writeFileText(object, "");
        write("a.பொழில்", "அச்சிடு(1)\n");
    }

    LiveProcess watch() const {
        return {{compiler.u8string(), "--கண்காணி", "a.பொழில்"}, work, environment(), root};
    }

    /// Saves the source as an editor may: written beside, then renamed over it. So the loop never
    /// reads it half written.
    void save(const std::string& text, fs::file_time_type::duration shift) {
        time += shift;
        write("new", text);
        fs::last_write_time(work / "new", time);
        fs::rename(work / "new", work / "a.பொழில்");
    }

    fs::file_time_type time = fs::file_time_type::clock::now();
    const std::string opening = kBanner + titleOf("a.பொழில்");
};

TEST_F(Watch, BuildsOnlyWhenTheSourceChanges) {
    using std::chrono::hours;
    LiveProcess live = watch();
    ASSERT_TRUE(live.waitForOut(opening)) << live.out() << live.err();
    std::this_thread::sleep_for(kTwoPolls);
    EXPECT_EQ(live.out(), opening) << "no first build";
    EXPECT_TRUE(compilerCalls().empty());

    save("அச்சிடு(22)\n", hours(1));
    std::string expected = opening + kChanged + "ஓடியது\n";
    ASSERT_TRUE(live.waitForOut(expected)) << live.out();
    EXPECT_EQ(compilerCalls().size(), 1U);
    EXPECT_NE(readFileText(cache / "generated.cpp").find("22LL"), std::string::npos);

    save("அச்சிடு(33)\n", hours(-100));  // older: any other time counts
    expected += kChanged + "ஓடியது\n";
    ASSERT_TRUE(live.waitForOut(expected)) << live.out();
    EXPECT_NE(readFileText(cache / "generated.cpp").find("33LL"), std::string::npos);

    save("அச்சிடு(44)\n", hours(0));  // the same time: no change
    std::this_thread::sleep_for(kTwoPolls);
    EXPECT_EQ(live.out(), expected);
    EXPECT_EQ(live.err(), "");
    EXPECT_FALSE(live.waitForEnd(0));
}

TEST_F(Watch, GoesOnAfterAnExceptionAndEndsAtADiagnostic) {
    using std::chrono::hours;
    LiveProcess live = watch();
    ASSERT_TRUE(live.waitForOut(opening)) << live.out() << live.err();

    save("\t", hours(1));
    ASSERT_TRUE(live.waitForErr("லெக்சர் பிழை: basic_string::compare")) << live.err();
    EXPECT_EQ(live.err().back(), '\n');
    save(kShareTooLarge, hours(1));
    ASSERT_TRUE(live.waitForErr("\nபார்சர் பிழை: stoi\n")) << live.err();
    save("அச்சிடு(௧௨)\n", hours(1));
    ASSERT_TRUE(live.waitForErr("\nஜெனரேட்டர் பிழை: stoull\n")) << live.err();
    fakeCompiler("echo ஓடக்கூடாது", 1);
    save("அச்சிடு(3)\n", hours(1));
    ASSERT_TRUE(
        live.waitForErr("\n\033[1;31mபிழை: தொகுப்பதில் சிக்கல்! "
                        "உன்னோட கோடை ஒருவாட்டி பாரு மச்சி.\033[0m\n"))
        << live.err();
    fakeCompiler("echo மீண்டும்; exit 5");
    save("அச்சிடு(4)\n", hours(1));
    const std::string expected =
        opening + kChanged + kChanged + kChanged + kChanged + kChanged + "மீண்டும்\n";
    ASSERT_TRUE(live.waitForOut(expected)) << live.out();

    save("அச்சிடு(\"\n", hours(1));
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_TRUE(WIFEXITED(live.status));
    EXPECT_EQ(WEXITSTATUS(live.status), 1);
    EXPECT_NE(live.out().find("பொழில்-102"), std::string::npos) << live.out();
}

/// How long an editor leaves a file empty or away here: longer than the loop's own period, so that
/// it is seen so.
constexpr auto kMoment = std::chrono::milliseconds(600);

TEST_F(Watch, SourceThatIsEmptyForAMomentIsBuiltOnce) {
    LiveProcess live = watch();
    ASSERT_TRUE(live.waitForOut(opening)) << live.out() << live.err();
    write("a.பொழில்", "");
    std::this_thread::sleep_for(kMoment);
    write("a.பொழில்", "அச்சிடு(22)\n");
    const std::string expected = opening + kChanged + "ஓடியது\n";
    ASSERT_TRUE(live.waitForOut(expected)) << live.out();
    EXPECT_NE(readFileText(cache / "generated.cpp").find("22LL"), std::string::npos);
    std::this_thread::sleep_for(kTwoPolls);
    EXPECT_EQ(live.out(), expected);
    EXPECT_EQ(compilerCalls().size(), 1U);
}

TEST_F(Watch, SourceThatStaysEmptyIsBuiltToo) {
    LiveProcess live = watch();
    ASSERT_TRUE(live.waitForOut(opening)) << live.out() << live.err();
    save("", std::chrono::hours(1));
    EXPECT_TRUE(live.waitForOut(opening + kChanged + "ஓடியது\n")) << live.out();
}

TEST_F(Watch, SourceThatIsAwayForAMomentIsBuiltOnce) {
    LiveProcess live = watch();
    ASSERT_TRUE(live.waitForOut(opening)) << live.out() << live.err();
    fs::remove(work / "a.பொழில்");
    std::this_thread::sleep_for(kMoment);
    save("அச்சிடு(22)\n", std::chrono::hours(1));
    const std::string expected = opening + kChanged + "ஓடியது\n";
    ASSERT_TRUE(live.waitForOut(expected)) << live.out() << live.err();
    std::this_thread::sleep_for(kTwoPolls);
    EXPECT_EQ(live.out(), expected);
    EXPECT_EQ(live.err(), "");
}

TEST_F(Watch, SaveDuringARebuildIsBuiltNext) {
    const fs::path go = root / "go";
    fakeCompiler("[ -e '" + go.u8string() + "' ] || echo முதல்; while [ ! -e '" + go.u8string() +
                 "' ]; do sleep 0.05; done; echo ஓடியது");
    LiveProcess live = watch();
    ASSERT_TRUE(live.waitForOut(opening)) << live.out() << live.err();
    save("அச்சிடு(22)\n", std::chrono::hours(1));
    ASSERT_TRUE(live.waitForOut(opening + kChanged + "முதல்\n")) << live.out();
    save("அச்சிடு(33)\n", std::chrono::hours(1));
    writeFileText(go, "");
    ASSERT_TRUE(live.waitForOut(opening + kChanged + "முதல்\nஓடியது\n" + kChanged + "ஓடியது\n"))
        << live.out();
    EXPECT_NE(readFileText(cache / "generated.cpp").find("33LL"), std::string::npos);
}

TEST_F(Watch, TextThatDoesNotFitIsNotCompiledAndTheNextIs) {
    LiveProcess live = watch();
    ASSERT_TRUE(live.waitForOut(opening)) << live.out() << live.err();
    fs::remove(cache / "generated.cpp");
    fs::create_symlink("/dev/full", cache / "generated.cpp");
    save("அச்சிடு(22)\n", std::chrono::hours(1));
    ASSERT_TRUE(live.waitForErr("பிழை: '" + cache.u8string() +
                                "/generated.cpp' என்ற கோப்பை முழுமையாக எழுத முடியவில்லை."))
        << live.err();
    EXPECT_TRUE(compilerCalls().empty());
    fs::remove(cache / "generated.cpp");
    save("அச்சிடு(33)\n", std::chrono::hours(1));
    EXPECT_TRUE(live.waitForOut(opening + kChanged + kChanged + "ஓடியது\n")) << live.out();
    EXPECT_EQ(compilerCalls().size(), 1U);
}

TEST_F(Watch, VanishedSourceEndsItAbnormally) {
    LiveProcess live = watch();
    ASSERT_TRUE(live.waitForOut(opening)) << live.out() << live.err();
    fs::remove(work / "a.பொழில்");
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_TRUE(WIFSIGNALED(live.status));
    EXPECT_EQ(WTERMSIG(live.status), SIGABRT);
    EXPECT_EQ(live.out(), opening);
}

TEST_F(Watch, InterruptEndsItByDefault) {
    LiveProcess live = watch();
    ASSERT_TRUE(live.waitForOut(opening)) << live.out() << live.err();
    live.interrupt();
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_TRUE(WIFSIGNALED(live.status));
    EXPECT_EQ(WTERMSIG(live.status), SIGINT);
    EXPECT_EQ(live.out(), opening) << "no farewell on this road";
}

}  // namespace
