#include <algorithm>
#include <limits>
#include <stdexcept>

#include "companion/check/compiled_source.h"
#include "companion/reference/entries.h"
#include "companion/reference/tool_pages.h"
#include "emitted_text.h"
#include "generator/limits.h"
#include "lexer/spelling.h"
#include "syntax/nesting.h"

namespace companion::reference {

namespace {

struct Limit {
    const char* what;
    std::string most;
    const char* code;  ///< What it meets behind it; null where nothing is raised.
};

template <typename Number>
std::string greatest() {
    return std::to_string(std::numeric_limits<Number>::max());
}

/// The depth at which programs end a call: they carry the number themselves.
std::string callDepth() {
    constexpr std::string_view kName = "MAX_CALL_DEPTH = ";
    const std::string_view text = emitted::call_guard;
    const std::size_t at = text.find(kName);
    if (at == std::string_view::npos) throw std::logic_error("no limit of calls");
    const std::string_view number = text.substr(at + kName.size());
    return std::string(number.substr(0, number.find(';')));
}

std::vector<Limit> limits() {
    return {
        {"ஒன்றுக்குள் ஒன்றாக எழுதும் கூற்றுகளும் அடைப்புகளும்", std::to_string(kMaxNesting), "பொழில்-291"},
        {"ஒரே கோவையில் அடுத்தடுத்துச் சேரும் கணக்குகள்", std::to_string(kMaxExpressionDepth), "பொழில்-291"},
        {"பட்டியல்களின்மேல் ஒன்றுக்குள் ஒன்றாகச் சுற்றும் ஒவ்வொன்றாக", std::to_string(kMaxCollectionLoops),
         "பொழில்-291"},
        {"முடியாமல் ஒன்றுக்குள் ஒன்றாக நிற்கும் அழைப்புகள்", callDepth(), "பொழில்-335"},
        {"எழுதக்கூடிய மிகப் பெரிய முழு எண்", greatest<unsigned long long>(), "பொழில்-305"},
        {"கணக்கிடக்கூடிய மிகப் பெரிய முழு எண்", greatest<long long>(), nullptr},
        {"கணக்கிடக்கூடிய மிகச் சிறிய முழு எண்", std::to_string(std::numeric_limits<long long>::min()),
         nullptr},
    };
}

std::string behind(const Limit& limit, const MarkdownPage& page) {
    if (limit.code == nullptr) return "விடை தவறாகும், எதுவும் சொல்லாது";
    return linkTo(entryOf(EntryKind::Code, limit.code), page.path());
}

void writeNames(MarkdownPage& page) {
    const auto codeLink = [&](const char* name) {
        return linkTo(entryOf(EntryKind::Code, name), page.path());
    };
    page.heading(2, "பெயர்கள்");
    page.points({
        "தமிழ் எழுத்துகள், ஆங்கில எழுத்துகள், இலக்கங்கள், `_`. நீளத்துக்கு எல்லை இல்லை. இலக்கத்தில் தொடங்கினால் " +
            codeLink("பொழில்-108") + ".",
        "உயிர்க்குறியில் தொடங்க முடியாது (" + codeLink("பொழில்-106") +
            "); ஜ, ஷ, ஸ, ஹ போன்ற கிரந்த எழுத்துகள் வர "
            "முடியாது (" +
            codeLink("பொழில்-115") + ").",
        link("திறவுச்சொற்களும்", pages::kKeywords) + " " + link("ஒதுக்கிய சொற்களும்", pages::kReserved) +
            " பெயராக முடியாது.",
    });
    std::string near;
    for (const std::string_view word : spelledKeywords()) {
        near += (near.empty() ? "" : ", ") + code(word);
    }
    page.markdown("கீழே உள்ள சொற்களிலிருந்து ஓர் எழுத்தோ குறியோ மட்டும் வேறுபடும் பெயரும் மறுக்கப்படும் (" +
                  codeLink("பொழில்-113") +
                  "): `விலை` என்ற பெயர் `நிலை` என்ற சொல்லின் பிழையாக எடுத்துக்கொள்ளப்படும். " +
                  std::to_string(kFreeLength) +
                  " குறிகள் வரை உள்ள சிறு பெயர்களுக்கு இது இல்லை; `அம்மா` என்பதில் அ, ம, ஒரு "
                  "புள்ளி, ம, ஒரு துணைக்கால் என ஐந்து.");
    page.markdown(near + ".");
}

void writeNumbers(MarkdownPage& page) {
    page.heading(2, "எண்கள்");
    page.points({
        "பின்ன எண்களில் " + std::to_string(std::numeric_limits<long double>::digits10) +
            " இலக்கங்கள் வரை சரியாக இருக்கும்; அச்சிடும்போது புள்ளிக்குப் பின்னே எப்போதும் ஆறு இலக்கங்கள் வரும்.",
        "0 இல் தொடங்கும் முழு எண் எட்டின் அடிமானத்தில் படிக்கப்படும்: 010 என்பது 8.",
        "தமிழ் இலக்கங்களை (௧௨௩) படிக்கும்; அவற்றைக் கொண்டு கணக்கிட முடியாது.",
    });
}

/// What the compiler says to `WORD = 1`.
std::string refusalAsName(const Entry& entry, const MarkdownPage& page) {
    const SourceText source("", entry.word + " = 1\n");
    const ModuleReader noModules = [](const std::string&, std::string&) { return false; };
    const CompiledSource compiled(source, noModules);
    if (!compiled.refused) return "ஏற்கப்படும்";
    return linkTo(entryOf(EntryKind::Code, compiled.refused->code), page.path());
}

}  // namespace

MarkdownPage limitsPage() {
    MarkdownPage page(pages::kLimits, "எல்லைகள்");
    page.prose("நிரல் எவ்வளவு பெரிதாகலாம், எண்கள் எதுவரை போகலாம், பெயர்கள் எப்படி இருக்கலாம்.");
    std::vector<std::vector<std::string>> rows;
    for (const Limit& limit : limits()) {
        rows.push_back({escaped(limit.what), limit.most, behind(limit, page)});
    }
    page.table({"எது", "எல்லை", "தாண்டினால்"}, rows);
    page.prose("கோப்பின் நீளத்துக்கும், உரை, பட்டியல், அகராதி ஆகியவற்றின் அளவுக்கும் கணினியின் நினைவகமே எல்லை.");
    writeNumbers(page);
    writeNames(page);
    return page;
}

MarkdownPage reservedPage() {
    MarkdownPage page(pages::kReserved, "ஒதுக்கிய சொற்கள்");
    page.prose(
        "பொழில் இவற்றுக்கென இடம் ஒதுக்கியிருக்கிறது; இப்போது இவை எதையும் செய்யா. பெயராக வைத்தால் பெரும்பாலானவை "
        "மறுக்கப்படும்: வேறு பெயர் தேர்ந்தெடு.");
    std::vector<std::vector<std::string>> rows;
    for (const Entry* entry : entriesOf(EntryKind::Reserved)) {
        rows.push_back({anchor(entry->anchor) + code(entry->word), refusalAsName(*entry, page)});
    }
    page.table({"சொல்", "பெயராக வைத்தால்"}, rows);
    return page;
}

}  // namespace companion::reference
