# shellcheck shell=bash
# What the scripts share; a script sources it from its place.

# fail SENTENCE: ends the script with "NAME: SENTENCE" on standard error and status 1.
fail() {
    echo "$(basename "$0"): $1" >&2
    exit 1
}

# quietly COMMAND...: runs it; only if it fails, the end of what it printed is shown, on standard
# error, and its status comes back.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 || status=$?
    [ "$status" -eq 0 ] || tail -n 60 "$log" >&2
    rm -f "$log"
    return "$status"
}
