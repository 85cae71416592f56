# Sourced by the scripts that show the program's window without a display of their own.
# shellcheck shell=bash

# Makes a virtual X server this script's display, until the script ends: the server runs for as long as
# the other end of the pipe is open.
start_display() {
    # shellcheck disable=SC2016 # for the shell in there
    coproc xvfb-run --auto-servernum --server-args='-screen 0 1280x1024x24' \
        sh -c 'echo "$DISPLAY $XAUTHORITY" && exec cat'
    trap stop_program EXIT
    read -r DISPLAY XAUTHORITY <&"${COPROC[0]}"
    XDG_RUNTIME_DIR=$(dirname "$XAUTHORITY")
    export DISPLAY XAUTHORITY XDG_RUNTIME_DIR QT_QPA_PLATFORM=xcb
    unset WAYLAND_DISPLAY XDG_CURRENT_DESKTOP QT_QPA_PLATFORMTHEME
}

# Before the server goes.
stop_program() {
    [[ -n ${program:-} ]] || return 0
    kill "$program" 2>/dev/null || true
    wait "$program" 2>/dev/null || true
}

# wait_until COMMAND...: until it succeeds, at most 20 seconds.
wait_until() {
    local deadline=$((SECONDS + 20))
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < deadline)) || return 1
        sleep 0.05
    done
}

# window_titled TITLE: the number of the visible window of that title.
window_titled() {
    xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1 | grep .
}

# take_picture WINDOW FILE
take_picture() {
    import -window "$1" "$2"
}
