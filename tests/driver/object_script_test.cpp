// scripts/prepare_objects.sh: when it makes the diagnostics object anew, and what becomes of
// programs where libstdc++ lacks a name that the shared instances use.
#include <cstdlib>

#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

class ObjectScript : public Workplace {
protected:
    ObjectScript() {
        fs::create_directories(home / "scripts");
        for (const char* script : {"prepare_objects.sh", "warm_header.sh"}) {
            fs::copy_file(fs::u8path(POZHIL_ROOT) / "scripts" / script, home / "scripts" / script);
        }
    }

    ProcessResult run(const std::string& script) const {
        return runCommand({"bash", (home / "scripts" / script).u8string()},
                          {work.u8string(), settings, "", 120});
    }

    bool holdsInstances() const {
        const ProcessResult names = runCommand({"nm", object.u8string()});
        EXPECT_NE(names.out.find("visualWidth"), std::string::npos) << names.err;
        return names.out.find("pozhil_instances") != std::string::npos;
    }

    std::vector<std::string> settings = environment();
    const fs::path included = home / "உள்ளடக்கம்";
    const fs::path note = included / "nanovg" / "held_instances.h";
};

class ObjectMadeAnew : public ObjectScript {
protected:
    ObjectMadeAnew() {
        fakeCompiler("true");
        // Only calls that write something are noted, and a version is told.
        writeFileText(root / "bin" / "version", "g++ 1\n");
        const std::string bin = (root / "bin").u8string();
        fs::rename(root / "bin" / "g++", root / "bin" / "compile");
        writeFileText(root / "bin" / "g++", "#!/bin/sh\n[ \"$1\" != --version ] || exec cat \"" +
                                                bin + "/version\"\n" + "exec \"" + bin +
                                                "/compile\" \"$@\"\n");
        makeExecutable(root / "bin" / "g++");
        writeFileText(home / "scripts" / "warm_header.sh", "#!/bin/sh\n");
        makeExecutable(home / "scripts" / "warm_header.sh");
    }

    bool isMade() const {
        fs::remove(root / "bin" / "calls");
        const ProcessResult result = run("prepare_objects.sh");
        EXPECT_EQ(result.exitCode, 0) << result.err;
        return fs::exists(root / "bin" / "calls");
    }
};

TEST_F(ObjectMadeAnew, OnlyWhenSomethingChanged) {
    EXPECT_TRUE(isMade());
    EXPECT_FALSE(isMade());
    writeFileText(included / "error_codes.h", "// another text\n");
    EXPECT_TRUE(isMade());
    EXPECT_FALSE(isMade());
    writeFileText(root / "bin" / "version", "g++ 2\n");
    EXPECT_TRUE(isMade());
    EXPECT_FALSE(isMade());
    writeFileText(object, "made by somebody else, and younger than its sources");
    EXPECT_TRUE(isMade());
    EXPECT_FALSE(isMade());
    fs::remove(object);
    EXPECT_TRUE(isMade());
}

/// A libstdc++ in which one of the names is another.
class AnotherLibrary : public ObjectScript {
protected:
    AnotherLibrary() {
        fs::create_directory(root / "include");
        writeFileText(root / "include" / "any",
                      "#define __any_caster __caster_of_any\n"
                      "#include_next <any>\n"
                      "#undef __any_caster\n");
        settings.push_back("CPLUS_INCLUDE_PATH=" + (root / "include").u8string());
        write("a.பொழில்", "அச்சிடு(\"விடை \", 42, 2.5, மெய்)\n");
    }

    void expectThatProgramsRun() const {
        ProcessOptions options;
        options.environment = settings;
        const ProcessResult program = compile({"a.பொழில்"}, options);
        EXPECT_NE(program.out.find("விடை 422.500000மெய்\n"), std::string::npos) << program.out;
        EXPECT_EQ(program.err, "");
        EXPECT_FALSE(holdsInstances());
    }
};

TEST_F(AnotherLibrary, IsEnoughForProgramsWithoutPreparation) { expectThatProgramsRun(); }

TEST_F(AnotherLibrary, IsEnoughForPreparedPrograms) {
    const ProcessResult prepared = run("prepare_objects.sh");
    EXPECT_EQ(prepared.exitCode, 0);
    EXPECT_EQ(prepared.err, "");
    EXPECT_TRUE(fs::exists(included / "nanovg" / "iostream.gch"));
    EXPECT_FALSE(fs::exists(note));
    expectThatProgramsRun();
}

class NoteOfInstances : public ObjectScript {
protected:
    /// Whether the object gets them when the compiler makes it by its own command.
    bool areWanted() const {
        const ProcessResult text =
            runCommand({"g++", "-E", (home / "src" / "error_handler.cpp").u8string(), "-std=c++17",
                        "-I" + included.u8string()});
        EXPECT_EQ(text.exitCode, 0) << text.err;
        EXPECT_NE(text.out.find("visualWidth"), std::string::npos);
        return text.out.find("pozhil_instances") != std::string::npos;
    }

    void leaveNote(const std::string& date) const {
        fs::create_directories(note.parent_path());
        writeFileText(note, "#define POZHIL_HELD_INSTANCES " + date + "\n");
    }
};

TEST_F(NoteOfInstances, SpeaksOfOneLibraryAlone) {
    EXPECT_FALSE(areWanted()) << "nobody asked for them";
    leaveNote("20010101");
    EXPECT_FALSE(areWanted()) << "somebody asked another library for them";
    leaveNote("__GLIBCXX__");
    EXPECT_TRUE(areWanted());
}

}  // namespace
