# Sourced by the scripts that also have to run as somebody whom permissions stop. Whoever is not root is
# such a user already, and stays in this tree.
# shellcheck shell=bash

# Changes to a copy of the tree that belongs to an ordinary user, in a folder that everybody may enter.
# The copy has no build folder, and is removed when the script ends.
enter_copy() {
    ((EUID == 0)) || return 0
    local folder
    folder=$(mktemp -d /tmp/orbwell-XXXXXX)
    # shellcheck disable=SC2064 # the folder of now
    trap "rm -rf '$folder'" EXIT
    mkdir "$folder/tree" "$folder/home"
    tar --create --exclude=./build . | tar --extract --directory "$folder/tree"
    # Some tests read more where there is more to read.
    [[ ! -d ../shared ]] || ln --symbolic "$(realpath ../shared)" "$folder/shared"
    chmod 755 "$folder"
    chown -R 65534:65534 "$folder/tree" "$folder/home"
    cd "$folder/tree" || exit 1
}

# as_ordinary_user COMMAND...: runs it in the copy; of root's environment only PATH is kept.
as_ordinary_user() {
    if ((EUID != 0)); then
        "$@"
        return
    fi
    local home=${PWD%/tree}/home
    setpriv --reuid=65534 --regid=65534 --clear-groups \
        env --ignore-environment "PATH=$PATH" "HOME=$home" "TMPDIR=$home" "$@"
}
