# Sourced by every script first: makes a failing command end the script, answers --help with the comment
# at the script's top, and changes to the top of the tree.
# shellcheck shell=bash
set -euo pipefail

help=$(sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$0")

# Ends a script that was called with arguments it does not know.
wrong_usage() {
    echo "$help" >&2
    exit 2
}

if [[ ${1:-} == --help ]]; then
    echo "$help"
    exit 0
fi
cd "$(dirname "$0")/.."
