# shellcheck shell=bash
# Functions that the scripts share, to be sourced.

# fail SENTENCE: ends the script with "NAME: SENTENCE" on standard error and status 1.
fail() {
    echo "$(basename "$0"): $1" >&2
    exit 1
}

# quietly COMMAND...: runs it, and returns its status. If it fails, the end of its output is printed on
# standard error.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 || status=$?
    [ "$status" -eq 0 ] || tail -n 60 "$log" >&2
    rm -f "$log"
    return "$status"
}
