// Every link between the project's documents leads to a file that is there, and to a heading in it.
#include "links.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "pages.h"
#include "support/case_files.h"

namespace fs = std::filesystem;

namespace {

bool leadsOutside(const std::string& target) {
    return target.find("://") != std::string::npos || target.rfind("mailto:", 0) == 0;
}

/// Each page is read once, however many links lead there.
const std::set<std::string>& anchorsIn(const fs::path& page) {
    static std::map<fs::path, std::set<std::string>> known;
    const fs::path own = fs::canonical(page);
    const auto found = known.find(own);
    if (found != known.end()) return found->second;
    return known.emplace(own, anchorsOf(readText(own.u8string()))).first->second;
}

void expectTarget(const std::string& page, const Link& link) {
    const std::size_t sign = link.target.find('#');
    const std::string file = link.target.substr(0, sign);
    const fs::path path =
        file.empty() ? fs::u8path(page) : fs::u8path(page).parent_path() / fs::u8path(file);
    ASSERT_TRUE(fs::exists(path)) << page << ":" << link.line << ": " << link.target;
    if (sign == std::string::npos) return;
    EXPECT_EQ(anchorsIn(path).count(link.target.substr(sign + 1)), 1U)
        << page << ":" << link.line << ": " << link.target;
}

TEST(Links, LeadToFilesAndHeadings) {
    int count = 0;
    for (const std::string& page : allPages()) {
        for (const Link& link : linksOf(readText(page))) {
            if (leadsOutside(link.target)) continue;
            count++;
            expectTarget(page, link);
        }
    }
    EXPECT_GT(count, 10);
}

TEST(Links, AreFoundOutsideOfFencesAndCode) {
    const auto links = linksOf(
        "[ஒன்று](a%20b.md#x) ![படம்](c.png)\n```\n[இல்லை](d.md)\n```\n`[இல்லை](e.md)` <img src=\"f.png\">\n");
    ASSERT_EQ(links.size(), 3U);
    EXPECT_EQ(links[0].target, "a b.md#x");
    EXPECT_EQ(links[1].target, "c.png");
    EXPECT_EQ(links[2].target, "f.png");
    EXPECT_EQ(links[2].line, 5);
}

TEST(Links, NameHeadingsAsViewersDo) {
    const auto anchors = anchorsOf("# முதல் நிரல்: `அச்சிடு`\n<a id=\"இங்கே\"></a>\n## Two words!\n");
    EXPECT_EQ(anchors, (std::set<std::string>{"முதல்-நிரல்-அச்சிடு", "இங்கே", "two-words"}));
}

}  // namespace
