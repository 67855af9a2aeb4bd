#include "companion/completion/offers.h"

#include <algorithm>
#include <unordered_map>

#include "companion/completion/inserted_forms.h"
#include "companion/completion/language_words.h"
#include "companion/completion/word_uses.h"
#include "companion/descriptions/properties_of.h"
#include "lexer/holds.h"

namespace companion::completion {

namespace {

constexpr std::string_view kOwnParentheses = "()";
constexpr std::string_view kRealtime = "நிகழ்நேர";
constexpr std::string_view kInputForm = "அடையாளம்.";
constexpr int kNameRank = -1;

/// By what a word of the tables is found, made once.
const FoundBy& foundBy(std::string_view word, std::string_view english) {
    static std::unordered_map<std::string, FoundBy> known;
    std::string key = std::string(word) + "/" + std::string(english);
    const auto found = known.find(key);
    if (found != known.end()) return found->second;
    return known.emplace(std::move(key), FoundBy(word, english)).first->second;
}

std::string withTrap(std::string_view summary, std::string_view trap) {
    std::string text(summary);
    if (!trap.empty()) text += "\n\n" + std::string(trap);
    return text;
}

ItemKind itemKindOf(const Description& row, bool isCalled) {
    switch (row.kind) {
        case WordKind::Operator: return ItemKind::Operator;
        case WordKind::BuiltIn: return ItemKind::Function;
        case WordKind::Member: return isCalled ? ItemKind::Method : ItemKind::Field;
        case WordKind::Widget:
        case WordKind::Application: return ItemKind::Widget;
        default: return ItemKind::Keyword;
    }
}

std::string_view wordFor(NameKind kind) {
    switch (kind) {
        case NameKind::Variable: return "மாறி";
        case NameKind::Input: return "உறுப்பின் அடையாளம்";
        case NameKind::Page: return "பக்கம்";
        case NameKind::Parameter: return "செயல் பெறும் மதிப்பு";
        case NameKind::Function: return words::kFunction;
        case NameKind::Method: return "பொருளின் செயல்";
        case NameKind::Field: return "பண்பு";
        case NameKind::Structure: return "கட்டமைப்பு";
        case NameKind::Enumeration: return "வகை";
        case NameKind::EnumerationMember: return "வகையின் உறுப்பு";
    }
    return "";
}

ItemKind itemKindOf(NameKind kind) {
    switch (kind) {
        case NameKind::Function: return ItemKind::Function;
        case NameKind::Method: return ItemKind::Method;
        case NameKind::Field: return ItemKind::Field;
        case NameKind::Structure: return ItemKind::Structure;
        case NameKind::Enumeration: return ItemKind::Enumeration;
        case NameKind::EnumerationMember: return ItemKind::EnumerationMember;
        default: return ItemKind::Variable;
    }
}

bool isColour(ValueKind kind) {
    return kind == ValueKind::Colour || kind == ValueKind::NamedColour;
}

bool isInputMember(const Description& row) {
    return row.form.substr(0, kInputForm.size()) == kInputForm;
}

bool holdsWidgets(std::string_view holder) {
    if (holder == words::kBody) return true;
    const auto& rows = widgetDescriptions();
    return std::any_of(rows.begin(), rows.end(), [&](const Description& row) {
        return row.word == holder && row.kind == WordKind::Widget;
    });
}

}  // namespace

std::vector<Offer> Offers::gather() {
    switch (around.place.kind) {
        case PlaceKind::Statement: offerStatements(); break;
        case PlaceKind::Operand: offerOperands(0); break;
        case PlaceKind::AfterValue: offerOperators(0); break;
        case PlaceKind::LoopWord: offerWord(words::kIn, WordKind::Keyword, 0); break;
        case PlaceKind::NewName: offerNewNames(); break;
        case PlaceKind::Member: offerMembers(); break;
        case PlaceKind::Section: offerSections(); break;
        case PlaceKind::WidgetItem: offerWidgetItems(); break;
        case PlaceKind::PropertyValue:
        case PlaceKind::ValueText: offerValues(); break;
        case PlaceKind::ImportPath: offerModules(); break;
        case PlaceKind::Text: offerPages(); break;
        case PlaceKind::Comment:
        case PlaceKind::Nothing: break;
    }
    return std::move(offers);
}

// ---- Words of the language ----

void Offers::offerStatements() {
    offerNames(0);
    for (const Description& row : wordDescriptions()) {
        if (row.kind == WordKind::Keyword && beginsStatement(row.word)) offerWord(row, 0);
        if (row.kind == WordKind::BuiltIn) offerWord(row, beginsStatement(row.word) ? 0 : 1);
    }
    for (const Description& row : widgetDescriptions()) {
        if (beginsStatement(row.word)) offerWord(row, 0);
    }
}

void Offers::offerOperands(int fit) {
    offerNames(fit);
    const bool isLoop = around.place.before == words::kIn;
    for (const Description& row : wordDescriptions()) {
        const bool isSign = row.kind == WordKind::Operator && isUnary(row.word);
        const bool isValue = row.kind == WordKind::Keyword && isOperand(row.word);
        if (row.kind == WordKind::BuiltIn || isValue) offerWord(row, fit);
        if (isSign) offerWord(row, fit + 1);
        if (isLoop && row.word == "வரம்பு") offerWord(row, fit);
    }
}

void Offers::offerOperators(int fit) {
    for (const Description& row : wordDescriptions()) {
        const bool isOperator = row.kind == WordKind::Operator && !isSignAlone(row.word);
        if (isOperator) offerWord(row, fit);
        if (row.kind == WordKind::Keyword && row.word == "இல்லைஎனில்") offerWord(row, fit);
    }
}

void Offers::offerNewNames() {
    if (around.place.before == words::kFunction)
        offerWord(words::kConstructor, WordKind::Keyword, 0);
    if (around.place.before == "(") {
        for (const std::string_view word : {"தான்", "self", "மாற்று"}) {
            offerPlain(word, ItemKind::Keyword, 0);
        }
    }
}

void Offers::offerMembers() {
    const std::string_view receiver = around.place.receiver;
    const auto is = [&](NameKind kind) {
        return std::any_of(
            around.names.names.begin(), around.names.names.end(),
            [&](const auto& name) { return name.kind == kind && name.text == receiver; });
    };
    if (receiver == kRealtime) {
        for (const Description& row : widgetDescriptions()) {
            if (row.word.substr(0, kRealtime.size() + 1) == std::string(kRealtime) + ".") {
                offerWord(row, 0);
            }
        }
        return;
    }
    const bool isState = receiver == "காட்சி_நிலை";
    const bool isEnumeration = is(NameKind::Enumeration);
    const bool isInput = is(NameKind::Input);
    for (const DocumentName& name : around.names.names) {
        if (isState) {
            if (name.kind == NameKind::Variable) offerName(name, 0);
        } else if (isEnumeration) {
            if (name.owner == receiver && name.kind == NameKind::EnumerationMember) {
                offerName(name, 0);
            }
        } else if (name.kind == NameKind::Field || name.kind == NameKind::Method) {
            if (name.text != words::kConstructor) offerName(name, 0);
        }
    }
    if (isState || isEnumeration || holds(words::kReceivers, receiver)) return;
    for (const Description& row : wordDescriptions()) {
        if (row.kind != WordKind::Member) continue;
        if (isInput || !isInputMember(row)) offerWord(row, isInput == isInputMember(row) ? 0 : 1);
    }
}

// ---- Applications ----

void Offers::offerSections() {
    for (const std::string_view word : {"தலைமை", "குமரி", "வரையறை", "தரவுத்தளமேலாண்மை"}) {
        offerWord(word, WordKind::Application, 0);
    }
}

void Offers::offerWidgetItems() {
    const Place& place = around.place;
    if (place.followsValue) offerOperators(1);
    offerProperties();
    if (place.holder == words::kDatabase) {
        offerWord("பயர்பேசு_அமைப்பு", WordKind::Application, 0);
    }
    if (!holdsWidgets(place.holder)) return;
    offerChildWidgets(1);
    if (!place.followsValue) offerNames(2);
}

/// The rows that hold in the parentheses that are open.
std::vector<const PropertyDescription*> Offers::propertiesHere() const {
    const Place& place = around.place;
    const std::string_view block = words::blockOf(place.holder, place.widget);
    std::vector<const PropertyDescription*> rows;
    for (const PropertyDescription* row : propertiesOf(place.widget)) {
        if (row->block == block) rows.push_back(row);
    }
    if (!rows.empty()) return rows;
    for (const PropertyDescription* row : propertiesOf(place.holder)) {
        const bool isOwn = row->block == kOwnParentheses && !place.isSecond;
        if (row->block.empty() || isOwn) rows.push_back(row);
    }
    return rows;
}

void Offers::offerProperties() {
    const Place& place = around.place;
    for (const PropertyDescription* row : propertiesHere()) {
        const FoundBy& found = foundBy(row->word, row->english);
        if (!isNear(found)) continue;
        CompletionItem item;
        item.kind = ItemKind::Property;
        item.label = row->word;
        item.detail = row->value;
        item.documentation = withTrap(row->summary, row->trap);
        item.inserted = isFollowedBy(':') ? row->word : std::string(row->word) + ": ";
        if (!isFollowedBy(':')) item.snippet = snippetOf(*row);
        offer(found, 0, rankOf(row->word), std::move(item));
    }
    std::vector<std::string_view> blocks;
    for (const PropertyDescription* row : propertiesOf(place.holder)) {
        const std::string_view block =
            row->block == words::kTarget ? words::kAnimation : row->block;
        const bool isBlock = !block.empty() && block != kOwnParentheses;
        if (isBlock && !holds(blocks, block)) blocks.push_back(block);
    }
    if (place.holder == words::kAnimation) blocks.push_back(words::kTarget);
    for (const std::string_view block : blocks) {
        offerWord(block, WordKind::Application, 0);
        if (words::blockOf(words::kStyle, place.holder) == block) {
            offerWord(words::kStyle, WordKind::Application, 0);
        }
    }
}

void Offers::offerChildWidgets(int fit) {
    for (const Description& row : widgetDescriptions()) {
        if (row.kind != WordKind::Widget) continue;
        const std::string_view holder = around.place.holder;
        const bool isItem = (holder == "அடிப்பகுதி" && row.word == "அடி_உருப்படி") ||
                            (holder == "தத்தல்" && row.word == "தத்தல்_உருப்படி");
        offerWord(row, isItem ? 0 : fit);
    }
}

// ---- Values ----

void Offers::offerValues() {
    std::vector<ValueKind> kinds;
    for (const PropertyDescription* row : propertiesHere()) {
        if (row->word != around.place.property || holds(kinds, row->kind)) continue;
        kinds.push_back(row->kind);
        offerValuesOf(*row);
    }
    if (around.place.property == "பக்கம்") offerPages();
    if (!kinds.empty() || around.place.isQuoted) return;
    offerOperands(1);
}

void Offers::offerValuesOf(const PropertyDescription& property) {
    for (const ValueDescription& row : valueDescriptions()) {
        const bool isCurve = property.word == "வகை" && row.group == ValueGroup::Curve;
        const bool isTrigger = property.word == "நிலைமை" && row.group == ValueGroup::Trigger;
        const bool isAlignment =
            property.kind == ValueKind::Alignment && row.group == ValueGroup::Alignment;
        const bool isColourHere = isColour(property.kind) && row.group == ValueGroup::Colour;
        // A place in quotes changes nothing.
        if (isAlignment && around.place.isQuoted) continue;
        if (isCurve || isTrigger || isAlignment || isColourHere) offerValue(row);
    }
    if (around.place.isQuoted) {
        if (property.kind == ValueKind::Weight) {
            for (const std::string_view word : {"தடிமனான", "bold"})
                offerPlain(word, ItemKind::Value, 0);
        }
        return;
    }
    switch (property.kind) {
        case ValueKind::Truth:
        case ValueKind::Flag:
            offerWord("மெய்", WordKind::Keyword, 0);
            if (property.kind == ValueKind::Truth) offerWord("பொய்", WordKind::Keyword, 0);
            break;
        case ValueKind::Weight:
            for (const std::string_view word : {"400", "700"}) offerPlain(word, ItemKind::Value, 0);
            break;
        case ValueKind::Widget: offerChildWidgets(0); break;
        case ValueKind::Size: offerNames(0); break;
        case ValueKind::Any:
            offerOperands(1);
            offerActions(property);
            break;
        default: break;
    }
}

/// `வினை(): கூட்டிவிடு()` for each function that asks for nothing.
void Offers::offerActions(const PropertyDescription& property) {
    if (property.value.find(words::kLambda) == std::string_view::npos) return;
    for (const DocumentName& name : around.names.names) {
        if (name.kind != NameKind::Function || !name.parameters.empty()) continue;
        CompletionItem item;
        item.kind = ItemKind::Function;
        item.label = std::string(words::kLambda) + "(): " + name.text + "()";
        item.detail = wordFor(name.kind);
        item.inserted = item.label;
        offer(FoundBy(name.text), 0, kNameRank, std::move(item));
    }
    offerWord("அறிவிப்பு_பட்டை", WordKind::Widget, 1);
}

/// A value without quotes gets them where it needs them.
void Offers::offerValue(const ValueDescription& row) {
    CompletionItem item;
    item.kind = row.group == ValueGroup::Colour ? ItemKind::Colour : ItemKind::Value;
    item.label = row.word;
    item.documentation = row.summary;
    const bool needsQuotes = row.group != ValueGroup::Alignment && !around.place.isQuoted;
    item.inserted = needsQuotes ? "\"" + std::string(row.word) + "\"" : std::string(row.word);
    constexpr int kMostValues = 1000;
    const int number = static_cast<int>(&row - valueDescriptions().data());
    const int rank = rankOf(row.word) * kMostValues + number;
    offer(foundBy(row.word, row.english), 0, rank, std::move(item));
}

void Offers::offerModules() {
    if (!around.settings.modulePaths) return;
    const bool isQuoted = around.place.isQuoted;
    for (const std::string& path : around.settings.modulePaths()) {
        offerPlain(path, ItemKind::Module, 0, isQuoted ? path : "\"" + path + "\"");
    }
}

/// Pages where one is opened, inputs where one is scrolled to.
void Offers::offerPages() {
    const Place& place = around.place;
    const bool isPage = place.before == "செல்க" || place.property == "பக்கம்";
    const bool isTarget = place.before == "நகர்த்து";
    if (!place.isQuoted) return;
    for (const DocumentName& name : around.names.names) {
        if ((isPage && name.kind == NameKind::Page) || (isTarget && name.kind == NameKind::Input)) {
            offerName(name, 0);
        }
    }
}

// ---- Names ----

void Offers::offerNames(int fit) {
    for (const DocumentName& name : around.names.names) {
        const bool isSeen = name.scope.begin <= around.offset && around.offset <= name.scope.end;
        const bool isOther = name.kind == NameKind::Method || name.kind == NameKind::Field ||
                             name.kind == NameKind::Page ||
                             name.kind == NameKind::EnumerationMember;
        if (isSeen && !isOther) offerName(name, fit);
    }
}

void Offers::offerName(const DocumentName& name, int fit) {
    const FoundBy found(name.text);
    if (!isNear(found)) return;
    CompletionItem item;
    item.kind = itemKindOf(name.kind);
    item.label = name.text;
    item.detail = wordFor(name.kind);
    if (!name.module.empty()) item.detail += " — \"" + name.module + "\"";
    item.inserted = name.text;
    std::vector<std::string> parameters = name.parameters;
    if (name.kind == NameKind::Structure) {
        for (const DocumentName& other : around.names.names) {
            const bool makes = other.owner == name.text && other.text == words::kConstructor;
            if (makes) parameters = other.parameters;
        }
    }
    const bool isCalled = name.kind == NameKind::Function || name.kind == NameKind::Method ||
                          name.kind == NameKind::Structure;
    if (isCalled && !isFollowedBy('(') && !around.place.isQuoted) {
        item.snippet = snippetOfCall(name.text, parameters);
        item.detail += ": " + withoutStops(item.snippet);
    }
    offer(found, fit, kNameRank, std::move(item));
}

// ---- One offer ----

void Offers::offerWord(std::string_view word, WordKind kind, int fit) {
    for (const auto* table : {&wordDescriptions(), &widgetDescriptions()}) {
        for (const Description& row : *table) {
            if (row.word == word && row.kind == kind) return offerWord(row, fit);
        }
    }
}

void Offers::offerWord(const Description& row, int fit) {
    const bool isCompound =
        around.place.receiver == kRealtime && row.word.substr(0, kRealtime.size()) == kRealtime;
    const std::size_t written = isCompound ? kRealtime.size() + 1 : 0;
    const FoundBy& found = foundBy(row.word.substr(written), row.english);
    if (!isNear(found)) return;
    CompletionItem item;
    const bool isOperator = around.place.kind == PlaceKind::AfterValue;
    if (!isFollowedBy('(') && !isOperator) {
        item.snippet = snippetOf(row, indentationOf(around.text));
    }
    item.kind = itemKindOf(row, !item.snippet.empty());
    item.label = row.word.substr(written);
    item.detail = row.form;
    item.documentation = withTrap(row.summary, row.trap);
    if (!item.snippet.empty()) item.snippet.erase(0, written);
    item.inserted = item.label;
    offer(found, fit, rankOf(row.word), std::move(item));
}

void Offers::offerPlain(std::string_view word, ItemKind kind, int fit, std::string inserted) {
    CompletionItem item;
    item.kind = kind;
    item.label = word;
    item.inserted = inserted.empty() ? std::string(word) : std::move(inserted);
    offer(FoundBy(word), fit, static_cast<int>(offers.size()), std::move(item));
}

void Offers::offer(const FoundBy& found, int fit, int rank, CompletionItem item) {
    const Closeness closeness = around.typed.closenessTo(found);
    if (closeness == Closeness::None) return;
    // Where nothing was typed the order of the tables holds.
    const std::size_t length = closeness == Closeness::Whole ? 0 : found.sound.size();
    offers.push_back({closeness, fit, rank, length, std::move(item)});
}

}  // namespace companion::completion
