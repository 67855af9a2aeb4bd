#!/usr/bin/env bash
# grammar.sh: makes anew what editors and the site know of the language's words, from the compiler's
# tables: the grammar in editors/textmate, and how words sound, for the site's search.
set -euo pipefail
CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/build_directory.sh
. scripts/build_directory.sh

configure release
run_quietly "editor_grammar கருவியைக் கட்ட முடியவில்லை." cmake --build build/release --target editor_grammar

# write FILE COMMAND...: a file is replaced whole, or not at all.
write() {
    local file=$1
    shift
    if ! "$@" >"$file.new"; then
        rm -f "$file.new"
        refuse "'$file' கோப்பை எழுத முடியவில்லை."
    fi
    mv "$file.new" "$file"
}
write editors/textmate/pozhil.tmLanguage.json build/release/editor_grammar grammar src/editors/grammar_frame.json
write site/sounds.json build/release/editor_grammar sounds
