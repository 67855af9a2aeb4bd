#!/usr/bin/env bash
# grammar.sh: makes anew what editors and the site know of the language's words, from the compiler's
# tables: the grammars in editors/textmate, editors/vim and editors/kate, and how words sound, for the
# site's search.
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
# write_grammar NOTATION FRAME FILE
write_grammar() {
    write "editors/$3" build/release/editor_grammar grammar "$1" "src/editors/$2"
}
write_grammar json grammar_frame.json textmate/pozhil.tmLanguage.json
write_grammar vim vim_frame.vim vim/syntax/pozhil.vim
write_grammar xml kate_frame.xml kate/pozhil.xml
write site/sounds.json build/release/editor_grammar sounds
