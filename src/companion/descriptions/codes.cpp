// Brings the codes' texts and their programs together.
#include "companion/descriptions/codes.h"

#include "companion/descriptions/shown_program.h"
#include "shown_programs.h"

namespace companion {

namespace {

CodePrograms programsOf(std::string_view digits) {
    for (const CodePrograms& programs : shown_programs::kCodePrograms) {
        if (programs.digits == digits) return programs;
    }
    return {};
}

}  // namespace

const std::vector<CodeDescription>& codeDescriptions() {
    static const std::vector<CodeDescription> all = [] {
        std::vector<CodeDescription> codes;
        for (const auto* texts : {&codesOfWriting(), &codesOfMeaning()}) {
            for (const CodeText& text : *texts) {
                const CodePrograms programs = programsOf(text.digits);
                codes.push_back({text.digits, text.moment, text.text, programs.wrong,
                                 programs.right, programs.report});
            }
        }
        return codes;
    }();
    return all;
}

}  // namespace companion
