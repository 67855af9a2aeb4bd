#include "companion/reference/code_pages.h"

#include "companion/descriptions/names.h"
#include "companion/reference/entries.h"
#include "driver/console_texts.h"
#include "error_codes.h"

namespace companion::reference {

namespace {

struct Hundred {
    char digit;
    const char* title;
};
const Hundred kHundreds[] = {
    {'1', "எழுத்துகளும் சொற்களும்"},
    {'2', "எழுதும் முறை"},
    {'3', "பொருளும் ஓட்டமும்"},
    {'4', "வலைதளத்தின் அமைப்பு"},
};

std::string titleOf(const Hundred& hundred) {
    return std::string("பிழைகள் ") + hundred.digit + "00: " + hundred.title;
}

std::string nameOfCode(const CodeDescription& code) { return "பொழில்-" + std::string(code.digits); }

/// What the compiler prints where it shows no report, without the marks that colour it.
std::string lineInsteadOfReport() {
    std::string line;
    const std::string_view shown = kGenerateFailure;
    for (std::size_t at = 0; at < shown.size(); at++) {
        if (shown[at] == '\033') at = shown.find('m', at) + 1;
        if (at < shown.size()) line += shown[at];
    }
    return line;
}

void writeCode(MarkdownPage& page, const CodeDescription& each) {
    const std::string name = nameOfCode(each);
    const பிழைதகவல்& told = பிழை_அகராதி.at(name);
    page.heading(2, name, entryOf(EntryKind::Code, name).anchor);
    page.prose(told.விளக்கம்);
    page.labelled("எப்போது", momentOf(each.moment));
    page.labelled("ஏன்", each.text);
    page.labelled("தீர்வு", told.தீர்வு);
    if (each.moment == CodeMoment::Never) return;
    page.prose("இப்படி எழுதினால் வரும்:");
    page.fence("பொழில்", each.wrong);
    page.fence("அறிக்கை", each.moment == CodeMoment::Unshown ? lineInsteadOfReport() : each.report);
    page.prose("இப்படி எழுது:");
    page.fence("பொழில்", each.right);
}

}  // namespace

MarkdownPage codesPage() {
    MarkdownPage page(pages::kCodes, "பிழைகள்");
    page.markdown(
        "பொழில் காட்டும் எல்லாப் பிழை எண்களும். முனையத்தில் ஓர் எண்ணைப் பற்றிக் கேட்க: `பொழில்-துணை விளக்கு 203`. துணை "
        "கண்டுபிடிப்பவை இங்கே இல்லை; அவை [துணையின் விதிகளில்](../துணை_விதிகள்.md) உள்ளன.");
    for (const Hundred& hundred : kHundreds) {
        page.heading(2, link(escaped(titleOf(hundred)), pageOfCodes(hundred.digit)));
        std::vector<std::vector<std::string>> rows;
        for (const CodeDescription& each : codeDescriptions()) {
            if (each.digits[0] != hundred.digit) continue;
            const std::string name = nameOfCode(each);
            rows.push_back({linkTo(entryOf(EntryKind::Code, name), page.path()),
                            escaped(பிழை_அகராதி.at(name).விளக்கம்), momentOf(each.moment)});
        }
        page.table({"எண்", "பிழை", "எப்போது"}, rows);
    }
    return page;
}

std::vector<MarkdownPage> codePages() {
    std::vector<MarkdownPage> all;
    for (const Hundred& hundred : kHundreds) {
        MarkdownPage page(pageOfCodes(hundred.digit), titleOf(hundred));
        page.markdown(link("எல்லாப் பிழைகளும்", pages::kCodes));
        for (const CodeDescription& each : codeDescriptions()) {
            if (each.digits[0] == hundred.digit) writeCode(page, each);
        }
        all.push_back(std::move(page));
    }
    return all;
}

}  // namespace companion::reference
