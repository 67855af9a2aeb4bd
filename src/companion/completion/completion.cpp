#include "companion/completion/completion.h"

#include <algorithm>
#include <set>
#include <tuple>

#include "companion/completion/known_words.h"
#include "companion/completion/names.h"
#include "companion/completion/offers.h"
#include "companion/completion/place.h"
#include "companion/completion/tamil_letters.h"
#include "companion/completion/typed_word.h"
#include "companion/refusal.h"
#include "lexer/lexer.h"

namespace companion::completion {

namespace {

constexpr std::size_t kMostSpellings = 3;

bool comesFirst(const Offer& a, const Offer& b) {
    return std::tie(a.closeness, a.fit, a.rank, a.length) <
           std::tie(b.closeness, b.fit, b.rank, b.length);
}

/// False for a word that the scanner refuses as a name, as it does what is near a keyword.
bool isTakenAsName(const std::string& word) {
    try {
        Lexer("\n" + word + "\n", "").tokenize();
    } catch (const CompilerRefusal&) {
        return false;
    }
    return true;
}

bool takesTamil(PlaceKind kind) {
    switch (kind) {
        case PlaceKind::Statement:
        case PlaceKind::Operand:
        case PlaceKind::NewName:
        case PlaceKind::Member:
        case PlaceKind::WidgetItem:
        case PlaceKind::PropertyValue:
        case PlaceKind::ValueText:
        case PlaceKind::Text:
        case PlaceKind::Comment: return true;
        default: return false;
    }
}

/// Where words of the language stand, Tamil of one's own comes behind what is near by its sound.
Closeness closenessOfTamil(const Place& place, std::string_view typed) {
    const bool isAlone = place.kind == PlaceKind::NewName || place.kind == PlaceKind::Text ||
                         place.kind == PlaceKind::Comment;
    return isAlone || isReadable(typed) ? Closeness::SoundPrefix : Closeness::None;
}

class List {
public:
    List(std::string_view text, std::size_t offset, const CompletionSettings& settings)
        : text(text), offset(offset), settings(settings), place(placeAt(text, offset)) {
        typed = text.substr(place.typed.begin, place.typed.end - place.typed.begin);
    }

    std::vector<CompletionItem> make(const ModuleReader& readModule);

private:
    void addOffers(const DocumentNames& names);
    void addTamil(const DocumentNames& names);
    std::vector<CompletionItem> finished();

    const std::string_view text;
    const std::size_t offset;
    const CompletionSettings& settings;
    const Place place;
    std::string_view typed;
    std::vector<Offer> offers;
};

std::vector<CompletionItem> List::make(const ModuleReader& readModule) {
    if (place.kind == PlaceKind::Nothing) return {};
    if (settings.inTextsAlone && !place.isQuoted) return {};
    const bool isProse = place.kind == PlaceKind::Comment || place.kind == PlaceKind::Text;
    if (place.kind == PlaceKind::Comment && typed.empty()) return {};
    DocumentNames names = namesOf(text, place.typed);
    if (!isProse) addModuleNames(names, readModule);
    addOffers(names);
    if (settings.transliterates) addTamil(names);
    return finished();
}

void List::addOffers(const DocumentNames& names) {
    const TypedWord word(typed);
    offers = Offers({text, offset, place, word, names, settings}).gather();
}

void List::addTamil(const DocumentNames& names) {
    if (!takesTamil(place.kind)) return;
    const bool isCode = place.kind != PlaceKind::Text && place.kind != PlaceKind::Comment &&
                        place.kind != PlaceKind::ValueText;
    // Behind all that is as near.
    constexpr int kLastFit = 9;
    int rank = 0;
    for (const std::string& candidate : tamilFor(typed, names.writtenWords, true, kMostSpellings)) {
        if (isCode && !isTakenAsName(candidate)) continue;
        CompletionItem item;
        item.label = candidate;
        item.detail = std::string(typed) + " → " + candidate;
        item.inserted = candidate;
        offers.push_back({closenessOfTamil(place, typed), kLastFit, rank++, 0, std::move(item)});
    }
}

/// In their order, each once: a word may be a property and a widget, but Tamil that is made up
/// gives way to all else.
std::vector<CompletionItem> List::finished() {
    constexpr std::size_t kDigits = 4;
    std::stable_sort(offers.begin(), offers.end(), comesFirst);
    std::vector<CompletionItem> items;
    std::set<std::string> labels;
    std::set<std::pair<std::string, ItemKind>> known;
    for (Offer& entry : offers) {
        if (items.size() == settings.most) break;
        const bool isNew = labels.insert(entry.item.label).second;
        if (!known.insert({entry.item.label, entry.item.kind}).second) continue;
        if (entry.item.kind == ItemKind::Text && !isNew) continue;
        CompletionItem item = std::move(entry.item);
        const std::string number = std::to_string(items.size());
        item.sortText = std::string(kDigits - std::min(kDigits, number.size()), '0') + number;
        item.filterText = typed.empty() ? item.label : std::string(typed);
        item.replaced = place.typed;
        items.push_back(std::move(item));
    }
    return items;
}

}  // namespace

std::vector<CompletionItem> completionsAt(std::string_view text, std::size_t offset,
                                          const ModuleReader& readModule,
                                          const CompletionSettings& settings) {
    return List(text, std::min(offset, text.size()), settings).make(readModule);
}

}  // namespace companion::completion
