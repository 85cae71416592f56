# Read by the scripts that look at the program's window without a display of their own.
# shellcheck shell=bash

# Starts an X server without a screen and makes it this script's display, until the script ends.
start_display() {
    local folder
    folder=$(mktemp -d)
    # The server takes a free number and says which once it listens.
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp \
        3>"$folder/number" >"$folder/log" 2>&1 &
    display_server=$!
    # shellcheck disable=SC2064 # the folder of now
    trap "stop_display; rm -rf '$folder'" EXIT
    wait_until test -s "$folder/number" || {
        cat "$folder/log" >&2
        return 1
    }
    DISPLAY=:$(cat "$folder/number")
    export DISPLAY QT_QPA_PLATFORM=xcb
    unset WAYLAND_DISPLAY XDG_CURRENT_DESKTOP QT_QPA_PLATFORMTHEME
    export XDG_RUNTIME_DIR=$folder
}

stop_display() {
    local process
    for process in "${program:-}" "${display_server:-}"; do
        [[ -n $process ]] || continue
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
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
