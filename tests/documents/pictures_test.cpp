// The README's pictures note what they were made from: scripts/readme_pictures.sh makes them anew.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/case_files.h"
#include "support/subprocess.h"

namespace {

/// The checksum of the files' texts, one behind the other, as the script notes it.
std::string checksumOf(const std::vector<std::string>& files) {
    ProcessOptions options;
    for (const std::string& file : files) options.input += readText(POZHIL_ROOT "/docs/" + file);
    std::string told = runCommand({"cksum"}, options).out;
    told.erase(std::find(told.begin(), told.end(), '\n'), told.end());
    return told;
}

void expectMadeFrom(const std::string& picture, const std::vector<std::string>& files) {
    const std::string note = std::string("made-from") + '\0' + checksumOf(files);
    EXPECT_NE(readText(POZHIL_ROOT "/docs/" + picture).find(note), std::string::npos)
        << picture << " shows something else: scripts/readme_pictures.sh makes it anew";
}

TEST(ReadmePictures, ShowWhatTheirFilesHold) {
    expectMadeFrom("report.png", {"ஒருபிழை.பொழில்"});
    expectMadeFrom("program.png", {"நிரல்கள்/07/சீட்டு.பொழில்", "நிரல்கள்/07/சீட்டு.out"});
}

}  // namespace
