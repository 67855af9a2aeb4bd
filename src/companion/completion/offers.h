// What fits at a place and is near to what was typed: words of the language, names of the document.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "companion/completion/completion.h"
#include "companion/completion/names.h"
#include "companion/completion/place.h"
#include "companion/completion/typed_word.h"
#include "companion/descriptions/description.h"

namespace companion::completion {

/// Something that could be written at the place.
struct Offer {
    Closeness closeness;
    int fit;              ///< How well it fits: 0 is what belongs here most.
    int rank;             ///< How common it is: 0 first. Names of the document are below 0.
    std::size_t length;   ///< Of its sound.
    CompletionItem item;  ///< Without its texts for sorting and filtering, and without its range.
};

/// What offers are made from.
struct Surroundings {
    std::string_view text;
    std::size_t offset;
    const Place& place;
    const TypedWord& typed;
    const DocumentNames& names;
    const CompletionSettings& settings;
};

class Offers {
public:
    explicit Offers(const Surroundings& around) : around(around) {}
    Offers(const Offers&) = delete;
    Offers& operator=(const Offers&) = delete;

    /// All that fits, in no order.
    std::vector<Offer> gather();

private:
    void offerStatements();
    void offerOperands(int fit);
    void offerOperators(int fit);
    void offerNewNames();
    void offerMembers();
    void offerSections();
    void offerWidgetItems();
    void offerProperties();
    void offerChildWidgets(int fit);
    void offerValues();
    void offerValuesOf(const PropertyDescription& property);
    void offerActions(const PropertyDescription& property);
    void offerModules();
    void offerPages();
    void offerNames(int fit);
    void offerName(const DocumentName& name, int fit);
    void offerWord(const Description& row, int fit);
    void offerWord(std::string_view word, WordKind kind, int fit);
    void offerValue(const ValueDescription& row);
    void offerPlain(std::string_view word, ItemKind kind, int fit, std::string inserted = {});
    void offer(const FoundBy& found, int fit, int rank, CompletionItem item);
    bool isNear(const FoundBy& found) const {
        return around.typed.closenessTo(found) != Closeness::None;
    }
    std::vector<const PropertyDescription*> propertiesHere() const;
    bool isFollowedBy(char mark) const { return around.place.next == mark; }

    const Surroundings around;
    std::vector<Offer> offers;
};

}  // namespace companion::completion
