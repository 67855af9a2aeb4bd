// The realtime database: its connection and its four calls, as text for the browser alone. In a
// console program they compile to nothing.
#include "generator/generator.h"
#include "ui/properties.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

/// The configuration's names in JavaScript, and the properties that give their values.
const struct {
    const char* name;
    const char* property;
} kFirebaseSettings[] = {
    {"apiKey", "api_key"},
    {"authDomain", "auth_domain"},
    {"databaseURL", "database_url"},
    {"projectId", "project_id"},
    {"storageBucket", "storage_bucket"},
    {"messagingSenderId", "messaging_sender_id"},
    {"appId", "app_id"},
};

constexpr const char* kFirebase = "https://www.gstatic.com/firebasejs/10.0.0/firebase-";

/// A string of the configuration as the source writes it, without escaping; "" for anything else.
/// Meant.
std::string setting(const FirebaseConfigNode& config, const std::string& name) {
    const auto found = config.properties.find(name);
    if (found == config.properties.end()) return "";
    const auto* text = nodeAs<StringLiteral>(found->second.get());
    return text == nullptr ? "" : text->value;
}

std::string configuration(const FirebaseConfigNode& config) {
    std::string settings;
    for (const auto& row : kFirebaseSettings) {
        if (!settings.empty()) settings += ", ";
        settings += std::string(row.name) + ": '" + setting(config, row.property) + "'";
    }
    return "{ " + settings + " }";
}

/// JavaScript that loads one of the database's scripts and then does what `then` says.
std::string load(const std::string& element, const std::string& script, const std::string& then) {
    return "var " + element + " = document.createElement('script'); " + element + ".src = '" +
           kFirebase + script + "-compat.js'; " + element + ".onload = function() { " + then +
           " }; document.head.appendChild(" + element + ");";
}

/// One line without a double quote: it stands in a C++ string.
std::string loader(const FirebaseConfigNode& config) {
    const std::string connect = "var cfg = " + configuration(config) +
                                "; if (!firebase.apps.length) { firebase.initializeApp(cfg); } "
                                "window.db = firebase.database(); "
                                "console.log('🔥 பொழில்: பயர்பேஸ் தரவுத்தளம் வெற்றிகரமாக இணைக்கப்பட்டது!');";
    return "if (!window.firebaseInitialized) { window.firebaseInitialized = true; " +
           load("s1", "app", load("s2", "database", connect)) + " }";
}

}  // namespace

void Generator::visitDatabaseManagerNode(const DatabaseManagerNode* manager) {
    const auto* config = nodeAs<FirebaseConfigNode>(manager->firebaseConfig.get());
    if (config != nullptr) visitFirebaseConfigNode(config);
}

/// Nothing waits for the two scripts: window.db is there when they have run.
void Generator::visitFirebaseConfigNode(const FirebaseConfigNode* config) {
    out << "    #ifdef __EMSCRIPTEN__\n"
        << "    // 🔥 பயர்பேஸ் Realtime தரவுத்தள இணைப்பு (Async Safe Loader)\n"
        << "    emscripten_run_script(" << asWritten(loader(*config)) << ");\n"
        << "    #endif\n";
}

/// The directives stand behind the indentation of the statement, the brace at the margin.
void Generator::writeForBrowser(std::string_view call, const Fills& fills) {
    out << "#ifdef __EMSCRIPTEN__\n{\n";
    indentLevel++;
    text.fill(call, fills);
    indentLevel--;
    indent();
    out << "}\n#endif\n";
}

/// The data as JSON, pair by pair: json_data += "\"key\": ...";
void Generator::writeJsonPairs(const MapLiteral& data, bool areAllQuoted) {
    bool isFirst = true;
    for (const auto& [key, value] : data.entries) {
        const bool isQuoted = areAllQuoted || nodeAs<StringLiteral>(value.get()) != nullptr;
        const char* quote = isQuoted ? "\\\"" : "";
        indent();
        out << "json_data += \"" << (isFirst ? "" : ", ") << "\\\"" << key << "\\\": " << quote
            << "\" + fn_any_to_string(";
        visitExpression(value.get());
        out << ")" << (isQuoted ? " + \"\\\"\"" : "") << ";\n";
        isFirst = false;
    }
}

void Generator::visitRTDBInsertExpression(const RTDBInsertExpression* insert) {
    writeForBrowser(widget_templates::rtdb_insert,
                    {{"PATH", [&] { visitExpression(insert->path.get()); }},
                     {"PAIRS", [&] { writeJsonPairs(*insert->data, true); }}});
}

void Generator::visitRTDBUpdateExpression(const RTDBUpdateExpression* update) {
    writeForBrowser(widget_templates::rtdb_update,
                    {{"PATH", [&] { visitExpression(update->path.get()); }},
                     {"PAIRS", [&] { writeJsonPairs(*update->data, false); }}});
}

void Generator::visitRTDBDeleteExpression(const RTDBDeleteExpression* removal) {
    writeForBrowser(widget_templates::rtdb_delete,
                    {{"PATH", [&] { visitExpression(removal->path.get()); }}});
}

void Generator::visitRTDBReadStatement(const RTDBReadStatement* read) {
    writeForBrowser(widget_templates::rtdb_read,
                    {{"PATH", [&] { visitExpression(read->path.get()); }},
                     {"BODY", [&] {
                          for (const auto& statement : read->body) {
                              if (statement != nullptr) visitStatement(statement.get());
                          }
                      }}});
}
