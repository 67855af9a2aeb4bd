#include "companion/reference/explained.h"

namespace companion::reference {

void writeMeaning(MarkdownPage& page, const Description& word) {
    page.prose(word.summary);
    page.labelledMarkdown("எழுதும் முறை", code(word.form));
    page.labelled("பிற மொழிகளில்", word.english);
}

void writeUse(MarkdownPage& page, const Description& word) {
    page.labelled("கவனம்", word.trap);
    page.program(word.example, word.prints);
}

void writeSection(MarkdownPage& page, int level, const Description& word, const Entry& entry) {
    page.heading(level, code(word.word), entry.anchor);
    writeMeaning(page, word);
    writeUse(page, word);
}

}  // namespace companion::reference
