#!/usr/bin/env bash
# test.sh [fast]: installs what the tests need and runs all of them; with `fast` the fast lane
# alone. A step that fails is remembered and the others run on; what needs the processor alone runs
# beside the tests, which also wait. The last lines tell how long each step took and count all tests
# and checks; the status tells whether all of them passed.
[ -n "${BASH_VERSION:-}" ] || exec bash "$0" "$@"
set -euo pipefail
CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/build_directory.sh
. scripts/build_directory.sh
# shellcheck source=scripts/steps.sh
. scripts/steps.sh

# build PRESET [TARGET]: all of it, or one target with what it needs.
build() {
    (configure "$1") && cmake --build "build/$1" -j "$(nproc)" --target "${2:-all}" -- -k 0
}

# The value of a count in the head of a report in JUnit's form.
count() { grep -o "\b$2=\"[0-9]*\"" "$1" | head -n 1 | tr -dc 0-9; }

# The failed tests of a report with what they printed: the last things to read in a long log.
failed_tests() {
    awk '/<testcase .*status="fail"/ { on = 1 } on && n++ < 80; /<\/testcase>/ { on = 0 }' "$1" |
        sed 's/&quot;/"/g; s/&lt;/</g; s/&gt;/>/g; s/&amp;/\&/g'
}

# A program that runs whole is one test of ctest and tells in a file of counts how many it held:
# those stand in the place of the one.
add_whole_programs() {
    local good bad skip file
    for file in "$1"/*; do
        [ -f "$file" ] || continue
        read -r good bad skip <"$file"
        total=$((total - 1 + good + bad + skip))
        failures_of_tests=$((failures_of_tests - (bad > 0) + bad))
        unrun=$((unrun + skip))
    done
}

# run_tests NAME PRESET [CTEST OPTION...]: counts every test that ran. None is a failure.
run_tests() {
    local name=$1 build=$PWD/build/$2 status=0 total=0 failures_of_tests=0 unrun=0 unbuilt
    local report=$build/tests.xml start=$SECONDS
    begin "$name"
    rm -rf "$report" "$build/counts"
    ctest --test-dir "build/$2" -j $((2 * $(nproc))) --output-on-failure --no-tests=error \
        --output-junit "$report" "${@:3}" || status=$?
    if [ -f "$report" ]; then
        total=$(count "$report" tests)
        failures_of_tests=$(count "$report" failures)
        unbuilt=$(grep -c 'message="Unable to find executable"' "$report" || true)
        failures_of_tests=$((failures_of_tests + unbuilt))
        unrun=$(($(count "$report" skipped) + $(count "$report" disabled) - unbuilt))
        add_whole_programs "$build/counts"
    fi
    passed=$((passed + total - failures_of_tests - unrun))
    skipped=$((skipped + unrun))
    if [ "$status" -ne 0 ] || [ "$total" -eq 0 ]; then
        failures+=("$name"$'\n'"$([ ! -f "$report" ] || failed_tests "$report")")
        [ "$failures_of_tests" -gt 0 ] || failures_of_tests=1 # what failed was no test
    fi
    failed=$((failed + failures_of_tests))
    end "$name" "$start"
}

# Another version of the tools formats and warns differently: that would say nothing of the code.
check_looks() {
    if clang-tidy --version | grep 'version 14\.' >/dev/null && clang-format --version | grep ' 14\.' >/dev/null; then
        check "வடிவம் (clang-format)" scripts/format.sh --check
        check "குறை தேடல் (clang-tidy)" scripts/lint.sh
    else
        say "▷ clang-format, clang-tidy: பதிப்பு 14 இல்லை, தவிர்க்கப்பட்டது"
        skipped=$((skipped + 2))
    fi
    check "நிரல் துணுக்குகள் (shellcheck)" shellcheck -x scripts/*.sh bench/*.sh \
        tests/support/*.sh tests/package/*.sh tests/language_server/neovim/*.sh \
        packaging/completion/pozhil packaging/debian/{postinst,prerm} .ci/run
}

# What the processor does while set-up and tests wait. clang-tidy has a gigabyte to walk through, which is out of
# the caches at every turn if its turns are short: then it takes four times as long as beside the set-up.
check_aside() {
    check_looks
    lower_priority
    check "கட்டுதல் (sanitizers)" build sanitize fast_tests
    run_tests "விரைவுச் சோதனைகள் (sanitizers)" sanitize -L fast
    if [ -f tests/fuzz/CMakeLists.txt ]; then
        check "தாறுமாறான உள்ளீடு (fuzz)" scripts/fuzz.sh 30
    fi
}

aim= # seconds on two idle cores
case "${1:-all}" in
    fast)
        scripts/install_packages.sh g++ clang cmake ninja-build libgtest-dev nlohmann-json3-dev
        check "கட்டுதல்" build tests fast_tests
        run_tests "விரைவுச் சோதனைகள்" tests -L fast
        ;;
    all)
        aim=720
        scripts/install_packages.sh g++
        scripts/prepare_objects.sh & # needs nothing else, and the others are waited for
        preparing=$!
        scripts/install_packages.sh cmake ninja-build libgtest-dev clang clang-format \
            clang-tidy libclang-rt-dev lld nlohmann-json3-dev shellcheck util-linux lintian dpkg-dev file \
            curl man-db python3
        start_aside check_aside
        check "துணைக் கோப்புகள்" wait "$preparing"
        check "வலைதளங்களின் துணைக் கோப்புகள்" scripts/setup_web.sh
        check "கட்டுதல்" build tests
        check "உலாவிச் சோதனையின் கருவிகள்" scripts/setup_browser_tests.sh
        check "மொழிவழங்கிச் சோதனையின் கருவிகள்" scripts/setup_editor_tests.sh
        run_tests "எல்லாச் சோதனைகளும்" tests -LE '^(scaling|timed)$'
        join_aside "பக்கத்தில் நடந்தவை"
        # Tests that compare times want the machine for themselves.
        run_tests "நேரத்தை ஒப்பிடும் சோதனைகள்" tests -L '^(scaling|timed)$'
        ;;
    *) refuse "பயன்பாடு: scripts/test.sh [fast]" ;;
esac
summary "$aim"
