# shellcheck shell=bash
# Drives an installed program and reads what it made, for tests on an X display of their own, to be sourced:
# the window is worked by clicks and keys, and PDFs are read back.

. "$(dirname "${BASH_SOURCE[0]}")/../../scripts/lib.sh"

# wait_until COMMAND...: until it succeeds, for a minute at most.
wait_until() {
    local end=$((SECONDS + 60))
    until "$@" >/dev/null 2>&1; do
        [ "$SECONDS" -lt "$end" ] || fail "waited in vain for: $*"
        read -r -t 0.05 <><(:) || true
    done
}

# The middles of the controls, in a window at the origin: without a window manager it stands there.
declare -A places=([open]="70 282" [output]="200 332" [merge]="115 365"
    [convert]="470 345"
    [files page]="70 420" [description page]="280 420" [security page]="385 420"
    [title]="330 121" [user password]="300 180")

click() {
    local place
    read -r -a place <<<"${places[$1]}"
    xdotool mousemove "${place[@]}" click 1
}

# fill FIELD TEXT: into a field that is empty.
fill() {
    click "$1"
    xdotool type --delay 10 "$2"
}

# has_keyboard TITLE: whether the window with that title has the keyboard.
has_keyboard() {
    [ "$(xdotool getwindowfocus getwindowname)" = "$1" ]
}

wait_for_window() {
    wait_until xdotool search --onlyvisible --name "Tessaro Image to PDF Converter"
}

close_window() {
    local window
    window=$(xdotool search --onlyvisible --name "Tessaro Image to PDF Converter")
    kill "$(xdotool getwindowpid "$window")"
    wait_until no_window
}

no_window() {
    ! xdotool search --onlyvisible --name "Tessaro Image to PDF Converter"
}

# pdf_says FILE PASSWORD LINE...: poppler opens it with PASSWORD and pdfinfo prints each LINE, blanks squeezed.
pdf_says() {
    local facts line
    facts=$(pdfinfo -upw "$2" "$1" 2>/dev/null | tr -s ' ') || return 1
    for line in "${@:3}"; do
        grep -qxF -e "$line" <<<"$facts" || return 1
    done
}
