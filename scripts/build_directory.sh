# The build directories of the presets, to be sourced from the root behind messages.sh.
# shellcheck shell=bash

# configure PRESET [OPTION...]: makes build/PRESET ready to be built, if it isn't; with options
# always. CMake refuses a directory that was configured where the checkout stood before it was
# moved, renamed or copied, and loses options where presets name another compiler than before: such a
# directory forgets its configuration here, and keeps whatever else stands in it.
configure() {
    local directory=build/$1 preset=$1
    shift
    if [ -f "$directory/CMakeCache.txt" ]; then
        if ! was_configured_here "$directory"; then
            rm -rf "$directory"/{CMakeCache.txt,CMakeFiles,build.ninja,.ninja_deps,.ninja_log}
        elif is_older_than_presets "$directory"; then
            rm -rf "$directory"/CMakeCache.txt "$directory"/CMakeFiles/[0-9]*
        fi
    fi
    if [ $# -gt 0 ] || [ ! -f "$directory/build.ninja" ] || is_older_than_presets "$directory"; then
        run_quietly "'$directory' கட்டமைப்பைத் தொடங்க முடியவில்லை (cmake)." \
            cmake --preset "$preset" "$@"
        touch "$directory/configured"
    fi
}

# By identity, not by name: a link may lead here by another path.
was_configured_here() {
    local place
    place=$(sed -n 's/^CMAKE_CACHEFILE_DIR:INTERNAL=//p' "$1/CMakeCache.txt")
    [ -n "$place" ] && [ "$place" -ef "$1" ]
}

# Presets that changed count for a directory that was configured before, too. One that was configured
# by hand since then keeps its options.
is_older_than_presets() {
    [ ! "$1/configured" -nt CMakePresets.json ] && [ ! "$1/CMakeCache.txt" -nt CMakePresets.json ]
}
