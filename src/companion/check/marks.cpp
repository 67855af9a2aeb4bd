// Marks that nobody sees, or that look like others: found in the text itself, before the misleading
// report that follows from them. What stands in texts and comments is the learner's own.
#include <algorithm>
#include <optional>
#include <unordered_set>

#include "companion/check/check.h"
#include "companion/check/marks_layout.h"
#include "companion/check/marks_signs.h"
#include "companion/check/marks_spelling.h"
#include "companion/check/rule_tables.h"
#include "companion/pieces.h"
#include "lexer/characters.h"
#include "lexer/word_tables.h"

namespace companion {

const RuleTable& markRules() {
    static const RuleTable rules = {
        {"துணை-101", Severity::Error,
         "கோப்பின் தொடக்கத்தில் கண்ணுக்குத் தெரியாத குறி ஒன்று உள்ளது; அது முதல் சொல்லோடு ஒட்டிக்கொள்ளும். "
         "'பொழில்-துணை வடிவமை' அதை நீக்கிவிடும்."},
        {"துணை-102", Severity::Warning,
         "இந்த வெற்று வரியில் கண்ணுக்குத் தெரியாத வரிமுடிவுக் குறி உள்ளது; அதனால் உள்ளே தள்ளிய பகுதி இங்கேயே "
         "முடிந்துவிடும். 'பொழில்-துணை வடிவமை' எல்லா வரிகளையும் சரிசெய்யும்."},
        {"துணை-103", Severity::Hint,
         "வரிகளின் முடிவில் கண்ணுக்குத் தெரியாத கூடுதல் குறி உள்ளது. 'பொழில்-துணை வடிவமை' அதை நீக்கிவிடும்."},
        {"துணை-104", Severity::Warning,
         "இங்கே வரி முடிவதுபோல் தெரிந்தாலும் பொழிலுக்கு முடியவில்லை; அடுத்த வரியும் இதே வரிதான். "
         "வரியை இங்கே உடைத்து மீண்டும் எழுது."},
        {"துணை-105", Severity::Error,
         "வரியின் தொடக்கத்தில் தாவல் இடைவெளி உள்ளது; பொழில் அதன்பின் வரும் எழுத்துகளையும் விழுங்கிவிடும். "
         "ஒவ்வொரு தாவலுக்கும் நான்கு இடைவெளி இடு, அல்லது 'பொழில்-துணை வடிவமை' இயக்கு."},
        {"துணை-106", Severity::Error,
         "கோப்பின் கடைசி வரியில் இடைவெளி மட்டுமே உள்ளது; பொழில் அதை உள்ளே தள்ளிய வரியாக எண்ணும். "
         "அந்த இடைவெளிகளை அழி."},
        {"துணை-107", Severity::Error,
         "இங்கே கண்ணுக்குத் தெரியாத குறி ஒன்று உள்ளது; அதனால் இது வேறு சொல்லாகிவிடும். "
         "இந்தச் சொல்லை அழித்துவிட்டு மீண்டும் எழுது."},
        {"துணை-108", Severity::Error,
         "இது இடைவெளிபோல் தெரியும் வேறு குறி; பொழில் இதைச் சொல்லின் எழுத்தாக எண்ணும். "
         "இதை அழித்துவிட்டு இயல்பான இடைவெளி இடு."},
        {"துணை-109", Severity::Error,
         "இங்கே நிரலை முடித்துவிடும் குறி ஒன்று உள்ளது; இதன்பின் இருப்பதைப் பொழில் படிக்காது. இந்தக் குறியை அழி."},
        {"துணை-110", Severity::Error, "'$0' என்பது '$1' போல் தெரியும் வேறு குறி. இங்கே '$1' என எழுது."},
        {"துணை-111", Severity::Error, "'$0' என்பதைப் பொழில் எண்ணாகப் படிக்காது. '$1' என எழுது."},
        {"துணை-112", Severity::Error,
         "'$0' உரையைத் தொடங்கும் மேற்கோள் குறி அன்று. உரையின் இரு பக்கமும் \" இடு."},
        {"துணை-113", Severity::Error,
         "உரை இந்த மேற்கோளோடு முடிந்துவிடுகிறது; உரைக்குள் \" வராது. உள்ளே ‘ ’ அல்லது “ ” இடு."},
        {"துணை-114", Severity::Error,
         "இங்கே தொடங்கும் உரை இந்த வரியிலேயே முடியவில்லை. வரி முடியுமுன் \" இட்டு மூடு; உரைக்குள் புது வரி "
         "வேண்டுமென்றால் \\n என எழுது."},
        {"துணை-115", Severity::Error,
         "பொழிலில் '$0' என்ற குறி இல்லை. அதற்குப் பதில் '$1' எனத் தனிச் சொல்லாக எழுது."},
        {"துணை-116", Severity::Error, "'$0' பொழிலில் குறிப்பைத் தொடங்காது. குறிப்புக்கு 'ஃ' இடு."},
        {"துணை-117", Severity::Warning,
         "'ஃ' குறிப்பைத் தொடங்குவதால் '$0' முதல் வரி முடியும்வரை பொழில் படிக்காது. பெயரை 'ஃ' இல்லாமல் எழுது."},
        {"துணை-118", Severity::Error,
         "இந்த 'ஃ' முன்னுள்ள சொல்லோடு ஒட்டியிருப்பதால் குறிப்பைத் தொடங்காது. அதன் முன் ஒரு இடைவெளி இடு."},
        {"துணை-119", Severity::Error,
         "'$0' என்ற சொல்லின் எழுத்துகள் பிரிந்து எழுதப்பட்டுள்ளன; பார்க்க ஒன்றுபோல் இருந்தாலும் '$1' வேறு சொல். "
         "இதை அழித்துவிட்டு மீண்டும் எழுது, அல்லது 'பொழில்-துணை வடிவமை' இயக்கு."},
        {"துணை-120", Severity::Hint,
         "'$0' என்ற சொல்லின் எழுத்துகள் பிரிந்து எழுதப்பட்டுள்ளன; வேறு இடத்தில் சேர்த்து எழுதினால் வேறு சொல்லாகும். "
         "'பொழில்-துணை வடிவமை' இவற்றைச் சேர்க்கும்."},
        {"துணை-121", Severity::Warning,
         "'$0' என்ற சொல்லில் உயிர்க்குறி ஒன்று எழுத்தில்லாமல் நிற்கிறது; 'ர', 'ள' போன்ற எழுத்தாக இருக்கவேண்டியதோ? "
         "அந்த எழுத்தை மீண்டும் எழுது."},
        {"துணை-122", Severity::Error, "'$0' என்பது '$1' போல் தெரியும் வேறு சொல். '$1' என எழுது."},
        {"துணை-123", Severity::Warning,
         "'$0' என்ற சொல்லில் '$1' வேறு மொழியின் எழுத்து; பார்க்க ஒன்றுபோல் இருந்தாலும் இது வேறு சொல்லாகும். "
         "அந்த எழுத்தை மீண்டும் எழுது."},
        {"துணை-124", Severity::Error, "நிறத்தின் எண் மேற்கோளுக்குள் இருக்கவேண்டும். \"$0\" என எழுது."},
        {"துணை-125", Severity::Error,
         "பெயருக்குள் '$0' வராது. ஒரே பெயர் என்றால் '_' இடு; கழித்தல் என்றால் 'கழி' எனத் தனிச் சொல்லாக எழுது."},
    };
    return rules;
}

namespace {

constexpr std::size_t kTamilWidth = 3;

/// ASCII and the block of Tamil alone.
bool isUsual(std::string_view word) {
    for (std::size_t at = 0; at < word.size();) {
        const auto byte = static_cast<unsigned char>(word[at]);
        if (byte < 0x80) {
            at++;
            continue;
        }
        if (byte != 0xE0 || at + kTamilWidth > word.size()) return false;
        const auto second = static_cast<unsigned char>(word[at + 1]);
        if (second != 0xAE && second != 0xAF) return false;
        at += kTamilWidth;
    }
    return true;
}

bool isHexDigit(char byte) {
    return isAsciiDigit(byte) || (byte >= 'a' && byte <= 'f') || (byte >= 'A' && byte <= 'F');
}

bool isWordOfLanguage(std::string_view word) { return lookUpWord(word) != TokenType::IDENTIFIER; }

/// True if the quote at the end of `written` was meant to stand in the text: a backslash was to
/// guard it, or a name stands at it. `behind` is what follows up to the next quote.
bool isEndedTooSoon(std::string_view written, std::string_view behind) {
    const std::string_view inside = written.substr(1, written.size() - 2);
    const std::size_t backslashes = inside.size() - (inside.find_last_not_of('\\') + 1);
    if (backslashes % 2 != 0) return true;
    std::size_t end = 0;
    while (end < behind.size() && !isAsciiMark(static_cast<unsigned char>(behind[end]))) end++;
    return end > 0 && lookUpWord(behind.substr(0, end)) == TokenType::IDENTIFIER &&
           behind.substr(0, kCommentSign.size()) != kCommentSign;
}

class MarkCheck {
public:
    MarkCheck(const SourceText& source, Findings& findings)
        : source(source),
          text(source.text),
          findings(findings),
          reader(text, OpenTexts::AsMeant),
          layout(source, findings) {}

