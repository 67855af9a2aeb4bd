# What runs beside a measurement: to be sourced. Makes the folder $work, which goes at the end, and ends
# then what was started in the background, if its number stands in $background.
# shellcheck shell=bash

work=$(mktemp -d)
background=
stop_background() {
    [ -z "$background" ] || kill -INT "$background" 2>/dev/null || true
    [ -z "$background" ] || wait "$background" 2>/dev/null || true
    rm -rf "$work"
}
trap stop_background EXIT
