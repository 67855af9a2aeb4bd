#include "companion/reference/value_pages.h"

#include <cstdio>

#include "companion/descriptions/description.h"
#include "companion/reference/curves.h"
#include "companion/reference/drawings.h"
#include "companion/reference/entries.h"
#include "ui/colours.h"

namespace companion::reference {

namespace {

constexpr int kSteps = 72;

using Values = std::vector<const ValueDescription*>;

Values valuesOf(ValueGroup group) {
    Values values;
    for (const ValueDescription& value : valueDescriptions()) {
        if (value.group == group) values.push_back(&value);
    }
    return values;
}

std::string named(const Entry& entry) { return anchor(entry.anchor) + code(entry.word); }

std::string pictureOf(const std::string& name, std::string_view word) {
    return "![" + escaped(word) + "](" + pages::kPictureFolder + name + ".svg)";
}

// ---- Colours ----

std::string swatchName(std::string_view colour) { return "நிறம்_" + std::string(colour); }

Rgb channelsOf(std::string_view colour) {
    return channelBytes(parsePozhilColor(std::string(colour), false));
}

std::string hexadecimalOf(const Rgb& colour) {
    char text[] = "#000000";
    static_cast<void>(std::snprintf(text, sizeof text, "#%02X%02X%02X", colour.r & 0xFF,
                                    colour.g & 0xFF, colour.b & 0xFF));
    return text;
}

// ---- Curves ----

/// The drawings of all curves, each once, under the name of the first curve that looks so.
std::vector<ReferenceFile> drawnCurves() {
    std::vector<ReferenceFile> drawings;
    for (const ValueDescription* value : valuesOf(ValueGroup::Curve)) {
        const std::string drawing = graph(curvePoints(std::string(value->word), kSteps));
        bool isDrawn = false;
        for (const ReferenceFile& known : drawings) isDrawn |= known.text == drawing;
        if (!isDrawn) drawings.push_back({"வளைவு_" + std::string(value->word), drawing});
    }
    return drawings;
}

std::string drawingNameOf(const ValueDescription& curve,
                          const std::vector<ReferenceFile>& drawings) {
    const std::string drawing = graph(curvePoints(std::string(curve.word), kSteps));
    for (const ReferenceFile& known : drawings) {
        if (known.text == drawing) return known.path;
    }
    return "";
}

std::vector<ReferenceFile> asPictures(std::vector<ReferenceFile> drawings) {
    for (ReferenceFile& drawing : drawings) {
        drawing.path = pages::kPictureFolder + drawing.path + ".svg";
    }
    return drawings;
}

void writeWords(MarkdownPage& page, ValueGroup group, EntryKind kind) {
    std::vector<std::vector<std::string>> rows;
    for (const ValueDescription* value : valuesOf(group)) {
        rows.push_back(
            {named(entryOf(kind, value->word)), escaped(value->summary), escaped(value->english)});
    }
    page.table({"சொல்", "பொருள்", "பிற மொழிகளில்"}, rows);
}

}  // namespace

MarkdownPage coloursPage() {
    MarkdownPage page(pages::kColours, "நிறங்கள்");
    page.prose(
        "நிறத்தின் பெயரை மேற்கோளுக்குள் எழுது: \"சிவப்பு\". வேறு நிறத்துக்கு # குறியின் பின்னே ஆறு இலக்கங்கள் எழுது: "
        "\"#2A9D8F\"; எட்டு எழுதினால் கடைசி இரண்டும் ஊடுருவலைச் சொல்லும். தெரியாத பெயரும் குறுகிய எண்ணும் கருப்பாகும்.");
    std::vector<std::vector<std::string>> rows;
    for (const ValueDescription* value : valuesOf(ValueGroup::Colour)) {
        rows.push_back({pictureOf(swatchName(value->word), value->word),
                        named(entryOf(EntryKind::Colour, value->word)),
                        code(hexadecimalOf(channelsOf(value->word))), escaped(value->summary),
                        escaped(value->english)});
    }
    page.table({"நிறம்", "பெயர்", "எண்", "பொருள்", "பிற மொழிகளில்"}, rows);
    return page;
}

std::vector<ReferenceFile> colourPictures() {
    std::vector<ReferenceFile> pictures;
    for (const ValueDescription* value : valuesOf(ValueGroup::Colour)) {
        pictures.push_back({swatchName(value->word), swatch(channelsOf(value->word))});
    }
    return asPictures(std::move(pictures));
}

MarkdownPage placesPage() {
    MarkdownPage page(pages::kPlaces, "சீரமைப்பும் நிலைமையும்");
    page.heading(2, "சீரமைப்பு");
    page.markdown(linkTo(entryOf(EntryKind::Property, "சீரமைப்பு"), page.path()) +
                  " என்ற பண்பின் மதிப்புகள். மேற்கோள் இல்லாமல் எழுது.");
    writeWords(page, ValueGroup::Alignment, EntryKind::Alignment);
    page.heading(2, "அசைவூட்டத்தின் நிலைமை");
    page.markdown(linkTo(entryOf(EntryKind::Property, "நிலைமை"), page.path()) +
                  " என்ற பண்பின் மதிப்புகள். மேற்கோளுக்குள் எழுது.");
    writeWords(page, ValueGroup::Trigger, EntryKind::Trigger);
    return page;
}

MarkdownPage curvesPage() {
    MarkdownPage page(pages::kCurves, "அசைவின் வளைவுகள்");
    page.markdown(linkTo(entryOf(EntryKind::Property, "வகை"), page.path()) +
                  " என்ற பண்பின் மதிப்புகள். மேற்கோளுக்குள் எழுது; தெரியாத சொல் ஒரே வேகத்தில் அசைக்கும்.");
    page.prose(
        "படத்தில் இடமிருந்து வலமாகக் காலம், கீழிருந்து மேலாக அசைவு. கீழ்ப் புள்ளிக்கோடு தொடக்கம், மேல் புள்ளிக்கோடு முடிவு.");
    const std::vector<ReferenceFile> drawings = drawnCurves();
    for (const ValueDescription* value : valuesOf(ValueGroup::Curve)) {
        const Entry& entry = entryOf(EntryKind::Curve, value->word);
        page.heading(2, code(entry.word), entry.anchor);
        page.markdown(pictureOf(drawingNameOf(*value, drawings), value->word));
        page.prose(value->summary);
        page.labelled("பிற மொழிகளில்", value->english);
    }
    return page;
}

std::vector<ReferenceFile> curvePictures() { return asPictures(drawnCurves()); }

}  // namespace companion::reference
