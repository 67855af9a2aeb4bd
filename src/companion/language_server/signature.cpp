// The head of the function whose call is being written.
#include <algorithm>

#include "companion/check/calls_builtins.h"
#include "companion/language_server/features.h"

namespace companion::language_server {

namespace {

constexpr std::string_view kStart = "துவக்கம்";

/// The innermost call that is open at `offset`.
std::optional<Opening> callAround(const Code& code, std::size_t offset) {
    const auto open = code.openAt(offset);
    for (auto opening = open.rbegin(); opening != open.rend(); ++opening) {
        if (!code.isMarkAt(opening->bracket, "(")) continue;
        if (!opening->word) continue;  // parentheses around a value
        return *opening;
    }
    return std::nullopt;
}

bool isMethodOf(const Declaration& declaration, bool isMember) {
    return isMember ? declaration.kind == DeclarationKind::Method
                    : declaration.kind == DeclarationKind::Function;
}

std::string_view slice(const Code& code, Range range) {
    return code.text().substr(range.begin, range.end - range.begin);
}

bool isReceiver(std::string_view name) { return name == "தான்" || name == "self"; }

Signature signatureOf(const Code& code, const Declaration& declaration) {
    Signature signature{declaration.name + "(", {}, remarksAbove(code, declaration), 0};
    for (const DeclaredParameter& parameter : declaration.parameters) {
        const bool isFirst = &parameter == &declaration.parameters.front();
        if (isFirst && declaration.kind == DeclarationKind::Method &&
            isReceiver(slice(code, parameter.name))) {
            continue;
        }
        if (!signature.parameters.empty()) signature.label += ", ";
        const std::size_t begin = signature.label.size();
        signature.label += slice(code, parameter.whole);
        signature.parameters.push_back({begin, signature.label.size()});
    }
    signature.label += ")";
    return signature;
}

/// A structure is called with what its துவக்கம் takes behind the receiver.
std::optional<Signature> structureSignature(const Code& code,
                                            const std::vector<Declaration>& outline,
                                            std::string_view name) {
    for (const Declaration& method : outline) {
        const bool isStart = method.kind == DeclarationKind::Method && method.name == kStart;
        if (!isStart || !method.parent || outline[*method.parent].name != name) continue;
        Declaration called = method;
        called.name = name;
        return signatureOf(code, called);
    }
    return std::nullopt;
}

std::optional<Signature> declaredSignature(const Code& code,
                                           const std::vector<Declaration>& outline,
                                           std::string_view name, bool isMember) {
    for (const Declaration& declaration : outline) {
        if (declaration.name == name && isMethodOf(declaration, isMember)) {
            return signatureOf(code, declaration);
        }
    }
    return isMember ? std::nullopt : structureSignature(code, outline, name);
}

/// The parameters of a form such as `வை(பட்டியல், இடம், மதிப்பு)`.
Signature signatureOfForm(std::string_view form, std::string_view summary) {
    Signature signature{std::string(form), {}, std::string(summary), 0};
    const std::size_t open = form.find('(');
    const std::size_t close = form.find(')', open == std::string_view::npos ? 0 : open);
    if (open == std::string_view::npos || close == std::string_view::npos) return signature;
    std::size_t begin = open + 1;
    while (begin < close) {
        const std::size_t end = std::min(form.find(',', begin), close);
        while (begin < end && form[begin] == ' ') begin++;
        if (end > begin) signature.parameters.push_back({begin, end});
        begin = end + 1;
    }
    return signature;
}

std::optional<Signature> builtinSignature(std::string_view name, bool isMember) {
    for (const Description& word : wordDescriptions()) {
        const bool isCalled = word.form.find('(') != std::string_view::npos;
        const bool fits = isMember
                              ? word.kind == WordKind::Member
                              : word.kind == WordKind::BuiltIn || word.kind == WordKind::Keyword;
        if (word.word == name && fits && isCalled) return signatureOfForm(word.form, word.summary);
    }
    const BuiltinCall* row = isMember ? nullptr : builtinCall(name);
    if (row == nullptr) return std::nullopt;
    return signatureOfForm(row->example, "");
}

}  // namespace

std::optional<Signature> signatureAt(const Analysis& analysis, const ModuleOutlines& modules,
                                     std::size_t offset) {
    const Code& code = analysis.code();
    const auto call = callAround(code, offset);
    if (!call || (*call->word > 0 && code.at(*call->word - 1).text == "செயல்")) return std::nullopt;
    const std::string_view name = code.at(*call->word).text;
    const bool isMember = *call->word > 0 && code.at(*call->word - 1).isMark(".");
    auto signature = declaredSignature(code, analysis.outline(), name, isMember);
    for (auto module = modules.begin(); module != modules.end() && !signature; ++module) {
        signature = declaredSignature((*module)->code, (*module)->outline, name, isMember);
    }
    if (!signature) signature = builtinSignature(name, isMember);
    if (signature) signature->active = call->commas;
    return signature;
}

}  // namespace companion::language_server
