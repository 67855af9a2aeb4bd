# Pages of HTML as pictures, to be sourced behind messages.sh where `work` is a temporary folder.
# shellcheck shell=bash

# prepare_photographs [PACKAGE...]: the compiler, and what pictures of printed texts are made with.
prepare_photographs() {
    scripts/build_release.sh
    scripts/install_packages.sh aha chromium fonts-noto-core fonts-noto-mono imagemagick "$@"
}

# photograph NAME WIDTH HEIGHT: the page NAME.html of the temporary folder as NAME.png beside it.
photograph() {
    chromium --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
        --disable-background-networking --disable-component-update --disable-sync \
        --user-data-dir="${work:?}/profile" --hide-scrollbars --force-device-scale-factor=1 \
        --window-size="$2,$3" --screenshot="$work/$1.png" "file://$work/$1.html" \
        >/dev/null 2>&1 || refuse "படம் எடுக்க முடியவில்லை (chromium)."
}
