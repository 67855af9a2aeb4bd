// new NAME: what a new project holds, that its program passes what the companion offers, and what
// is refused.
#include "companion/run_command/companion_place.h"

namespace fs = std::filesystem;

namespace {

class New : public CompanionPlace {
protected:
    /// Makes the project and goes into it.
    void make(const std::string& name, const std::vector<std::string>& options = {}) {
        std::vector<std::string> arguments = {"new"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        arguments.push_back(name);
        const ProcessResult result = companion(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.err;
        EXPECT_EQ(result.err, "");
        EXPECT_TRUE(holds(result.out, "✅ '" + name + "' உருவாக்கப்பட்டது.")) << result.out;
        from = work / fs::u8path(name);
    }

    bool offers(const std::string& command) const {
        return holds(companion({"--help"}).out, "(" + command + ")");
    }

    void expectGoodProgram() const {
        const ProcessResult checked = companion({"check", "முதன்மை.பொழில்"});
        EXPECT_EQ(checked.out, "");
        EXPECT_EQ(checked.exitCode, 0) << checked.err;
        if (!offers("format")) return;
        const ProcessResult formatted = companion({"format", "--check", "முதன்மை.பொழில்"});
        EXPECT_EQ(formatted.exitCode, 0) << formatted.out << formatted.err;
    }

    void expectRefused(const std::vector<std::string>& arguments, int status,
                       const std::string& text) const {
        std::vector<std::string> command = {"new"};
        command.insert(command.end(), arguments.begin(), arguments.end());
        const ProcessResult result = companion(command);
        EXPECT_EQ(result.exitCode, status);
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(holds(result.err, text)) << result.err;
    }
};

TEST_F(New, ConsoleProgramRuns) {
    useRealCompiler();
    make("முதல் நிரல்");
    expectGoodProgram();
    const ProcessResult result = companion({"run", "--quiet"});
    EXPECT_EQ(result.out, "வணக்கம்!\nமொத்தம்: 255\n") << result.err;
    EXPECT_EQ(result.exitCode, 0);
}

TEST_F(New, ConsoleProgramUsesTheLibraryWhereItIsFound) {
    useRealCompiler();
    fs::create_directory_symlink(fs::u8path(POZHIL_ROOT) / "தொகுப்புகள்", home / "தொகுப்புகள்");
    make("ஒன்று");
    expectGoodProgram();
    EXPECT_TRUE(holds(readFileText(from / "முதன்மை.பொழில்"), "நூஇறக்கி \"தொகுப்புகள்/"));
    const ProcessResult result = companion({"run", "--quiet"});
    EXPECT_EQ(result.out, "வணக்கம்!\nமொத்தம்: 255\n") << result.err;
}

TEST_F(New, WebProgramHasItsAssets) {
    make("தளம்", {"--web"});
    expectGoodProgram();
    const std::string program = readFileText(from / "முதன்மை.பொழில்");
    std::size_t assets = 0;
    for (const auto& entry : fs::directory_iterator(from / "assets")) {
        assets++;
        EXPECT_TRUE(holds(program, "\"assets/" + entry.path().filename().u8string() + "\""));
    }
    EXPECT_GT(assets, 0U);
}

TEST_F(New, BringsReadmeAndSettings) {
    for (const std::string name : {"அ", "ஆ"}) {
        from = work;
        make(name, name == "ஆ" ? std::vector<std::string>{"--வலை"} : std::vector<std::string>{});
        const std::string readme = readFileText(from / "README.md");
        EXPECT_EQ(readme.rfind("# " + name + "\n", 0), 0U) << readme;
        for (const char* command : {"இயக்கு", "சரிபார்", "வடிவமை"}) {
            EXPECT_TRUE(holds(readme, std::string("`பொழில்-துணை ") + command + " முதன்மை.பொழில்`"));
        }
        EXPECT_EQ(holds(readme, "வெளியிடு முதன்மை.பொழில்"), name == "ஆ");
        const std::string settings = readFileText(from / ".editorconfig");
        for (const char* line : {"charset = utf-8\n", "end_of_line = lf\n",
                                 "indent_style = space\n", "indent_size = 4\n"}) {
            EXPECT_TRUE(holds(settings, line)) << line;
        }
        EXPECT_TRUE(holds(readFileText(from / ".gitignore"), "/வெளியீடு/\n"));
        EXPECT_FALSE(holds(readme, "$"));
    }
}

TEST_F(New, HasATamilNameAndFillsAnEmptyFolder) {
    fs::create_directory(work / "வெற்று");
    EXPECT_EQ(companion({"புதிது", "வெற்று/"}).exitCode, 0);
    EXPECT_TRUE(fs::exists(work / "வெற்று" / "முதன்மை.பொழில்"));
    EXPECT_EQ(companion({"new", "மேல்/கீழ்"}).exitCode, 0);
    EXPECT_TRUE(holds(readFileText(work / "மேல்" / "கீழ்" / "README.md"), "# கீழ்\n"));
}

TEST_F(New, LeavesAloneWhatIsThere) {
    fs::create_directory(work / "உள்ளது");
    write("உள்ளது/என்னுடையது", "உரை");
    expectRefused({"உள்ளது"}, 1, "ஏற்கெனவே உள்ளது");
    write("கோப்பு", "உரை");
    expectRefused({"கோப்பு"}, 1, "ஏற்கெனவே உள்ளது");
    fs::create_directory_symlink(work / "எங்கும்_இல்லை", work / "இணைப்பு");
    expectRefused({"இணைப்பு"}, 1, "ஏற்கெனவே உள்ளது");
    EXPECT_EQ(readFileText(work / "உள்ளது" / "என்னுடையது"), "உரை");
    EXPECT_EQ(readFileText(work / "கோப்பு"), "உரை");
    EXPECT_FALSE(fs::exists(work / "உள்ளது" / "முதன்மை.பொழில்"));
}

TEST_F(New, RefusesOddNames) {
    expectRefused({}, 2, "என்ன பெயர்?");
    expectRefused({"ஒரு", "பெயர்"}, 2, "மேற்கோளுக்குள் எழுது: \"ஒரு பெயர்\"");
    expectRefused({"--பெரிது", "அ"}, 2, "'--பெரிது' என்ற விருப்பம் இல்லை");
    expectRefused({"-அ"}, 2, "'-' குறியில் தொடங்கக் கூடாது");
    expectRefused({"."}, 2, "இது ஒரு பெயர் அல்ல");
    expectRefused({"அ/.."}, 2, "இது ஒரு பெயர் அல்ல");
    expectRefused({".மறைவு"}, 2, "மறைந்திருக்கும்");
    expectRefused({" அ"}, 2, "ஓரத்தில் இடைவெளி");
    expectRefused({"அ\nஆ"}, 2, "கண்ணுக்குத் தெரியாத குறி");
    expectRefused({"அ$ஆ"}, 2, "ஆகிய குறிகள் வரக்கூடாது");
    expectRefused({std::string(201, 'a')}, 2, "மிக நீளமானது");
    EXPECT_TRUE(fs::is_empty(work));
}

TEST_F(New, TellsWhereNothingCanBeMade) {
    write("கோப்பு", "");
    expectRefused({"கோப்பு/உள்ளே"}, 1, "கோப்புறையை உருவாக்க முடியவில்லை");
}

}  // namespace
