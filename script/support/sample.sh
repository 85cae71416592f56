# Read by the scripts that start the program on the sample.
# shellcheck shell=bash

# The folder to lay the sample out in. The program takes its own name out of the paths that lead to
# the user's files, so the home must not lie below a folder of that name.
sample_folder() {
    case $PWD in
    *QuillmontOrbwell*) echo "${TMPDIR:-/tmp}/orbwell-sample-$(id -u)" ;;
    *) echo "$PWD/build/sample" ;;
    esac
}

# run_sample FOLDER: becomes the program, with the sample's home instead of the user's.
run_sample() {
    local executable=$1/program/QuillmontOrbwell
    [[ $(uname) == Darwin ]] &&
        executable=$1/program/QuillmontOrbwell.app/Contents/MacOS/QuillmontOrbwell
    export XAUTHORITY=${XAUTHORITY:-$HOME/.Xauthority}
    export HOME=$1/home CFFIXED_USER_HOME=$1/home
    unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME XDG_STATE_HOME FG_ROOT
    exec "$executable"
}
