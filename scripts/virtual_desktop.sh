# SPDX-License-Identifier: GPL-3.0-or-later
# Functions for driving the program in a display of its own: start it, press keys, wait for windows, take
# pictures. Sourced by the front door and by the acceptance journeys.

# start_desktop [WIDTHxHEIGHT]: a display with a window manager and a home of its own, ended with the calling
# script.
start_desktop() {
    local size=${1:-1280x900} pipe number
    desktop_folder=$(mktemp -d)
    # What the program keeps for its user and publishes to the desktop touches nobody's real home.
    export HOME=$desktop_folder/home
    mkdir "$HOME"
    unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME XDG_DATA_DIRS XDG_CONFIG_DIRS windir
    pipe=$desktop_folder/display
    mkfifo "$pipe"
    # The server picks a free display number and tells it when it is ready.
    Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp 3>"$pipe" >"$desktop_folder/server.log" 2>&1 &
    desktop_server=$!
    trap stop_desktop EXIT
    read -r -t 30 number <"$pipe" || fail "no virtual display could be started"
    export DISPLAY=":$number" QT_QPA_PLATFORM=xcb
    unset WAYLAND_DISPLAY
    openbox >"$desktop_folder/window-manager.log" 2>&1 &
    wait_until 30 window_manager_runs || fail "no window manager could be started"
}

window_manager_runs() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# bind_no_keys: from now on the window manager answers Alt+F4 and nothing else.
bind_no_keys() {
    mkdir -p "$HOME/.config/openbox"
    cat >"$HOME/.config/openbox/rc.xml" <<'CONFIGURATION'
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew></focus>
  <keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
CONFIGURATION
    openbox --reconfigure
}

stop_desktop() {
    [ -z "${program:-}" ] || kill "$program" 2>/dev/null || true
    kill "$desktop_server" 2>/dev/null || true
    wait "$desktop_server" 2>/dev/null || true
    # It may be writing yet what it keeps at its end.
    [ -z "${program:-}" ] || wait "$program" 2>/dev/null || true
    rm -rf "$desktop_folder"
}

fail() {
    echo "$0: $*" >&2
    if [ -n "${DISPLAY:-}" ] && [ -n "${pictures:-}" ]; then picture failure || true; fi
    exit 1
}

# wait_until SECONDS COMMAND...: until the command succeeds.
wait_until() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.1
    done
}

# active_title_is TITLE: the window that has the keyboard bears this title.
active_title_is() { [[ "$(xdotool getactivewindow getwindowname 2>/dev/null)" == "$1"* ]]; }

# wait_window TITLE: until a window whose title begins so has the keyboard.
wait_window() {
    wait_until "${2:-20}" active_title_is "$1" ||
        fail "waited for the window '$1', but '$(xdotool getactivewindow getwindowname 2>&1)' has the keyboard"
    sleep 0.3 # it has the keyboard, and now paints
}

key() { xdotool key --clearmodifiers --delay 40 "$@"; }
type_text() { xdotool type --clearmodifiers --delay 15 "$1"; }

# click X Y: the left button at a place in the window that has the keyboard.
click() { xdotool mousemove --window "$(xdotool getactivewindow)" "$1" "$2" click 1; }

# skip_registration: closes the dialog about file types that meets the user on a first run, and registers nothing.
skip_registration() {
    wait_window "Registry"
    key Escape
}

# end_program: closes the window that has the keyboard and waits for the end of $program.
end_program() {
    key alt+F4
    wait_until 10 program_has_ended || fail "the program did not end"
    wait "$program" || fail "the program ended with exit code $?"
    program=
}

program_has_ended() { ! kill -0 "$program" 2>/dev/null; }

# picture NAME: a screenshot into the folder $pictures.
picture() {
    mkdir -p "$pictures"
    import -window root "$pictures/$1.png"
}
