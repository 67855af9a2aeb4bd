#include "companion/reference/where.h"

#include <cstring>

#include "companion/pieces.h"
#include "companion/reference/word_bytes.h"

namespace companion::reference {

namespace {

struct KindSection {
    EntryKind kind;
    const char* title;
};
const KindSection kSections[] = {
    {EntryKind::Keyword, "திறவுச்சொற்கள்"},
    {EntryKind::Operator, "செயற்குறிகள்"},
    {EntryKind::Mark, "குறிகள்"},
    {EntryKind::BuiltIn, "உள்ளமைந்த செயல்கள்"},
    {EntryKind::Member, "புள்ளியின் பின்னே வரும் சொற்கள்"},
    {EntryKind::Application, "வலைதளத்தின் பகுதிகள்"},
    {EntryKind::Widget, "உறுப்புகள்"},
    {EntryKind::Property, "பண்புகள்"},
    {EntryKind::Colour, "நிறங்கள்"},
    {EntryKind::Alignment, "சீரமைப்பு"},
    {EntryKind::Trigger, "அசைவூட்டத்தின் நிலைமை"},
    {EntryKind::Curve, "வளைவுகள்"},
    {EntryKind::Code, "பிழைகள்"},
    {EntryKind::Reserved, "ஒதுக்கிய சொற்கள்"},
};

bool standsAlone(std::string_view text, std::size_t at, std::size_t length) {
    return (at == 0 || !isWordByte(text[at - 1])) &&
           (at + length == text.size() || !isWordByte(text[at + length]));
}

/// As `text.find(word, from)`, which stops at each Tamil letter: all of them begin with the same
/// byte.
std::size_t placeOf(std::string_view word, std::string_view text, std::size_t from) {
    const void* found = memmem(text.data() + from, text.size() - from, word.data(), word.size());
    return found == nullptr
               ? std::string_view::npos
               : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

/// True if `word` stands whole in `text`, where `fits` is true of what is before and behind it.
template <typename Fits>
bool standsIn(std::string_view text, std::string_view word, Fits fits) {
    for (std::size_t at = placeOf(word, text, 0); at != std::string_view::npos;
         at = placeOf(word, text, at + 1)) {
        const char before = at == 0 ? '\n' : text[at - 1];
        const std::size_t end = at + word.size();
        const char behind = end < text.size() ? text[end] : '\n';
        if (standsAlone(text, at, word.size()) && fits(before, behind)) return true;
    }
    return false;
}

/// Code without texts in quotes and comments: what they hold is no use of a word.
std::string withoutTexts(const std::string& code) {
    std::string bare;
    PieceReader pieces(code, OpenTexts::AsMeant);
    for (Piece piece{}; pieces.next(piece);) {
        const bool isText = piece.kind == PieceKind::Text || piece.kind == PieceKind::Character ||
                            piece.kind == PieceKind::Comment ||
                            piece.kind == PieceKind::BlockComment;
        bare += isText ? " " : code.substr(piece.begin, piece.end - piece.begin);
    }
    return bare;
}

bool isUsedIn(const Chapter& chapter, const Entry& entry) {
    const auto anywhere = [](char, char) { return true; };
    const std::string& bare = chapter.bare;
    switch (entry.kind) {
        case EntryKind::Mark: {
            const bool delimits =
                entry.word == "\"" || entry.word == "'" || entry.word.rfind(kCommentSign, 0) == 0;
            return (delimits ? chapter.code : bare).find(entry.word) != std::string::npos;
        }
        case EntryKind::Keyword:
        case EntryKind::Operator:
        case EntryKind::Reserved:
        case EntryKind::Application:
            return standsIn(bare, entry.word, [](char before, char) { return before != '.'; });
        case EntryKind::Member:
            return standsIn(bare, entry.word, [](char before, char) { return before == '.'; });
        case EntryKind::BuiltIn:
            return standsIn(bare, entry.word, [](char before, char behind) {
                return before != '.' && behind == '(';
            });
        case EntryKind::Widget:
            return standsIn(bare, entry.word, [](char, char behind) { return behind == '('; });
        case EntryKind::Property:
            return standsIn(bare, entry.word, [](char, char behind) { return behind == ':'; });
        case EntryKind::Colour:
        case EntryKind::Alignment:
        case EntryKind::Trigger:
        case EntryKind::Curve: return standsIn(chapter.code, entry.word, anywhere);
        case EntryKind::Code: return standsIn(chapter.text, entry.word, anywhere);
    }
    return false;
}

std::string chapterLink(const Entry& entry, const std::vector<Chapter>& chapters) {
    const Chapter* chapter = chapterOf(entry, chapters);
    if (chapter == nullptr) return "—";
    return link(chapter->title, "../வழிகாட்டி/" + chapter->file);
}

}  // namespace

Chapter::Chapter(std::string file, std::string title, std::string code, std::string text)
    : file(std::move(file)),
      title(std::move(title)),
      code(std::move(code)),
      text(std::move(text)),
      bare(withoutTexts(this->code)) {}

const Chapter* chapterOf(const Entry& entry, const std::vector<Chapter>& chapters) {
    for (const Chapter& chapter : chapters) {
        if (isUsedIn(chapter, entry)) return &chapter;
    }
    if (entry.kind == EntryKind::Mark) return nullptr;
    const auto anywhere = [](char, char) { return true; };
    for (const Chapter& chapter : chapters) {
        if (standsIn(chapter.text, entry.word, anywhere) ||
            standsIn(chapter.code, entry.word, anywhere))
            return &chapter;
    }
    return nullptr;
}

MarkdownPage wherePage(const std::vector<Chapter>& chapters) {
    MarkdownPage page(pages::kWhere, "எங்கே?");
    page.prose(
        "ஒவ்வொரு சொல்லும் எங்கே விளக்கப்பட்டிருக்கிறது. சொல்லைத் தொட்டால் அதன் குறிப்பு வரும்; பக்கத்தில் நிற்பது, "
        "வழிகாட்டியில் அது முதலில் வரும் அதிகாரம். கோடு நின்றால் வழிகாட்டியில் அது வரவில்லை.");
    for (const KindSection& section : kSections) {
        std::vector<std::vector<std::string>> rows;
        for (const Entry* entry : entriesOf(section.kind)) {
            rows.push_back({linkTo(*entry, page.path()), chapterLink(*entry, chapters)});
        }
        if (rows.empty()) continue;
        page.heading(2, section.title);
        page.table({"சொல்", "வழிகாட்டி"}, rows);
    }
    return page;
}

}  // namespace companion::reference
