// tests/support/run_program.sh: what it tells of a program of tests that runs whole.
#include "driver/workplace.h"

namespace {

class ProgramRunner : public Workplace {
protected:
    /// Runs a stand-in for a program of tests: a script. Answers what the runner says.
    ProcessResult run(const std::string& script) const {
        const std::string runner = std::string(POZHIL_ROOT) + "/tests/support/run_program.sh";
        return runCommand({"bash", runner, counts(), "2", "bash", "-c", script},
                          {work.u8string(), {}, "", 60});
    }

    std::string counted() const { return readFileText(counts()); }

private:
    std::string counts() const { return (root / "counts" / "a.1").u8string(); }
};

const std::string kPassing =
    "echo '[==========] Running 3 tests from 1 test suite.'\n"
    "echo '[ RUN      ] A.One'; echo seen; echo '[       OK ] A.One (0 ms)'\n";
const std::string kEnd = "echo '[==========] 3 tests from 1 test suite ran. (1 ms total)'\n";

TEST_F(ProgramRunner, SaysNothingOfWhatPasses) {
    const ProcessResult result =
        run(kPassing +
            "echo '[ RUN      ] A.Two'; printf 'no line end'; echo '[       OK ] A.Two (0 ms)'\n"
            "echo '[ RUN      ] A.Three'; echo '[  SKIPPED ] A.Three (0 ms)'\n" +
            kEnd + "echo '[  PASSED  ] 2 tests.'");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(counted(), "2 0 1\n");
}

TEST_F(ProgramRunner, ShowsWhatAFailingOneSaid) {
    const ProcessResult result =
        run(kPassing + "echo '[ RUN      ] A.Two'; echo wrong; echo '[  FAILED  ] A.Two (0 ms)'\n" +
            kEnd + "echo '[  FAILED  ] A.Two'; exit 1");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "[ RUN      ] A.Two\nwrong\n[  FAILED  ] A.Two (0 ms)\n");
    EXPECT_EQ(counted(), "1 1 0\n");
}

TEST_F(ProgramRunner, CountsTheTestInWhichTheProgramEnded) {
    const ProcessResult result =
        run(kPassing + "echo '[ RUN      ] A.Two'; echo last; kill -SEGV $$");
    EXPECT_EQ(result.exitCode, 139);
    EXPECT_EQ(result.out.rfind("[ RUN      ] A.Two\nlast\n", 0), 0U) << result.out;
    EXPECT_NE(result.out.find("[  FAILED  ] A.Two: the program ended in it\n"), std::string::npos);
    EXPECT_EQ(counted(), "1 1 0\n");
}

TEST_F(ProgramRunner, EndsWhatNeverEnds) {
    const ProcessResult result = run(kPassing + "echo '[ RUN      ] A.Two'; sleep 60");
    EXPECT_EQ(result.exitCode, 124);
    EXPECT_EQ(counted(), "1 1 0\n");
}

TEST_F(ProgramRunner, CountsAStatusThatNoTestExplains) {
    const ProcessResult result = run(kPassing + kEnd + "echo leak; exit 23");
    EXPECT_EQ(result.exitCode, 23);
    EXPECT_NE(
        result.out.find("ran. (1 ms total)\nleak\nstatus 23, 1 tests passed and none failed\n"),
        std::string::npos)
        << result.out;
    EXPECT_EQ(counted(), "1 1 0\n");
}

TEST_F(ProgramRunner, NoTestAtAllIsAFailure) {
    const ProcessResult result = run("echo nothing");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "nothing\nstatus 0, 0 tests passed and none failed\n");
    EXPECT_EQ(counted(), "0 1 0\n");
}

}  // namespace
