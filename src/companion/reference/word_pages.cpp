#include "companion/reference/word_pages.h"

#include <stdexcept>

#include "companion/check/calls_builtins.h"
#include "companion/descriptions/names.h"
#include "companion/descriptions/words.h"
#include "companion/reference/builtin_facts.h"
#include "companion/reference/entries.h"
#include "companion/reference/explained.h"
#include "parser/operator_levels.h"

namespace companion::reference {

namespace {

/// The sections of all words of a kind, below a heading for each topic that has some.
template <typename WriteWord>
void writeTopics(MarkdownPage& page, WordKind kind, WriteWord write) {
    for (const WordTopic& topic : wordTopics()) {
        bool isOpen = false;
        for (const Description& word : topic.words) {
            if (word.kind != kind) continue;
            if (!isOpen) page.heading(2, escaped(topic.title));
            isOpen = true;
            write(word);
        }
    }
}

void writeTopics(MarkdownPage& page, WordKind kind, EntryKind entries) {
    writeTopics(page, kind, [&](const Description& word) {
        writeSection(page, 3, word, entryOf(entries, word.word));
    });
}

// ---- Operators ----

std::string operatorsAt(const MarkdownPage& page, int level) {
    std::string words;
    for (const Description& word : wordDescriptions()) {
        if (word.kind != WordKind::Operator || levelOfOperator(word.word) != level) continue;
        if (level == 0 && !isPrefixOperator(word)) continue;
        if (!words.empty()) words += ", ";
        words += linkTo(entryOf(EntryKind::Operator, word.word), page.path());
    }
    return words;
}

void writePrecedence(MarkdownPage& page) {
    page.heading(2, "எது முதலில்?", "வரிசை");
    page.prose(
        "மேலே இருப்பது முதலில் நடக்கும். ஒரே வரிசையில் இருப்பவை இடமிருந்து வலமாக நடக்கும். ஐயம் இருந்தால் அடைப்புக்குறி "
        "போடு: அடைப்புக்குள் இருப்பது எப்போதும் முதலில்.");
    std::vector<std::vector<std::string>> rows;
    rows.push_back({"1", operatorsAt(page, 0), "வலப்பக்கத்தை மட்டும் எடுப்பவை"});
    for (int level = kFactor; level >= kLogicalOr; level--) {
        const int place = kFactor - level + 2;
        rows.push_back({std::to_string(place), operatorsAt(page, level), "இரு பக்கமும் எடுப்பவை"});
    }
    page.table({"வரிசை", "சொற்கள்", "எப்படி"}, rows);
    page.markdown("எல்லாவற்றுக்கும் பிறகு " +
                  linkTo(entryOf(EntryKind::Operator, "எனில்"), page.path()) +
                  " என்று நிபந்தனையால் மதிப்பைத் தேர்ந்தெடுப்பதும், கடைசியாக மதிப்பை மாற்றும் சொற்களும் நடக்கும்.");
}

// ---- Built-in calls ----

std::string nameOfCast(const std::string& type) {
    if (type.empty()) return "எந்த மதிப்பும்";
    if (type == "std::string") return "உரை";
    if (type == "long double") return "பின்ன எண் (முழு எண் அல்ல: 16.0)";
    if (type == "long long") return "முழு எண்";
    if (type == "std::tm*") return "நேரம்";
    throw std::logic_error("no words for a " + type);
}

std::string nameOfResult(VarType type) {
    switch (type) {
        case VarType::Integer: return "முழு எண்";
        case VarType::Decimal: return "பின்ன எண்";
        case VarType::String: return "உரை";
        case VarType::Boolean: return "மெய் அல்லது பொய்";
        case VarType::Time: return "நேரம்";
        case VarType::List: return "பட்டியல்";
        case VarType::Object: return "பொருள்";
        case VarType::Map: return "அகராதி";
        case VarType::Unset:
        case VarType::Dynamic: break;
    }
    return "";  // the summary tells
}

std::string countOf(const BuiltinFacts& facts) {
    if (facts.most == kAnyCount) return "எத்தனையும்";
    std::string most = std::to_string(facts.most);
    if (facts.least == facts.most) return most;
    return std::to_string(facts.least) + (facts.least + 1 == facts.most ? " அல்லது " : " முதல் ") +
           most;
}

std::string argumentsOf(const BuiltinFacts& facts) {
    std::string text;
    for (const ArgumentFact& argument : facts.arguments) {
        if (!text.empty()) text += "; ";
        text += std::to_string(argument.letter - 'A' + 1) + ": " + nameOfCast(argument.cast);
    }
    return text;
}

std::string codesOf(const BuiltinFacts& facts, const MarkdownPage& page) {
    std::string text;
    for (const std::string& name : facts.codes) {
        if (!text.empty()) text += ", ";
        text += linkTo(entryOf(EntryKind::Code, name), page.path());
    }
    return text;
}

void writeBuiltIn(MarkdownPage& page, const Description& word) {
    const BuiltinFacts facts = factsOf(word.word);
    page.heading(3, code(word.word), entryOf(EntryKind::BuiltIn, word.word).anchor);
    writeMeaning(page, word);
    page.labelled("எத்தனை மதிப்புகள்", countOf(facts));
    page.labelled("அவற்றின் வகை", argumentsOf(facts));
    page.labelled("தருவது", nameOfResult(facts.result));
    page.labelledMarkdown("வரக்கூடிய பிழைகள்", codesOf(facts, page));
    writeUse(page, word);
}

}  // namespace

MarkdownPage keywordsPage() {
    MarkdownPage page(pages::kKeywords, "திறவுச்சொற்கள்");
    page.prose(
        "நிரலின் அமைப்பைச் சொல்லும் சொற்கள். இவற்றைப் பெயர்களாக வைக்க முடியாது. எடுத்துக்காட்டின் கீழே நிற்பது அந்த நிரல் "
        "அச்சிடுவது.");
    writeTopics(page, WordKind::Keyword, EntryKind::Keyword);
    return page;
}

MarkdownPage marksPage() {
    MarkdownPage page(pages::kMarks, "குறிகள்");
    page.prose(
        "சொற்களுக்கு நடுவே நிற்கும் குறிகள். கணக்குக்கும் ஒப்பீட்டுக்கும் குறிகள் இல்லை; அவற்றுக்குச் சொற்கள்தான்.");
    writeTopics(page, WordKind::Mark, EntryKind::Mark);
    return page;
}

MarkdownPage operatorsPage() {
    MarkdownPage page(pages::kOperators, "செயற்குறிகள்");
    page.prose("கணக்கிடும், ஒப்பிடும், மதிப்பை மாற்றும் சொற்கள்.");
    writePrecedence(page);
    writeTopics(page, WordKind::Operator, EntryKind::Operator);
    return page;
}

MarkdownPage builtInsPage() {
    MarkdownPage page(pages::kBuiltIns, "உள்ளமைந்த செயல்கள்");
    page.prose(
        "எதையும் இறக்காமல் எந்த நிரலிலும் அழைக்கக்கூடியவை. சொன்ன வகையில் இல்லாத மதிப்பைக் கொடுத்தால், பிழை எண் இல்லாமலும் "
        "நிரல் நின்றுவிடும்.");
    writeTopics(page, WordKind::BuiltIn,
                [&](const Description& word) { writeBuiltIn(page, word); });
    return page;
}

MarkdownPage membersPage() {
    MarkdownPage page(pages::kMembers, "புள்ளியின் பின்னே வரும் சொற்கள்");
    page.prose("ஒரு பெயரின் பின்னே புள்ளி வைத்து எழுதுபவை: பட்டியல், நேரம், உரைபெட்டி ஆகியவற்றின் சொற்கள்.");
    writeTopics(page, WordKind::Member, EntryKind::Member);
    return page;
}

}  // namespace companion::reference
