// What the reference explains, word by word, and where: pages link by these entries, and the table
// of all words is made of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "companion/descriptions/description.h"

namespace companion::reference {

enum class EntryKind {
    Keyword,
    Operator,
    Mark,
    BuiltIn,
    Member,
    Application,
    Widget,
    Property,
    Colour,
    Alignment,
    Trigger,
    Curve,
    Code,
    Reserved,  ///< A word of the compiler's that does nothing and can be no name.
};

struct Entry {
    EntryKind kind;
    std::string word;
    std::string page;    ///< Path of the page that explains it.
    std::string anchor;  ///< Empty where the page is its own.
};

/// All entries, by kind and then in the order of their tables.
const std::vector<Entry>& allEntries();

/// All of a kind.
std::vector<const Entry*> entriesOf(EntryKind kind);

/// The entry of a word. Throws std::logic_error if there is none.
const Entry& entryOf(EntryKind kind, std::string_view word);

/// The entry of a described word.
const Entry& entryOf(const Description& word);

/// What a link on `page` to another page names.
std::string pathFrom(std::string_view page, std::string_view target);

/// The word in code, linked from `page` to where it is explained.
std::string linkTo(const Entry& entry, std::string_view page);

namespace pages {

inline constexpr const char* kContents = "README.md";
inline constexpr const char* kKeywords = "திறவுச்சொற்கள்.md";
inline constexpr const char* kOperators = "செயற்குறிகள்.md";
inline constexpr const char* kMarks = "குறிகள்.md";
inline constexpr const char* kBuiltIns = "உள்ளமைந்த_செயல்கள்.md";
inline constexpr const char* kMembers = "புள்ளிச்_சொற்கள்.md";
inline constexpr const char* kApplication = "வலைதளம்.md";
inline constexpr const char* kWidgets = "உறுப்புகள்.md";
inline constexpr const char* kWidgetFolder = "உறுப்புகள்/";
inline constexpr const char* kProperties = "பண்புகள்.md";
inline constexpr const char* kColours = "நிறங்கள்.md";
inline constexpr const char* kPlaces = "சீரமைப்பும்_நிலைமையும்.md";
inline constexpr const char* kCurves = "வளைவுகள்.md";
inline constexpr const char* kCodes = "பிழைகள்.md";
inline constexpr const char* kCommands = "கட்டளைகள்.md";
inline constexpr const char* kLimits = "எல்லைகள்.md";
inline constexpr const char* kReserved = "ஒதுக்கிய_சொற்கள்.md";
inline constexpr const char* kWhere = "எங்கே.md";
inline constexpr const char* kPictureFolder = "படங்கள்/";

}  // namespace pages

/// The page of the codes that begin with `digit`.
std::string pageOfCodes(char digit);

}  // namespace companion::reference
