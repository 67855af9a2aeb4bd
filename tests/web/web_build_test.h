// A web build with an em++ that does as it is told.
#pragma once

#include "driver/served_page.h"
#include "driver/warmed_web.h"
#include "driver/web_build.h"
#include "web/scratch_directory.h"
#include "web/tree.h"

class WebBuildTest : public ScratchDirectory {
protected:
    WebBuildTest()
        : path(std::getenv("PATH")),
          here(directory.u8string()),
          build{here + "/app", here + "/cache"} {
        std::filesystem::create_directory("cache");
        std::filesystem::create_directory("வெளியீடு");
        write("app/உள்ளடக்கம்/template.html", "{{{ இணைய_தலைப்பு }}}<body>{{{ SCRIPT }}}</body>");
        setenv("PATH", (here + "/bin:" + path).c_str(), 1);
        compilerSays("exit 0");
        storePage("");
        g_appVersion = 1;
        g_isWarmedWebRefused = false;
    }

    ~WebBuildTest() override { setenv("PATH", path.c_str(), 1); }

    /// An em++ that notes its arguments, each in square brackets, and runs `script`.
    void compilerSays(const std::string& script) const {
        write("bin/em++", "#!/bin/sh\n{ printf '[%s]' \"$@\"; echo; } >>'" + here + "/calls'\n" +
                              script + "\n");
        std::filesystem::permissions("bin/em++", static_cast<std::filesystem::perms>(0755));
    }

    bool run(const std::string& code = "// நிரல்\n") const {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const bool built = buildWebApplication(tree, code, build);
        out = testing::internal::GetCapturedStdout();
        err = testing::internal::GetCapturedStderr();
        return built;
    }

    const std::string path;
    const std::string here;
    const WebBuild build;
    Program tree = program(application(head(properties(entry("இணைய_தலைப்பு", text("த"))))));
    mutable std::string out;
    mutable std::string err;
};
