#include "companion/reference/widget_pages.h"

#include <algorithm>
#include <map>

#include "companion/descriptions/names.h"
#include "companion/descriptions/properties_of.h"
#include "companion/descriptions/widgets_families.h"
#include "companion/reference/entries.h"
#include "companion/reference/explained.h"
#include "companion/reference/measured_size.h"

namespace companion::reference {

namespace {

using Properties = std::vector<const PropertyDescription*>;

bool isWordOfLanguage(std::string_view text) {
    const auto& all = allEntries();
    return std::any_of(all.begin(), all.end(),
                       [&](const Entry& entry) { return entry.word == text; });
}

/// A default that a source would write is code, prose stays prose.
std::string defaultOf(const PropertyDescription& property) {
    const std::string_view value = property.defaultValue;
    const bool isLiteral =
        std::string_view("0123456789\"[").find(value[0]) != std::string_view::npos;
    return isLiteral || isWordOfLanguage(value) ? code(value) : escaped(value);
}

std::string meaningOf(const PropertyDescription& property) {
    std::string text = escaped(property.summary);
    if (!property.trap.empty()) text += " **கவனம்:** " + escaped(property.trap);
    return text;
}

/// A word of an application, linked; without a link where it isn't one's own page.
std::string linkToWidget(std::string_view word, const MarkdownPage& page) {
    for (const Entry& entry : allEntries()) {
        const bool isWidget =
            entry.kind == EntryKind::Widget || entry.kind == EntryKind::Application;
        if (isWidget && entry.word == word) return linkTo(entry, page.path());
    }
    return code(word);
}

std::string placeLink(const PropertyDescription& property, const MarkdownPage& page) {
    if (property.block.empty()) return "உறுப்பின் அடைப்பு";
    if (property.block == "()") return escaped(placeOf(property));
    return linkToWidget(property.block, page) + " அடைப்பு";
}

// ---- A widget's properties ----

void writePropertyTable(MarkdownPage& page, const Properties& properties) {
    std::vector<std::vector<std::string>> rows;
    for (const PropertyDescription* property : properties) {
        rows.push_back({linkTo(entryOf(EntryKind::Property, property->word), page.path()),
                        escaped(property->value), defaultOf(*property), meaningOf(*property)});
    }
    page.table({"பண்பு", "மதிப்பு", "எழுதாவிட்டால்", "பொருள்"}, rows);
}

std::string titleOfBlock(const PropertyDescription& property) {
    if (property.block.empty()) return "பண்புகள்";
    return property.block == "()" ? "முதல் அடைப்பில் எழுதும் பண்புகள்"
                                  : code(placeOf(property)) + " உள்ளே எழுதும் பண்புகள்";
}

/// A table for each block, those of the widget's own parentheses first.
void writeProperties(MarkdownPage& page, int level, std::string_view widget) {
    std::vector<std::string_view> blocks;
    std::map<std::string_view, Properties> properties;
    for (const PropertyDescription* property : propertiesOf(widget)) {
        if (properties.count(property->block) == 0) blocks.push_back(property->block);
        properties[property->block].push_back(property);
    }
    std::stable_partition(blocks.begin(), blocks.end(),
                          [](std::string_view block) { return block.empty(); });
    for (const std::string_view block : blocks) {
        page.heading(level, titleOfBlock(*properties[block].front()));
        writePropertyTable(page, properties[block]);
    }
}

// ---- A widget's size ----

std::string sideText(const MeasuredSide& side) {
    if (side.pixels == "0") {
        return side.growsWithWidget ? "உள்ளிருப்பதைப் பொறுத்தது" : "திரை முடிவு செய்யும்";
    }
    std::string text = side.pixels;
    if (side.growsWithText) text += " (சொல் நீண்டால் கூடும்)";
    if (side.growsWithWidget) text += " (உள்ளிருப்பது பெரிதானால் கூடும்)";
    return text;
}

void writeSize(MarkdownPage& page, std::string_view widget) {
    const MeasuredSize size = measuredSizeOf(widget);
    page.heading(2, "அளவு");
    page.prose("அளவு எழுதாவிட்டால் வரிசைகள் இதற்கு விடும் இடம், புள்ளிகளில்:");
    page.points({"அகலம்: " + sideText(size.width), "உயரம்: " + sideText(size.height)});
}

std::string picture(std::string_view word, const std::string& page) {
    const std::string name(word);
    return "![" + escaped(name) + "](" + pathFrom(page, "../படங்கள்/" + name + ".png") + ")";
}

MarkdownPage widgetPage(const Description& word, const std::set<std::string>& pictures) {
    MarkdownPage page(entryOf(EntryKind::Widget, word.word).page, word.word);
    page.markdown(link("எல்லா உறுப்புகளும்", pathFrom(page.path(), pages::kWidgets)));
    if (pictures.count(std::string(word.word)) != 0) {
        page.markdown(picture(word.word, page.path()));
    }
    writeMeaning(page, word);
    writeProperties(page, 2, word.word);
    writeSize(page, word.word);
    page.heading(2, "எடுத்துக்காட்டு");
    writeUse(page, word);
    return page;
}

template <typename Words>
std::string widgetLinks(const Words& words, const MarkdownPage& page) {
    std::string links;
    for (const auto& word : words) links += (links.empty() ? "" : ", ") + linkToWidget(word, page);
    return links;
}

/// The widgets that read the property; those that don't, where they are fewer.
std::string readersOf(const PropertyDescription& property, const MarkdownPage& page) {
    const std::vector<std::string_view> readers = listedWords(property.widgets);
    std::vector<std::string_view> others;
    for (const Entry* widget : entriesOf(EntryKind::Widget)) {
        if (std::find(readers.begin(), readers.end(), widget->word) == readers.end()) {
            others.push_back(widget->word);
        }
    }
    if (readers.size() <= others.size()) return widgetLinks(readers, page);
    return "எல்லா உறுப்புகளும், இவை தவிர: " + widgetLinks(others, page);
}

bool holdsKind(const WidgetFamily& family, WordKind kind) {
    return std::any_of(family.words.begin(), family.words.end(),
                       [&](const Description& word) { return word.kind == kind; });
}

}  // namespace

std::vector<MarkdownPage> widgetPages(const std::set<std::string>& pictures) {
    std::vector<MarkdownPage> all;
    for (const Description& word : widgetDescriptions()) {
        if (word.kind == WordKind::Widget) all.push_back(widgetPage(word, pictures));
    }
    return all;
}

MarkdownPage widgetsPage(const std::set<std::string>& pictures) {
    MarkdownPage page(pages::kWidgets, "உறுப்புகள்");
    page.prose("வலைதளத்தின் திரையில் நிற்பவை. சொல்லைத் தொட்டால் அதன் பண்புகளும் எடுத்துக்காட்டும் வரும்.");
    for (const WidgetFamily& family : widgetFamilies()) {
        if (!holdsKind(family, WordKind::Widget)) continue;
        page.heading(2, escaped(family.title));
        std::vector<std::vector<std::string>> rows;
        for (const Description& word : family.words) {
            if (word.kind != WordKind::Widget) continue;
            const bool isShown = pictures.count(std::string(word.word)) != 0;
            rows.push_back({linkTo(entryOf(EntryKind::Widget, word.word), page.path()),
                            escaped(word.summary),
                            isShown ? picture(word.word, page.path()) : "—"});
        }
        page.table({"உறுப்பு", "என்ன செய்யும்", "படம்"}, rows);
    }
    return page;
}

MarkdownPage applicationPage() {
    MarkdownPage page(pages::kApplication, "வலைதளத்தின் பகுதிகள்");
    page.markdown("வலைதளத்தில் உறுப்புகள் அல்லாத சொற்கள். உறுப்புகள்: " + link("உறுப்புகள்", pages::kWidgets) +
                  ".");
    for (const WidgetFamily& family : widgetFamilies()) {
        if (!holdsKind(family, WordKind::Application)) continue;
        page.heading(2, escaped(family.title));
        for (const Description& word : family.words) {
            if (word.kind != WordKind::Application) continue;
            page.heading(3, code(word.word), entryOf(EntryKind::Application, word.word).anchor);
            writeMeaning(page, word);
            writeProperties(page, 4, word.word);
            writeUse(page, word);
        }
    }
    return page;
}

MarkdownPage propertiesPage() {
    MarkdownPage page(pages::kProperties, "பண்புகள்");
    page.prose(
        "ஒரு பண்பை எந்த உறுப்புகள் படிக்கும், எங்கே எழுத வேண்டும் என்று சொல்லின் வழியே தேட. வேறு உறுப்பில் எழுதினாலோ வேறு "
        "வகை மதிப்பைக் கொடுத்தாலோ பொழில் ஒன்றும் சொல்லாமல் விட்டுவிடும்.");
    for (const Entry* entry : entriesOf(EntryKind::Property)) {
        page.heading(2, code(entry->word), entry->anchor);
        std::vector<std::vector<std::string>> rows;
        for (const PropertyDescription& property : propertyDescriptions()) {
            if (property.word != entry->word) continue;
            rows.push_back({readersOf(property, page), placeLink(property, page),
                            escaped(property.value), defaultOf(property), meaningOf(property)});
        }
        page.table({"உறுப்பு", "இடம்", "மதிப்பு", "எழுதாவிட்டால்", "பொருள்"}, rows);
    }
    return page;
}

}  // namespace companion::reference
