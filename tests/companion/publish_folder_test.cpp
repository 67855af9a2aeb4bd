// The folder: whole or not at all, and nothing of anybody else's is touched.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <filesystem>
#include <set>

#include "companion/publish/content_name.h"
#include "companion/publish/failure.h"
#include "companion/publish/folder.h"
#include "support/subprocess.h"
#include "web/scratch_directory.h"

namespace {

namespace fs = std::filesystem;

using companion::contentName;
using companion::PublishedFile;

class PublishedFolder : public ScratchDirectory {
protected:
    void publish(const std::vector<PublishedFile>& files) const {
        companion::placeFiles(folder, files);
    }

    std::set<std::string> names() const {
        std::set<std::string> found;
        for (const auto& entry : fs::directory_iterator(fs::u8path(folder))) {
            found.insert(entry.path().filename().u8string());
        }
        return found;
    }

    static PublishedFile script(const std::string& content) {
        return {contentName("index.js", content), content};
    }
    static PublishedFile page(const std::string& content) { return {"index.html", content}; }

    const std::string folder = directory.u8string() + "/என் தளம்";
};

TEST_F(PublishedFolder, IsMadeWithAllAboveIt) {
    const std::string deep = directory.u8string() + "/a/b/தளம்";
    const mode_t mask = umask(022);
    companion::placeFiles(deep, {script("x"), page("p")});
    umask(mask);
    EXPECT_EQ(read("a/b/தளம்/index.html"), "p");
    EXPECT_EQ(read("a/b/தளம்/" + script("x").name), "x");
    // A host isn't always who published.
    EXPECT_EQ(fs::status(fs::u8path(deep)).permissions(), fs::perms(0755));
    EXPECT_EQ(fs::status(fs::u8path(deep) / "index.html").permissions(), fs::perms(0644));
    EXPECT_EQ(std::distance(fs::directory_iterator("a/b"), fs::directory_iterator()), 1);
}

TEST_F(PublishedFolder, GivesAProgramTheRightToRun) {
    publish({{"நிரல்", "#!/bin/sh\nexit 7\n", true}});
    EXPECT_EQ(runCommand({folder + "/நிரல்"}).exitCode, 7);
}

TEST_F(PublishedFolder, MayBeEmptyOrPublishedBefore) {
    fs::create_directory(fs::u8path(folder));
    publish({script("old"), page("old")});
    EXPECT_EQ(names(),
              (std::set<std::string>{companion::kListName, "index.html", script("old").name}));
    publish({script("new"), page("new")});
    EXPECT_EQ(names(),
              (std::set<std::string>{companion::kListName, "index.html", script("new").name}));
    EXPECT_EQ(read("என் தளம்/index.html"), "new");
}

TEST_F(PublishedFolder, KeepsWhatOthersPutThere) {
    publish({script("old"), page("old")});
    const std::string likeOurs = contentName("photo.js", "theirs");
    write("என் தளம்/CNAME", "theirs");
    write("என் தளம்/" + likeOurs, "theirs");
    publish({script("new"), page("new")});
    EXPECT_EQ(read("என் தளம்/CNAME"), "theirs");
    EXPECT_EQ(read("என் தளம்/" + likeOurs), "theirs");
}

TEST_F(PublishedFolder, RemovesNothingThatAListNamesButIsNoNameOfOurs) {
    publish({script("old"), page("old")});
    write("letters.txt", "theirs");
    write("என் தளம்/notes.txt", "theirs");
    const std::string list = read("என் தளம்/" + std::string(companion::kListName));
    write("என் தளம்/" + std::string(companion::kListName), list + "../letters.txt\nnotes.txt\n");
    publish({script("new"), page("new")});
    EXPECT_EQ(read("letters.txt"), "theirs");
    EXPECT_EQ(read("என் தளம்/notes.txt"), "theirs");
}

TEST_F(PublishedFolder, LeavesAFileThatStaysAlone) {
    publish({script("same"), page("old")});
    const fs::path kept = fs::u8path(folder) / script("same").name;
    const auto long_ago = fs::file_time_type::clock::now() - std::chrono::hours(100);
    fs::last_write_time(kept, long_ago);
    publish({script("same"), page("new")});
    EXPECT_EQ(fs::last_write_time(kept), long_ago);
}

TEST_F(PublishedFolder, IsRefusedWithForeignFilesInIt) {
    write("என் தளம்/கவிதை.txt", "theirs");
    EXPECT_THROW(companion::refuseForeignFolder(folder), companion::PublishFailure);
    EXPECT_THROW(publish({page("p")}), companion::PublishFailure);
    EXPECT_EQ(names(), std::set<std::string>{"கவிதை.txt"});
    // A file of that name isn't enough.
    write("என் தளம்/" + std::string(companion::kListName), "கவிதை.txt\n");
    EXPECT_THROW(publish({page("p")}), companion::PublishFailure);
}

TEST_F(PublishedFolder, IsNoFile) {
    write("என் தளம்", "theirs");
    EXPECT_THROW(publish({page("p")}), companion::PublishFailure);
    EXPECT_EQ(read("என் தளம்"), "theirs");
}

/// Publishes in a process that can write no file of more than 1000 bytes, as on a full disk.
int publishOnFullDisk(const std::string& folder, const std::vector<PublishedFile>& files) {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {1000, 1000};
    setrlimit(RLIMIT_FSIZE, &limit);
    try {
        companion::placeFiles(folder, files);
    } catch (const companion::PublishFailure&) {
        return 3;
    }
    return 0;
}

TEST_F(PublishedFolder, StaysAsItWasOnAFullDisk) {
    const std::vector<PublishedFile> files = {script("new"), page(std::string(5000, 'p'))};
    EXPECT_EQ(runForked([&] { return publishOnFullDisk(folder, files); }).exitCode, 3);
    EXPECT_EQ(std::distance(fs::directory_iterator(directory), fs::directory_iterator()), 0);

    publish({script("old"), page("old")});
    const auto before = names();
    EXPECT_EQ(runForked([&] { return publishOnFullDisk(folder, files); }).exitCode, 3);
    EXPECT_EQ(names(), before);
    EXPECT_EQ(read("என் தளம்/index.html"), "old");
}

TEST_F(PublishedFolder, GetsItsPageLast) {
    publish({script("old"), page("old")});
    // Nothing can take the place of a folder that holds something.
    write("என் தளம்/" + script("new").name + "/in_the_way", "");
    EXPECT_THROW(publish({script("new"), page("new")}), fs::filesystem_error);
    EXPECT_EQ(read("என் தளம்/index.html"), "old");
    EXPECT_EQ(read("என் தளம்/" + script("old").name), "old");
    fs::remove_all(fs::u8path(folder) / script("new").name);
    publish({script("new"), page("new")});
    EXPECT_EQ(names(),
              (std::set<std::string>{companion::kListName, "index.html", script("new").name}));
}

}  // namespace
