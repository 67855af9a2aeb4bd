#include "driver/page.h"

#include <sstream>
#include <string_view>
#include <utility>

#include "driver/media.h"
#include "driver/paths.h"
#include "syntax/application.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"
#include "writing/marks.h"
#include "writing/texts.h"

namespace {

constexpr std::string_view kTitleMark = "இணைய_தலைப்பு";
constexpr std::string_view kIconMark = "சின்னம்";
constexpr std::string_view kBackgroundMark = "பின்னணி_நிறம்";
constexpr std::string_view kScriptMark = "SCRIPT";

constexpr const char* kDefaultTitle = "பொழில் தளம்";
constexpr const char* kDefaultIcon = "file-icon.png";
constexpr const char* kDefaultBackground = "#ffffff";

constexpr const char* kLiveReloadHead = "\n        <script>\n            let currentVersion = ";
constexpr const char* kLiveReloadTail =
    ";\n"
    "            setInterval(() => {\n"
    "                fetch('/version').then(res => res.text()).then(text => {\n"
    "                    let newVer = parseInt(text);\n"
    "                    if (newVer > currentVersion) {\n"
    "                        location.reload();\n"
    "                    }\n"
    "                }).catch(e => {});\n"
    "            }, 500);\n"
    "        </script>\n"
    "            ";

struct MediaType {
    const char* ending;
    const char* type;
};
constexpr MediaType kIconTypes[] = {
    {".svg", "image/svg+xml"},
    {".jpg", "image/jpeg"},
    {".jpeg", "image/jpeg"},
    {"", "image/png"},
};

bool holds(const std::string& page, std::string_view mark) {
    return page.find(std::string(kPageMarks.open) + std::string(mark) +
                     std::string(kPageMarks.close)) != std::string::npos;
}

enum class Places { First, All };

/// Each mark is replaced in a walk of its own: a value that holds a mark is filled by the walks
/// that follow, and by its own never.
void replaceMark(std::string& page, std::string_view mark, Places places, std::string_view value) {
    bool isPlaced = false;
    std::ostringstream filled;
    fillMarks(filled, page, kPageMarks, [&](std::string_view name) {
        if (name != mark || (isPlaced && places == Places::First)) return false;
        isPlaced = true;
        filled << value;
        return true;
    });
    page = filled.str();
}

void insertBeforeBodyEnd(std::string& page, const std::string& text) {
    const std::size_t at = page.find("</body>");
    if (at != std::string::npos) page.insert(at, text);
}

const char* iconType(const std::string& path) {
    const MediaType* row = kIconTypes;
    while (!hasEnding(path, row->ending)) row++;
    return row->type;
}

/// The icon as a data address, so that the page carries it inside itself.
std::string iconAddress(const std::string& path) {
    std::string bytes;
    if (path.empty() || !readFile(path, bytes)) return kDefaultIcon;
    return std::string("data:") + iconType(path) + ";base64," +
           base64_encode_logo({bytes.begin(), bytes.end()});
}

}  // namespace

std::string extractHeaderProperty(const Program& program, std::string key) {
    for (const auto& statement : program.statements) {
        const auto* app = dynamic_cast<const WebAppNode*>(statement.get());
        if (app == nullptr) continue;
        const auto* header = dynamic_cast<const WidgetNode*>(app->header.get());
        if (header == nullptr) continue;
        const auto found = header->properties.find(key);
        if (found == header->properties.end()) continue;

        const Expression* value = found->second.get();
        if (const auto* text = dynamic_cast<const StringLiteral*>(value)) return text->value;
        if (const auto* color = dynamic_cast<const ColorExpression*>(value)) {
            return color->isHex ? color->hexValue : color->colorName;
        }
    }
    return "";
}

PageHead readPageHead(const Program& program) {
    return {extractHeaderProperty(program, "இணைய_தலைப்பு"), extractHeaderProperty(program, "சின்னம்"),
            extractHeaderProperty(program, "பின்னணி")};
}

std::string fillPageHead(std::string page, const PageHead& head) {
    replaceMark(page, kTitleMark, Places::First, orDefault(head.title, kDefaultTitle));
    if (holds(page, kIconMark)) {
        replaceMark(page, kIconMark, Places::First, iconAddress(head.icon));
    }
    replaceMark(page, kBackgroundMark, Places::All, orDefault(head.background, kDefaultBackground));
    return page;
}

void insertScript(std::string& page, const std::string& address) {
    const std::string tag =
        "<script async type=\"text/javascript\" src=\"" + address + "\"></script>";
    if (holds(page, kScriptMark)) {
        replaceMark(page, kScriptMark, Places::First, tag);
    } else {
        insertBeforeBodyEnd(page, tag + "\n");
    }
}

std::string assemblePage(std::string page, const PageHead& head, int version) {
    page = fillPageHead(std::move(page), head);
    insertScript(page, "index.js");
    insertBeforeBodyEnd(page, kLiveReloadHead + std::to_string(version) + kLiveReloadTail);
    return page;
}
