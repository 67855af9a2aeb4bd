#include "driver/page.h"

#include "driver/media.h"
#include "driver/paths.h"
#include "syntax/application.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"

namespace {

constexpr const char* kTitleMark = "{{{ இணைய_தலைப்பு }}}";
constexpr const char* kIconMark = "{{{ சின்னம் }}}";
constexpr const char* kBackgroundMark = "{{{ பின்னணி_நிறம் }}}";
constexpr const char* kScriptMark = "{{{ SCRIPT }}}";

constexpr const char* kDefaultTitle = "பொழில் தளம்";
constexpr const char* kDefaultIcon = "file-icon.png";
constexpr const char* kDefaultBackground = "#ffffff";
constexpr const char* kScriptTag =
    "<script async type=\"text/javascript\" src=\"index.js\"></script>";

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

std::string orDefault(const std::string& text, const char* fallback) {
    return text.empty() ? fallback : text;
}

bool holds(const std::string& page, const std::string& mark) {
    return page.find(mark) != std::string::npos;
}

void replaceFirst(std::string& page, const std::string& mark, const std::string& value) {
    const std::size_t at = page.find(mark);
    if (at != std::string::npos) page.replace(at, mark.size(), value);
}

/// Moves past each value, so that one which holds the mark can't loop.
void replaceAll(std::string& page, const std::string& mark, const std::string& value) {
    for (std::size_t at = page.find(mark); at != std::string::npos;
         at = page.find(mark, at + value.size())) {
        page.replace(at, mark.size(), value);
    }
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

void insertScript(std::string& page) {
    if (holds(page, kScriptMark)) {
        replaceFirst(page, kScriptMark, kScriptTag);
    } else {
        insertBeforeBodyEnd(page, std::string(kScriptTag) + "\n");
    }
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

std::string assemblePage(std::string page, const PageHead& head, int version) {
    replaceFirst(page, kTitleMark, orDefault(head.title, kDefaultTitle));
    if (holds(page, kIconMark)) replaceFirst(page, kIconMark, iconAddress(head.icon));
    replaceAll(page, kBackgroundMark, orDefault(head.background, kDefaultBackground));
    insertScript(page);
    insertBeforeBodyEnd(page, kLiveReloadHead + std::to_string(version) + kLiveReloadTail);
    return page;
}
