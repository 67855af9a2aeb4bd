// Names of widgets and pages that nothing answers to, and a word more beside the compiler's report.
#include <algorithm>
#include <tuple>

#include "companion/check/habits.h"
#include "companion/check/names_letters.h"
#include "companion/check/tree_walk.h"
#include "driver/phases.h"
#include "syntax/application.h"
#include "ui/properties.h"

namespace companion {

namespace {

// ---- Inputs ----

const std::string& textOf(const std::string& name) { return name; }
const std::string& textOf(const Token& name) { return name.text; }

/// True if a structure has a field or a method of that name.
bool isAMember(const CompiledSource& compiled, const std::string& name) {
    const auto isNamed = [&](const auto& member) { return textOf(member->name) == name; };
    for (const auto& entry : compiled.parser->structDefinitions) {
        const auto& [fields, methods] = std::tie(entry.second->fields, entry.second->methods);
        if (std::any_of(fields.begin(), fields.end(), isNamed)) return true;
        if (std::any_of(methods.begin(), methods.end(), isNamed)) return true;
    }
    return false;
}

std::string inputAdvice(const HabitCheck& check, const std::string& object,
                        const std::string& member) {
    if (isAMember(check.compiled, member)) {
        return "பண்பின் '" + member + "' என்ற பெயரை மாற்று.";
    }
    if (member == "நீளம்") return "நீளத்தைப் பார்க்க 'நீளம்(" + object + ")' என்று எழுது.";
    if (const auto near = nearestName(object, check.uses.inputs)) {
        return "'" + *near + "' என்று எழுத நினைத்தீர்களா?";
    }
    return "உரைபெட்டி(அடையாளம்: \"" + object + "\") என்று ஒரு பெட்டியைக் 'குமரி' பகுதியில் சேர்.";
}

/// True for a name that is none of a page elsewhere: a file of functions alone may be meant for
/// one.
bool isKnownHere(const HabitCheck& check, const std::string& name) {
    return holdsWebApp(check.compiled.program) || isReceiverName(name) ||
           check.uses.assigned.count(name) != 0 || check.uses.parameters.count(name) != 0 ||
           check.uses.loopVariables.count(name) != 0;
}

/// Other widgets than text boxes show an error too.
bool showsError(const std::string& member) { return member == "பிழைசெய்தி" || member == "பிழை_அழி"; }

void checkInput(const HabitCheck& check, const GetExpression& access) {
    const auto* object = nodeAs<VariableAccess>(access.object.get());
    if (object == nullptr || !isInputMember(access.name.text)) return;
    if (check.uses.hasOpenIdentifiers || check.uses.inputs.count(object->name) != 0) return;
    if (check.uses.identifiers.count(object->name) != 0) {
        if (showsError(access.name.text)) return;
        return check.add("துணை-536", check.compiled.rangeOf(access), {object->name});
    }
    if (!isKnownHere(check, object->name)) return;
    check.add("துணை-533", check.compiled.rangeOf(access),
              {object->name, access.name.text, inputAdvice(check, object->name, access.name.text)});
}

// ---- Pages ----

struct Pages {
    std::set<std::string> names;
    bool isOpen = false;  ///< A page whose name isn't written out.
};

void notePage(Pages& pages, const WidgetNode& widget) {
    const Expression* value = property(widget, "பக்கம்");
    if (value == nullptr) return;
    const std::string* name = stringProperty(widget, "பக்கம்");
    if (name == nullptr) pages.isOpen = true;
    if (name != nullptr) pages.names.insert(*name);
}

Pages pagesOf(const Program& program) {
    Pages pages;
    bool hasApplication = false;
    forEachNode(
        program,
        [&](const Statement& node) {
            const auto* widget = dynamic_cast<const WidgetNode*>(&node);
            if (widget != nullptr) notePage(pages, *widget);
            const auto* app = nodeAs<WebAppNode>(&node);
            if (app == nullptr) return;
            hasApplication = true;
            const auto* header = dynamic_cast<const WidgetNode*>(app->header.get());
            if (header == nullptr || property(*header, "பக்கம்") == nullptr) {
                pages.names.insert("home");
            }
        },
        [](const Expression&) {});
    pages.isOpen |= !hasApplication;
    return pages;
}

void checkPages(const HabitCheck& check) {
    const Pages pages = pagesOf(check.compiled.program);
    if (pages.isOpen) return;
    for (const NameCall& call : check.uses.calls) {
        if (call.callee->name != "செல்க" || call.node->arguments.size() != 1) continue;
        const auto* name = nodeAs<StringLiteral>(call.node->arguments[0].get());
        if (name == nullptr || pages.names.count(name->value) != 0) continue;
        check.add("துணை-534", check.compiled.rangeOf(*name), {name->value});
    }
}

// ---- Beside a report ----

/// The structure that has a private field of that name; "" if none has.
std::string ownerOfPrivateField(const CompiledSource& compiled, const std::string& field) {
    for (const auto& [name, structure] : compiled.parser->structDefinitions) {
        for (const auto& candidate : structure->fields) {
            if (candidate->name == field && candidate->isPrivate) return name;
        }
    }
    return "";
}

void adviseOnMember(const HabitCheck& check, const Expression& node, const Expression& object,
                    const std::string& member) {
    const Refused& refused = *check.compiled.refused;
    const auto range = check.compiled.rangeOf(node);
    if (!range || range->begin != refused.range.begin || range->end != refused.range.end) return;
    const std::string owner = ownerOfPrivateField(check.compiled, member);
    const auto* variable = nodeAs<VariableAccess>(&object);
    if (refused.code == "பொழில்-321" && !owner.empty()) {
        check.add("துணை-603", range, {member, owner});
    } else if (refused.code == "பொழில்-304" && variable != nullptr &&
               check.uses.parameters.count(variable->name) != 0) {
        check.add("துணை-604", range, {variable->name, member});
    }
}

}  // namespace

void checkPageHabits(const HabitCheck& check) {
    forEachNode(
        check.compiled.program, [](const Statement&) {},
        [&](const Expression& node) {
            if (const auto* access = nodeAs<GetExpression>(&node)) checkInput(check, *access);
        });
    checkPages(check);
}

void checkReports(const HabitCheck& check) {
    if (!check.compiled.refused || check.compiled.refused->code.empty()) return;
    forEachNode(
        check.compiled.program, [](const Statement&) {},
        [&](const Expression& node) {
            if (const auto* access = nodeAs<GetExpression>(&node)) {
                adviseOnMember(check, node, *access->object, access->name.text);
            } else if (const auto* store = nodeAs<SetMemberExpression>(&node)) {
                adviseOnMember(check, node, *store->object, store->name.text);
            }
        });
}

}  // namespace companion
