# Sourced by the scripts that start the program on the sample.
# shellcheck shell=bash

# The folder for the sample. The program removes its own name from the paths to the user's files, so the
# home must not be below a folder of that name.
sample_folder() {
    case $PWD in
    *QuillmontOrbwell*) echo "${TMPDIR:-/tmp}/orbwell-sample-$(id -u)" ;;
    *) echo "$PWD/build/sample" ;;
    esac
}

# run_sample FOLDER: replaces this shell by the program, with the sample's home instead of the user's.
run_sample() {
    local executable=$1/program/QuillmontOrbwell
    [[ $(uname) == Darwin ]] &&
        executable=$1/program/QuillmontOrbwell.app/Contents/MacOS/QuillmontOrbwell
    export XAUTHORITY=${XAUTHORITY:-$HOME/.Xauthority}
    export HOME=$1/home CFFIXED_USER_HOME=$1/home
    unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME XDG_STATE_HOME FG_ROOT
    exec "$executable"
}
