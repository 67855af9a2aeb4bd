# An apt of its own, to be sourced: fetches packages of a Debian release that has them without
# touching the system's own sources. The mirrors are those that the system itself uses.
# shellcheck shell=bash

# private_apt_open DIRECTORY: makes the configuration there and reads the lists. Debian has the
# wanted packages from release 13 on; on an older one release 13 is asked.
private_apt_open() {
    private_apt=$1
    local suite
    command -v apt-get >/dev/null || return 1
    suite=$(private_apt_suite)
    [ -n "$suite" ] || return 1
    mkdir -p "$private_apt"/{parts,lists/partial,cache/archives/partial}
    private_apt_sources "$suite" >"$private_apt/parts/wanted.sources"
    [ -s "$private_apt/parts/wanted.sources" ] || return 1
    private_apt_get update
}

private_apt_get() {
    DEBIAN_FRONTEND=noninteractive apt-get -q \
        -o Acquire::Retries=3 \
        -o APT::Sandbox::User="$(id -un)" \
        -o Dir::Etc::sourcelist=/dev/null \
        -o Dir::Etc::sourceparts="$private_apt/parts" \
        -o Dir::State::lists="$private_apt/lists" \
        -o Dir::Cache="$private_apt/cache" "$@"
}

private_apt_suite() {
    # shellcheck disable=SC1091
    (
        . /etc/os-release
        if [ "${ID:-}" = debian ] && [ "${VERSION_ID:-99}" -lt 13 ]; then
            echo trixie
        else
            echo "${VERSION_CODENAME:-}"
        fi
    )
}

# The system's own sources of its own release, with another suite and with source packages.
private_apt_sources() {
    local codename suite=$1
    # shellcheck disable=SC1091
    codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
    # Stanzas of the newer form; fields may be indented on the lines that follow.
    find /etc/apt/sources.list.d -name '*.sources' -exec cat {} + -exec echo \; 2>/dev/null |
        awk -v codename="$codename" -v suite="$suite" '
            function flush_stanza() {
                if (uris != "" && ours) {
                    print "Types: deb deb-src\nURIs:" uris "\nSuites: " suite "\nComponents: main"
                    if (key != "") print "Signed-By:" key
                    print ""
                }
                uris = key = ""; ours = 0
            }
            /^[[:space:]]*$/ { flush_stanza(); next }
            /^#/ { next }
            /^URIs:/ { uris = substr($0, 6) }
            /^Suites:/ { for (i = 2; i <= NF; i++) if ($i == codename) ours = 1 }
            /^Signed-By:/ { key = substr($0, 11) }
            END { flush_stanza() }'
    # Lines of the older form: deb [options] URI suite components...
    sed -nE 's/^[[:space:]]*deb[[:space:]]+(\[[^]]*\][[:space:]]+)?([^[:space:]]+)[[:space:]]+'"$codename"'[[:space:]].*/\2/p' \
        /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2>/dev/null | sort -u |
        while read -r uri; do
            printf 'Types: deb deb-src\nURIs: %s\nSuites: %s\nComponents: main\n\n' "$uri" "$suite"
        done
}
