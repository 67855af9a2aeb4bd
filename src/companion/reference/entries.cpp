#include "companion/reference/entries.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "companion/descriptions/codes.h"
#include "companion/reference/markdown.h"
#include "lexer/word_tables.h"

namespace companion::reference {

namespace {

struct KindPage {
    WordKind from;
    EntryKind kind;
    const char* page;
};
const KindPage kWordPages[] = {
    {WordKind::Keyword, EntryKind::Keyword, pages::kKeywords},
    {WordKind::Operator, EntryKind::Operator, pages::kOperators},
    {WordKind::Mark, EntryKind::Mark, pages::kMarks},
    {WordKind::BuiltIn, EntryKind::BuiltIn, pages::kBuiltIns},
    {WordKind::Member, EntryKind::Member, pages::kMembers},
    {WordKind::Application, EntryKind::Application, pages::kApplication},
};

struct GroupPage {
    ValueGroup from;
    EntryKind kind;
    const char* page;
};
const GroupPage kValuePages[] = {
    {ValueGroup::Colour, EntryKind::Colour, pages::kColours},
    {ValueGroup::Alignment, EntryKind::Alignment, pages::kPlaces},
    {ValueGroup::Trigger, EntryKind::Trigger, pages::kPlaces},
    {ValueGroup::Curve, EntryKind::Curve, pages::kCurves},
};

/// Signs make poor ids: their bytes stand in their place.
std::string idOfMark(std::string_view mark) {
    constexpr const char* kDigits = "0123456789abcdef";
    std::string id = "குறி-";
    for (const char byte : mark) {
        const auto value = static_cast<unsigned char>(byte);
        id += kDigits[value >> 4U];
        id += kDigits[value & 0xFU];
    }
    return id;
}

void addWords(std::vector<Entry>& entries) {
    for (const KindPage& row : kWordPages) {
        for (const auto* words : {&wordDescriptions(), &widgetDescriptions()}) {
            for (const Description& each : *words) {
                if (each.kind != row.from) continue;
                const std::string word(each.word);
                const bool isMark = row.kind == EntryKind::Mark;
                entries.push_back({row.kind, word, row.page, isMark ? idOfMark(word) : word});
            }
        }
    }
}

void addWidgets(std::vector<Entry>& entries) {
    for (const Description& each : widgetDescriptions()) {
        if (each.kind != WordKind::Widget) continue;
        const std::string word(each.word);
        entries.push_back({EntryKind::Widget, word, pages::kWidgetFolder + word + ".md", ""});
    }
}

void addProperties(std::vector<Entry>& entries) {
    std::set<std::string_view> words;
    for (const PropertyDescription& each : propertyDescriptions()) {
        if (!words.insert(each.word).second) continue;
        const std::string word(each.word);
        entries.push_back({EntryKind::Property, word, pages::kProperties, word});
    }
}

void addValues(std::vector<Entry>& entries) {
    for (const GroupPage& row : kValuePages) {
        for (const ValueDescription& each : valueDescriptions()) {
            const std::string word(each.word);
            if (each.group == row.from) entries.push_back({row.kind, word, row.page, word});
        }
    }
}

void addCodes(std::vector<Entry>& entries) {
    for (const CodeDescription& each : codeDescriptions()) {
        const std::string name = "பொழில்-" + std::string(each.digits);
        entries.push_back({EntryKind::Code, name, pageOfCodes(each.digits[0]), name});
    }
}

/// Words that the scanner gives a kind of their own and nothing else tells of.
void addReserved(std::vector<Entry>& entries) {
    std::set<std::string> told;
    for (const Entry& entry : entries) told.insert(entry.word);
    std::set<std::string> words;
    for (const auto* table : {&kFirstWords, &IF_KEYWORDS, &WEB_KEYWORDS, &ANIMATION_KEYWORDS,
                              &OPERATOR_KEYWORDS, &ASSIGN_KEYWORDS, &INC_DEC_KEYWORDS}) {
        for (const auto& row : *table) {
            if (told.count(row.first) == 0) words.insert(row.first);
        }
    }
    for (const std::string& word : words) {
        entries.push_back({EntryKind::Reserved, word, pages::kReserved, word});
    }
}

}  // namespace

const std::vector<Entry>& allEntries() {
    static const std::vector<Entry> all = [] {
        std::vector<Entry> entries;
        addWords(entries);
        addWidgets(entries);
        addProperties(entries);
        addValues(entries);
        addCodes(entries);
        addReserved(entries);
        return entries;
    }();
    return all;
}

std::vector<const Entry*> entriesOf(EntryKind kind) {
    std::vector<const Entry*> entries;
    for (const Entry& entry : allEntries()) {
        if (entry.kind == kind) entries.push_back(&entry);
    }
    return entries;
}

const Entry& entryOf(EntryKind kind, std::string_view word) {
    const auto& all = allEntries();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Entry& entry) {
        return entry.kind == kind && entry.word == word;
    });
    if (found == all.end()) throw std::logic_error("no entry of " + std::string(word));
    return *found;
}

const Entry& entryOf(const Description& word) {
    for (const KindPage& row : kWordPages) {
        if (row.from == word.kind) return entryOf(row.kind, word.word);
    }
    return entryOf(EntryKind::Widget, word.word);
}

std::string pathFrom(std::string_view page, std::string_view target) {
    std::string path;
    for (const char byte : page) {
        if (byte == '/') path += "../";
    }
    return path + std::string(target);
}

std::string linkTo(const Entry& entry, std::string_view page) {
    std::string target = entry.page == page ? "" : pathFrom(page, entry.page);
    if (!entry.anchor.empty()) target += "#" + entry.anchor;
    return link(code(entry.word), target);
}

std::string pageOfCodes(char digit) { return std::string("பிழைகள்_") + digit + "00.md"; }

}  // namespace companion::reference