    void run();

private:
    void look(const Piece& piece);
    void note(const Piece& piece);
    bool isBehindValue() const;

    // Words
    void lookAtWord(const Piece& word);
    bool lookAtSign(const Piece& word, std::size_t at, CodePoint point);
    void lookAtDigits(const Piece& word, std::size_t at);
    SignKind kindBefore(const Piece& word, std::size_t at) const;
    Range rowFrom(const Piece& word, std::size_t at) const;
    void tellQuote(Range quote);
    void lookForOtherScript(const Piece& word);
    void lookAtSpelling(const Piece& word);
    void lookAtNumber(const Piece& number);
    void lookForGluedComment(const Piece& word);

    // Texts, comments, marks
    void lookAtText(const Piece& piece);
    void lookAtComment(const Piece& piece);
    void lookAtMark(const Piece& mark);
    void tellOperator(Range sign, bool isAtWord, std::string_view word);
    std::string apartFromNeighbours(Range sign, std::string word) const;
    bool passForeignComment(const Piece& mark);
    bool passColour(const Piece& mark);

    bool isNamed(std::string_view word);
    std::size_t lineEndBehind(std::size_t at) const {
        return std::min(text.find('\n', at), text.size());
    }

    const SourceText& source;
    std::string_view text;
    Findings& findings;
    PieceReader reader;
    LayoutMarks layout;
    std::optional<std::unordered_set<std::string_view>> names;  ///< Made when first asked for.
    std::optional<Piece> before;  ///< In the same line, blanks and comments left out.
};

void MarkCheck::run() {
    Piece piece{};
    while (reader.next(piece)) {
        layout.look(piece);
        look(piece);
        note(piece);
    }
    layout.finish();
}

void MarkCheck::look(const Piece& piece) {
    switch (piece.kind) {
        case PieceKind::Word: return lookAtWord(piece);
        case PieceKind::Mark: return lookAtMark(piece);
        case PieceKind::Number: return lookAtNumber(piece);
        case PieceKind::Text: return lookAtText(piece);
        case PieceKind::Comment: return lookAtComment(piece);
        default: return;
    }
}

void MarkCheck::note(const Piece& piece) {
    switch (piece.kind) {
        case PieceKind::Blank:
        case PieceKind::Comment:
        case PieceKind::BlockComment: return;
        case PieceKind::LineEnd: before.reset(); return;
        default: before = piece;
    }
}

/// True if an operator could follow: else a sign belongs to the value behind it.
bool MarkCheck::isBehindValue() const {
    if (!before) return false;
    const std::string_view last = source.slice({before->begin, before->end});
    if (before->kind == PieceKind::Mark) return last == ")" || last == "]";
    return before->kind != PieceKind::Word || lookUpWord(last) != TokenType::OPERATOR;
}

// ---- Words ----

void MarkCheck::lookAtWord(const Piece& word) {
    const std::string_view letters = source.slice({word.begin, word.end});
    lookForGluedComment(word);
    if (isUsual(letters)) return lookAtSpelling(word);
    lookForOtherScript(word);
    for (std::size_t at = word.begin; at < word.end;) {
        const CodePoint point = codePointAt(text, at);
        if (point.value >= 0x80 && lookAtSign(word, at, point)) return;
        at += point.width;
    }
}

/// True if the rest of the word is nothing to look at. What stands in a row is told once.
bool MarkCheck::lookAtSign(const Piece& word, std::size_t at, CodePoint point) {
    const Range range{at, at + point.width};
    const std::string shown(source.slice(range));
    const Sign sign = signOf(point.value);
    const bool isInRow = sign.kind == kindBefore(word, at);
    switch (sign.kind) {
        case SignKind::Invisible:
            if (!isInRow) findings.add("துணை-107", range, {}, {rowFrom(word, at), ""});
            return false;
        case SignKind::Blank:
            if (!isInRow) findings.add("துணை-108", range, {}, {rowFrom(word, at), " "});
            return false;
        case SignKind::Digit:
            if (!isInRow) lookAtDigits(word, at);
            return false;
        case SignKind::Punctuation:
            findings.add("துணை-110", range, {shown, sign.meant}, {range, sign.meant});
            return false;
        case SignKind::Operator: tellOperator(range, at > word.begin, sign.meant); return false;
        case SignKind::Quote: tellQuote(range); return true;
        default: return false;
    }
}

/// Digits in a row are told together, at the first.
void MarkCheck::lookAtDigits(const Piece& word, std::size_t at) {
    std::string meant;
    std::size_t end = at;
    while (end < word.end) {
        const CodePoint point = codePointAt(text, end);
        const Sign sign = signOf(point.value);
        if (sign.kind != SignKind::Digit) break;
        meant += sign.meant;
        end += point.width;
    }
    const Range digits{at, end};
    findings.add("துணை-111", digits, {std::string(source.slice(digits)), meant}, {digits, meant});
}

/// The kind of the character before the one at `at`, in the same word.
SignKind MarkCheck::kindBefore(const Piece& word, std::size_t at) const {
    if (at == word.begin) return SignKind::Plain;
    std::size_t last = at - 1;
    while (last > word.begin && (static_cast<unsigned char>(text[last]) & 0xC0U) == 0x80U) last--;
    return signOf(codePointAt(text, last).value).kind;
}

/// Those of the same kind as the character at `at` that follow it in its word.
Range MarkCheck::rowFrom(const Piece& word, std::size_t at) const {
    const SignKind kind = signOf(codePointAt(text, at).value).kind;
    std::size_t end = at;
    while (end < word.end) {
        const CodePoint point = codePointAt(text, end);
        if (signOf(point.value).kind != kind) break;
        end += point.width;
    }
    return {at, end};
}

/// A quote of another kind. Goes on behind the sign that closes a text in such quotes, if its line
/// holds one; else nobody knows where the text was to end.
void MarkCheck::tellQuote(Range quote) {
    const std::vector<std::string> parts = {std::string(source.slice(quote))};
    const std::size_t lineEnd = lineEndBehind(quote.begin);
    const bool isFence = text.substr(quote.begin, 2) == "``";  // of code that was copied
    for (std::size_t at = quote.end; at < lineEnd && !isFence;) {
        const CodePoint point = codePointAt(text, at);
        const bool closes = point.value == '"' ||
                            (point.value == '`' && text[quote.begin] == '`') ||
                            (point.value >= 0x80 && signOf(point.value).kind == SignKind::Quote);
        if (closes) {
            const Range whole{quote.begin, at + point.width};
            const std::string inside(source.slice({quote.end, at}));
            findings.add("துணை-112", quote, parts, {whole, '"' + inside + '"'});
            return reader.continueAt(whole.end);
        }
        at += point.width;
    }
    findings.add("துணை-112", quote, parts);
    reader.continueAt(lineEnd);
}

void MarkCheck::lookForOtherScript(const Piece& word) {
    std::optional<Range> other;
    bool hasOwn = false;
    for (std::size_t at = word.begin; at < word.end;) {
        const CodePoint point = codePointAt(text, at);
        const bool isTamil = point.value >= 0x0B80 && point.value <= 0x0BFF;
        const bool isLatin = point.value < 0x80 && !isAsciiDigit(static_cast<int>(point.value)) &&
                             point.value != '_';
        hasOwn |= isTamil || isLatin;
        if (!other && point.value >= 0x80 && !isTamil &&
            signOf(point.value).kind == SignKind::OtherScript) {
            other = Range{at, at + point.width};
        }
        at += point.width;
    }
    if (!other || !hasOwn) return;
    findings.add(
        "துணை-123", *other,
        {std::string(source.slice({word.begin, word.end})), std::string(source.slice(*other))});
}

void MarkCheck::lookAtSpelling(const Piece& word) {
    const Range range{word.begin, word.end};
    const std::string_view written = source.slice(range);
    const Spelling spelling = spellingOf(written);
    if (!spelling.isOdd()) return;
    const std::string shown(written);
    if (spelling.isSplit) {
        const std::string whole = composed(written);
        const bool isAnother = isWordOfLanguage(whole) || isNamed(whole);
        findings.add(isAnother ? "துணை-119" : "துணை-120", range, {shown, whole}, {range, whole});
    }
    if (spelling.strayAt != std::string_view::npos) {
        const std::size_t at = word.begin + spelling.strayAt;
        findings.add("துணை-121", {at, at + kTamilWidth}, {shown});
    }
    if (spelling.isLookAlike) {
        const std::string usual = withUsualLetters(written);
        if (isWordOfLanguage(usual) || isNamed(usual)) {
            findings.add("துணை-122", range, {shown, usual}, {range, usual});
        }
    }
}

/// A Tamil digit that opens a word may stand for a letter.
void MarkCheck::lookAtNumber(const Piece& number) {
    std::size_t end = number.end;
    while (end < text.size() && !isAsciiMark(static_cast<unsigned char>(text[end]))) end++;
    if (end == number.end || isAsciiDigit(text[number.begin])) return;
    lookAtSpelling({PieceKind::Word, number.begin, end});
}

/// A comment sign at a word's end was meant to open a comment.
void MarkCheck::lookForGluedComment(const Piece& word) {
    const std::string_view letters = source.slice({word.begin, word.end});
    if (letters.size() <= kCommentSign.size()) return;
    const std::size_t sign = letters.size() - kCommentSign.size();
    if (letters.substr(sign) != kCommentSign) return;
    const Range glued{word.begin + sign, word.end};
    findings.add("துணை-118", glued, {}, {{glued.begin, glued.begin}, " "});
    reader.continueAt(lineEndBehind(word.end));
}

// ---- Texts, comments, marks ----

void MarkCheck::lookAtText(const Piece& piece) {
    const std::string_view written = source.slice({piece.begin, piece.end});
    if (!piece.isClosed || written.find('\n') != std::string_view::npos) {
        const int line = source.placeOf(piece.begin).line;
        findings.add("துணை-114", {piece.begin, source.rangeOfWordsOn(line).end});
        return;
    }
    const std::string_view behind = text.substr(piece.end);
    const std::string_view between = behind.substr(0, behind.find('"'));
    const bool hasQuoteBehind =
        between.size() < behind.size() && between.find('\n') == std::string_view::npos;
    if (!hasQuoteBehind || !isEndedTooSoon(written, between)) return;
    findings.add("துணை-113", {piece.end - 1, piece.end});
    reader.continueAt(lineEndBehind(piece.end));
}

/// ஃப is also how a loan word begins: a name so written is a comment. Told where the rest of the
/// line reads as code, and isn't a line that was commented out.
void MarkCheck::lookAtComment(const Piece& piece) {
    const std::size_t from = piece.begin + kCommentSign.size();
    const std::string_view rest = source.slice({from, piece.end});
    if (rest.substr(0, kTamilWidth) != "ப") {
        if (before && before->kind == PieceKind::Number && before->end == piece.begin &&
            text[piece.begin - 1] != '%') {
            findings.add("துணை-118", {piece.begin, from}, {}, {{piece.begin, piece.begin}, " "});
        }
        return;
    }
    std::size_t end = 0;
    while (end < rest.size() && !isAsciiMark(static_cast<unsigned char>(rest[end]))) end++;
    std::size_t next = end;
    while (next < rest.size() && rest[next] == ' ') next++;
    const std::string_view behind = rest.substr(next);
    const auto beginsWithOneOf = [&](std::string_view marks) {
        return !behind.empty() && marks.find(behind.front()) != std::string_view::npos;
    };
    const bool readsAsCode = before
                                 ? beginsWithOneOf(")],.}") || (behind.empty() && !isBehindValue())
                                 : beginsWithOneOf("=.") || (next == end && beginsWithOneOf("(["));
    if (!readsAsCode || (before && isBehindValue()) || isNamed(rest.substr(0, end))) return;
    findings.add("துணை-117", {piece.begin, from + end},
                 {std::string(source.slice({piece.begin, from + end}))});
}

void MarkCheck::lookAtMark(const Piece& mark) {
    const char byte = text[mark.begin];
    const Range range{mark.begin, mark.end};
    if (mark.end - mark.begin > 1) {
        findings.add("துணை-101", range, {}, {range, ""});
    } else if (byte == '\0') {
        findings.add("துணை-109", range, {}, {range, ""});
        reader.continueAt(text.size());
    } else if (byte == '`') {
        tellQuote(range);
    } else if (static_cast<unsigned char>(byte) < ' ' || byte == '\x7F') {
        findings.add("துணை-107", range, {}, {range, ""});
    } else if (!passColour(mark) && !passForeignComment(mark)) {
        const AsciiOperator found = asciiOperatorAt(text.substr(mark.begin));
        if (found.sign.empty()) return;
        const Range sign{mark.begin, mark.begin + found.sign.size()};
        reader.continueAt(sign.end);
        const bool isAtWord =
            before && before->kind == PieceKind::Word && before->end == sign.begin;
        if (!found.word.empty()) tellOperator(sign, isAtWord, found.word);
    }
}

/// A sign of other languages; `word` is its word here. A hyphen between two letters may be meant
/// as one.
void MarkCheck::tellOperator(Range sign, bool isAtWord, std::string_view word) {
    const std::string shown(source.slice(sign));
    const bool isBeforeWord = sign.end < text.size() && !isAsciiDigit(text[sign.end]) &&
                              !isAsciiMark(static_cast<unsigned char>(text[sign.end]));
    if (word == "கழி" && isAtWord && isBeforeWord) return findings.add("துணை-125", sign, {shown});
    const std::string_view meant = isAtWord || isBehindValue() ? word : wordInFrontOf(word);
    findings.add("துணை-115", sign, {shown, std::string(meant)},
                 {sign, apartFromNeighbours(sign, std::string(meant))});
}

/// `word` with blanks where the neighbours of `sign` would run into it.
std::string MarkCheck::apartFromNeighbours(Range sign, std::string word) const {
    const auto isBlank = [](char byte) { return byte == ' ' || byte == '\t' || byte == '\n'; };
    if (sign.begin > 0 && !isBlank(text[sign.begin - 1])) word = ' ' + word;
    if (sign.end < text.size() && !isBlank(text[sign.end])) word += ' ';
    return word;
}

bool MarkCheck::passForeignComment(const Piece& mark) {
    const std::string_view rest = text.substr(mark.begin);
    std::string_view sign;
    for (const std::string_view known : {"//", "/*", "#"}) {
        if (rest.substr(0, known.size()) == known) sign = known;
    }
    if (sign.empty()) return false;
    const Range range{mark.begin, mark.begin + sign.size()};
    if (sign == "/*") {
        findings.add("துணை-116", range, {std::string(sign)});
    } else {
        findings.add("துணை-116", range, {std::string(sign)}, {range, std::string(kCommentSign)});
    }
    const std::size_t end = sign == "/*" ? rest.find("*/") : std::string_view::npos;
    reader.continueAt(end == std::string_view::npos ? lineEndBehind(mark.begin)
                                                    : mark.begin + end + 2);
    return true;
}

/// A colour stands behind a colon, an equals sign, a comma or a bracket, and has its count of
/// digits.
bool MarkCheck::passColour(const Piece& mark) {
    if (text[mark.begin] != '#' || !before || isBehindValue()) return false;
    std::size_t end = mark.end;
    while (end < text.size() && isHexDigit(text[end])) end++;
    const std::size_t count = end - mark.end;
    if (count != 3 && count != 6 && count != 8) return false;
    const Range colour{mark.begin, end};
    const std::string written(source.slice(colour));
    findings.add("துணை-124", colour, {written}, {colour, '"' + written + '"'});
    reader.continueAt(end);
    return true;
}

/// True if `word` stands in the code.
bool MarkCheck::isNamed(std::string_view word) {
    if (!names) {
        names.emplace();
        PieceReader all(text, OpenTexts::AsMeant);
        Piece piece{};
        while (all.next(piece)) {
            if (piece.kind == PieceKind::Word)
                names->insert(source.slice({piece.begin, piece.end}));
        }
    }
    return names->count(word) != 0;
}

}  // namespace

void checkMarks(const SourceText& source, Findings& findings) { MarkCheck(source, findings).run(); }

}  // namespace companion
