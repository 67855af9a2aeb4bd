#include "driver/prepared_workplace.h"

namespace fs = std::filesystem;

PreparedWorkplace::PreparedWorkplace() {
    fs::remove(home / "src");
    fs::copy(fs::u8path(POZHIL_ROOT) / "src", home / "src", fs::copy_options::recursive);
    fs::create_directories(home / "scripts");
    for (const char* script : {"prepare_objects.sh", "warm_header.sh"}) {
        fs::copy_file(fs::u8path(POZHIL_ROOT) / "scripts" / script, home / "scripts" / script);
    }
}

int PreparedWorkplace::runScript(const std::string& script) const {
    return runCommand({"bash", (home / "scripts" / script).u8string()},
                      {work.u8string(), environment(), "", 240})
        .exitCode;
}

// The times of files are kept: the script knows the object by its own.
void PreparedWorkplace::prepare() const {
    const std::string copy =
        "mkdir -p \"$1/உள்ளடக்கம்/nanovg\"\n"
        "for file in திரட்டு/error_handler_native_linux.o{,.stamp} "
        "உள்ளடக்கம்/nanovg/{iostream{,.gch,.gch.stamp},held_instances.h}; do\n"
        "    [ ! -f \"$file\" ] || cp -p \"$file\" \"$1/$file\"\n"
        "done\n";
    ProcessOptions options;
    options.directory = POZHIL_ROOT;
    ASSERT_EQ(runCommand({"bash", "-c", copy, "bash", home.u8string()}, options).exitCode, 0);
    ASSERT_EQ(runScript("prepare_objects.sh"), 0);
    ASSERT_TRUE(fs::exists(header));
    ASSERT_TRUE(fs::exists(included / "nanovg" / "held_instances.h"));
}
