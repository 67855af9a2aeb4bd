// What stands around every widget: where it lies, whether it shows, which kind it is.
#include "ui/widget_frame.h"

#include "ui/properties.h"
#include "ui/widget_writer.h"
#include "ui/widgets/kinds.h"
#include "writing/texts.h"

namespace {

struct WidgetRow {
    const char* name;
    WriteWidget write;
};

// In the order in which they are tried. A name that is in no row writes nothing.
const WidgetRow kWidgets[] = {
    {"உரை", writeText},
    {"விரிவாக்கம்", writeFirstChild},
    {"நெகிழ்வு", writeFirstChild},
    {"வெற்றிடம்", writeNothing},
    {"பொத்தான்", writeButton},
    {"தேர்வுபெட்டி", writeCheckBox},
    {"வட்டத்தேர்வு", writeRadio},
    {"மாற்றி", writeSwitch},
    {"அளவி", writeSlider},
    {"கீழ்வரி", writeDropdown},
    {"படம்", writeImage},
    {"வட்டபடம்", writeAvatar},
    {"பிரிப்பான்", writeDivider},
    {"அட்டை", writeCard},
    {"சுழல்_காட்டி", writeSpinner},
    {"முன்னேற்றவரி", writeProgressBar},
    {"தகவல்பட்டை", writeMessageBar},
    {"எச்சரிக்கை", writeAlert},
    {"அடிப்பகுதி", writeBottomBar},
    {"தத்தல்", writeTabBar},
    {"பக்கம்", writeInlinePage},
    {"இவெ", writeSpacer},
    {"அடுக்கி", writeStack},
    {"நெடுவரிசை", writeColumn},
    {"கிடைவரிசை", writeRow},
    {"தேடல்_பட்டை", writeSearchBar},
    {"தேடுபொறி", writeSearchBar},
    {"மடிப்பு", writeWrap},
    {"பெட்டி", writeBox},
    {"பட்டியல்_காட்சி", writeList},
    {"கட்டம்_காட்சி", writeGrid},
    {"உள்_இவெ", writePadding},
    {"உரைபொத்தான்", writeTextButton},
    {"உரைபெட்டி", writeTextBox},
    {"பட்டியல்_உருப்படி", writeListTile},
    {"கடவுமறை", writePasswordBox},
    {"அறிவிப்பு_பட்டை", writeNothing},  // it shows when it is called: see writeValue
};

/// The test by which a flag of the program shows or hides the widget of that name. A warning is
/// hidden until its flag is set, anything else shows until it is cleared; a flag that is no truth
/// value hides both.
std::string visibilityTest(const std::string& kind, const std::string& name) {
    const std::string flag = "global_vars[\"" + name + "\"]";
    const std::string isSet =
        flag + ".type() == typeid(bool) && std::any_cast<bool>(" + flag + ") == true";
    if (kind == "எச்சரிக்கை") return "global_vars.count(\"" + name + "\") && " + isSet;
    return "global_vars.find(\"" + name + "\") == global_vars.end() || (" + isSet + ")";
}

}  // namespace

std::vector<std::string_view> widgetWords() {
    std::vector<std::string_view> words;
    for (const WidgetRow& row : kWidgets) words.emplace_back(row.name);
    return words;
}

void WidgetWriter::write(const WidgetNode& widget, const std::string& x, const std::string& y) {
    const Site site = {widget, x, y, identityOf(widget)};
    registerPlace(site);
    writeVisible(site);
}

void WidgetWriter::writeValue(const WidgetNode& widget) {
    const auto* message = dynamic_cast<const SnackBarNode*>(&widget);
    if (message == nullptr) return write(widget, "0.0f", "0.0f");
    writeSnackBarTrigger(*this, *message);
}

/// Before the visibility: a hidden widget has its place too.
void WidgetWriter::registerPlace(const Site& site) {
    const Expression* name = property(site.node, "அடையாளம்");
    if (name == nullptr) return;
    text.block("", [&] {
        text.indent();
        text.out << "std::string _wid = fn_any_to_string(";
        programText.visitExpression(name);
        text.out << ");\n";
        text.line("if (!_wid.empty()) g_widgetPositions[_wid] = {(float)(" + site.x +
                  "), (float)(" + site.y + ")};");
    });
}

/// Any widget with a name of this kind blocks what lies behind it while its flag is true, as a
/// warning does. Meant: it makes a panel of any widget.
void WidgetWriter::writeVisible(const Site& site) {
    const std::string* name = stringProperty(site.node, "காட்சி_பெயர்");
    if (name == nullptr) return dispatch(site);
    text.line("// --- Visibility Check for: " + *name + " ---");
    text.line("g_alert_names.insert(\"" + *name + "\");");
    text.block(
        "if (" + visibilityTest(site.node.name, *name) + ") ", [&] { dispatch(site); },
        " // End Visibility Check for " + *name + "\n");
}

void WidgetWriter::dispatch(const Site& site) {
    for (const WidgetRow& row : kWidgets) {
        if (site.node.name == row.name) return row.write(*this, site);
    }
}
