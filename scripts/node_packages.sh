# The npm packages of tests, to be sourced behind messages.sh where `root` is set.
# shellcheck shell=bash

# install_node_packages FOLDER: the npm packages that its lockfile names, where they aren't there yet.
install_node_packages() {
    local folder=${root:?}/$1
    local installed=$folder/node_modules/.package-lock.json
    if [ ! -f "$installed" ] || [ "$folder/package-lock.json" -nt "$installed" ]; then
        (cd "$folder" &&
            run_quietly "சோதனைக்கான npm தொகுப்பை நிறுவ முடியவில்லை." npm ci --ignore-scripts)
        touch "$installed"
    fi
}
