# Sourced by setup.sh: a virtual screen of our own, and what is left to do when the shell ends.

# Starts a screen on a free number and exports DISPLAY; the screen ends with the shell.
start_display() {
    local number_file
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$number_file" >build/display.log 2>&1 </dev/null &
    display_pid=$!
    trap clean_up EXIT
    for ((tries = 0; tries < 100; ++tries)); do
        [[ -s $number_file ]] && break
        sleep 0.1
    done
    DISPLAY=:$(<"$number_file")
    export DISPLAY
    rm -f "$number_file"
    [[ $DISPLAY != : ]] || {
        echo "Xvfb did not start; see build/display.log." >&2
        return 1
    }
}

# Wine's programs go first: they complain when they lose their screen. They also have to go when there was none: the next
# command would join them and be without windows.
clean_up() {
    if [[ ${prefix_lock:-} ]]; then scripts/run-wine --stop; fi
    if [[ ${x86_root:-} ]]; then scripts/run-wine --x86 --stop; fi
    if [[ ${display_pid:-} ]]; then kill "$display_pid" && wait "$display_pid"; fi 2>/dev/null
    return 0
}
