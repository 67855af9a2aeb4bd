// What the compiler refuses without a place: unknown functions, wrong counts, values that only
// sizes take. It stops at the first of them; here all are found, each where it stands.
#include "companion/check/calls.h"

#include "companion/check/check.h"
#include "companion/check/rule_tables.h"
#include "companion/check/tree_walk.h"
#include "syntax/application.h"

namespace companion {

const RuleTable& nameRules() {
    static const RuleTable rules = {
        {"துணை-200", Severity::Error, "இந்த இடத்தை பொழில் C++ ஆக மாற்ற முடியாது: $0"},
        {"துணை-201", Severity::Error, "'$0' என்ற செயல் இல்லை. '$1' என்று எழுத நினைத்தீர்களா?"},
        {"துணை-202", Severity::Error, "'$0' என்பது பொழிலில் '$1' எனப்படும். இப்படி எழுது: $2"},
        {"துணை-203", Severity::Error,
         "'$0' என்ற செயல் எங்கும் வரையறுக்கப்படவில்லை. பெயரைச் சரிபார், அல்லது மேலே 'செயல் $0(...):' என்று "
         "வரையறு."},
        {"துணை-204", Severity::Error,
         "பொழில் இந்த வரியைப் படிக்கும்போது '$0' இன்னும் தெரியாது: செயல்களும் கட்டமைப்புகளும் முதலில் "
         "படிக்கப்படுகின்றன. '$0' இந்த வரிக்கு முன் வரையறுக்கப்பட வேண்டும்."},
        {"துணை-205", Severity::Error,
         "'$0' ஒரு கட்டளை; அது மதிப்பு எதையும் தராது. அதைத் தனி வரியில் எழுது."},
        {"துணை-206", Severity::Error, "'$0' $1; இங்கே $2 உள்ளன. இப்படி எழுது: $3"},
        {"துணை-207", Severity::Error,
         "'$0' செயல் $1; இங்கே $2 உள்ளன. வரையறையில் உள்ள அளவுக்கே மதிப்புகளைக் கொடு."},
        {"துணை-208", Severity::Error,
         "'$0' போன்ற தமிழ் இலக்கங்களைப் பொழில் இன்னும் கணக்கிடாது. '$1' என்று எழுது."},
        {"துணை-209", Severity::Error,
         "'$0' அகலம், உயரம் போன்ற அளவுகளில் மட்டும் செல்லும்; கணக்கில் செல்லாது. '$1.0 வகு 100' என்று எழுது."},
        {"துணை-210", Severity::Error,
         "இதற்குப் பின் '(...)' எழுத முடியாது: பெயர் உள்ள செயலை மட்டுமே அழைக்க முடியும். இதன் மதிப்பை முதலில் ஒரு "
         "பெயரில் வைத்து, அந்தப் பெயரை அழை."},
        {"துணை-211", Severity::Error,
         "'$0' புள்ளிக்குப் பின் வராது; மதிப்பு அடைப்புக்குறிக்குள் வரும். இப்படி எழுது: $1"},
        {"துணை-212", Severity::Error,
         "'.$0()' என்பதை இந்த மதிப்பில் அழைக்க முடியாது. பட்டியலில் '.சேர்(மதிப்பு)' மட்டும் உண்டு; கட்டமைப்பின் செயலை "
         "அதன் பொருள் உள்ள பெயரில் மட்டுமே அழைக்க முடியும்."},
        {"துணை-213", Severity::Error,
         "'நேரம்.வினாடிகள்' எந்த மதிப்பையும் ஏற்காது. இப்படி எழுது: நேரம்.வினாடிகள்()"},
        {"துணை-214", Severity::Error,
         "'வரம்பு' ஒன்று அல்லது இரண்டு எண்களை ஏற்கும்; இங்கே $0 உள்ளன. தாவித் தாவி எண்ண 'சுற்று' பயன்படுத்து."},
        {"துணை-215", Severity::Error,
         "கட்டத்தில் 0 நெடுவரிசைகள் இருக்க முடியாது: மற்றவற்றை அதில் அடுக்க இடமில்லை. 1 அல்லது அதற்கு மேல் எழுது."},
        {"துணை-216", Severity::Error,
         "பொத்தானுக்குள் உள்ள உரைக்கு எழுத்தின் தடிமன் தேவை. உரைக்குள் இப்படிச் சேர்: உரைபாணி(தடிமன்: 400)"},
        {"துணை-217", Severity::Error,
         "'$0' என்று தொடங்கும் வரியைப் பொழில் அறியாது; இங்கே '$1' எழுத வேண்டும். இப்படி: $2"},
        {"துணை-218", Severity::Error,
         "'$0' திரையில் வைக்கும் கூறு; அதை மதிப்பாகப் பயன்படுத்த முடியாது. அதை 'குமரி' பகுதியில் எழுது."},
        {"துணை-219", Severity::Error,
         "'$0' ஒரு வடிவமைப்பு; அதிலிருந்து பொருள் உருவாக்க முடியாது. 'கட்டமைப்பு பெயர்($0):' என்று எழுதி, அந்தப் "
         "பெயரை அழை."},
    };
    return rules;
}

bool CallCheck::isTold(Range range) const {
    const auto& refused = compiled.refused;
    return refused && !refused->code.empty() && refused->range.begin <= range.begin &&
           range.end <= refused->range.end;
}

bool CallCheck::isHiddenRefusal(Range range) const {
    const auto& refused = compiled.refused;
    return refused && refused->code.empty() && refused->range.begin <= range.end &&
           range.begin <= refused->range.end;
}

namespace {

/// A widget in the place of a value. The generator writes a text for it that g++ can't read, but
/// for a notice, which is shown where its name is called.
void checkWidgetValues(const CompiledSource& compiled, Findings& findings) {
    const auto look = [&](const Expression& value) {
        const auto* carrier = nodeAs<WidgetExpression>(&value);
        if (carrier == nullptr) return;
        const auto* widget = dynamic_cast<const WidgetNode*>(carrier->widget.get());
        const auto range = compiled.rangeOf(value);
        if (widget == nullptr || !range || widget->name == "அறிவிப்பு_பட்டை") return;
        findings.add("துணை-218", *range, {widget->name});
    };
    forEachNode(
        compiled.program,
        [&](const Statement& node) {
            if (dynamic_cast<const WidgetNode*>(&node) != nullptr) return;
            if (nodeAs<ExpressionStatement>(&node) != nullptr) return;
            if (nodeAs<WebAppNode>(&node) != nullptr) return;
            forEachChild(
                node, [](const Statement&) {}, look);
        },
        [&](const Expression& node) {
            if (nodeAs<LambdaExpression>(&node) != nullptr) return;
            if (nodeAs<GroupingExpression>(&node) != nullptr) return;
            forEachChild(
                node, [](const Statement&) {}, look);
        });
}

}  // namespace

void checkCalls(const CompiledSource& compiled, Findings& findings) {
    checkWidgetValues(compiled, findings);
    if (!compiled.refused) return;
    const NameUses uses = findNameUses(compiled);
    const CallCheck check{compiled, uses, findings};
    checkNamedCalls(check);
    checkOtherCalls(check);
    checkValues(check);
}

}  // namespace companion
