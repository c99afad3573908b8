#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Settings and custom tools: what the dialogs write, what a normal end puts back, what the next start makes of it,
# and how tools are started.
. "$(dirname "$0")/journey.sh"
stub_browser
faketime=$(find /usr/lib -name libfaketime.so.1 | head -n 1)

# start_noticed FILE: starts it without waiting for its main window, over which a notice may stand.
start_noticed() {
    "$application/kav-compiler" "$@" 2>"$desktop_folder/program.log" &
    program=$!
}

# expect_lines FIRST TEXT...: the lines of the preferences file from there on.
expect_lines() {
    local number=$1 text
    shift
    for text in "$@"; do
        [ "$(preference_line "$number")" = "$text" ] || fail "line $number is '$(preference_line "$number")', not '$text'"
        number=$((number + 1))
    done
    [ "$(grep -c $'\r$' "$application/prefs.ini")" -eq 23 ] || fail "the preferences are not 23 lines"
}

# end_at_once: a failure is reported, and Abort ends the program without its shutdown.
end_at_once() {
    key ctrl+o
    wait_window "Load File"
    key Escape
    wait_window "Non Fatal Error - KAV Compiler"
    key alt+a
    wait_until 10 program_has_ended || fail "Abort did not end the program"
    wait "$program" && fail "Abort ended the program as if in order"
    program=
}

# open_settings: the Tools menu's first entry.
open_settings() {
    key alt
    key Right Right Right Down Return
    wait_window "Settings - KAV Compiler"
}

# change_settings FONT SIZE BROWSER: types the three, turns every tick over, and presses Ok.
change_settings() {
    open_settings
    key Home shift+End
    type_text "$1"
    key Tab shift+End
    type_text "$2"
    key Tab space Tab space Tab space Tab space
    key Tab Tab shift+End
    type_text "$3"
    key shift+Tab space # hides or shows the path, which keeps its text
    picture "settings-$2"
    key Return
    wait_window "KAV Compiler"
}

# visit_home_page: by the Help menu.
home_page=https://www.kav-compiler.example/
visit_home_page() {
    rm -f "$opened"
    key alt
    key Right Right Right Right Down Down Down Return
    expect_opened "$home_page"
}

# expect_arguments ARGUMENT...: what the tool was started with.
expect_arguments() {
    wait_until 10 test -e "$desktop_folder/arguments.done" || fail "the tool was not started"
    diff <(printf '%s\n' "$@") "$desktop_folder/arguments" || fail "the tool was started with other arguments"
    rm "$desktop_folder/arguments.done"
}

# The program takes line 7 for the browser's switch and line 8 for the notices', the dialog the other way round.
header="Don't modify/move/delete this file. It contains KAV Compiler's files."
browser="$desktop_folder/bin/xdg-open my browser"
sed -i '7s/.*/ 1 \r/; 8s/.*/ 0 \r/' "$application/prefs.ini"
sed -n 2,9p "$application/prefs.ini" >"$desktop_folder/at-start"
start_program
visit_home_page
expect_file "$opened" "$home_page"$'\n'
change_settings "No Such Font" abc "$browser"
expect_lines 1 "DON'T TOUCHIE!!!!!!!!!!!!!" "No Such Font" abc " 1 " " 0 " " 1 " " 0 " " 1 " "$browser"

# A normal end puts back what the program was started with.
end_program
expect_lines 1 "$header"
sed -n 2,9p "$application/prefs.ini" | cmp - "$desktop_folder/at-start" || fail "lines 2 to 9 are not those of the start"
expect_lines 16 " 0 "
expect_lines 19 PLACEHOLDER

# Ended at once, the program leaves what the dialog wrote. A font that is not there and a size that is no number
# hide no text, the other tick has turned the notices on, and the first one the user's own browser.
start_program
change_settings "No Such Font" abc "$browser"
end_at_once
expect_lines 1 "DON'T TOUCHIE!!!!!!!!!!!!!" "No Such Font" abc
printf ' this line of text is legible' >"$documents/legible.txt"
LD_PRELOAD=$faketime FAKETIME="@2010-01-20 12:00:00" FAKETIME_DONT_FAKE_MONOTONIC=1 \
    ASAN_OPTIONS=verify_asan_link_order=0 start_noticed "$documents/legible.txt"
wait_window "No Aliens? Or do they program Z80 too?"
expect_shown "That is pushing it. Aliens haven't landed yet? This won't appear again after today."
picture 2-notice
key Return
wait_window "KAV Compiler"
expect_shown "line of text is legible" # the caret stands before it
picture 3-bad-font
visit_home_page
expect_file "$opened" "my"$'\n'"browser"$'\n'"$home_page"$'\n'

# The ticks turned over once more, and tools besides.
change_settings "DejaVu Sans Mono" 12 "$browser"
mkdir "$desktop_folder/my tools"
tool="$desktop_folder/my tools/show"
printf '#!/bin/sh\nprintf "%%s\\n" "$@" >"%s"\ntouch "%s"\n' "$desktop_folder/arguments" "$desktop_folder/arguments.done" >"$tool"
chmod +x "$tool"
key F12
wait_window "Set Custom Tools"
type_text "Show & tell"
key Tab
type_text "\"$tool\" \"two words\" plain \"a \\\"quote\\\"\" it's \$HOME ;&|"
key Tab
type_text "Second tool"
key Tab
type_text "$tool of mine"
key Tab
type_text "Missing tool"
key Tab
type_text "/no/such/tool at all"
picture 4-tools
key Return
wait_window "KAV Compiler"
end_at_once
expect_lines 7 " 1 " " 0 "
expect_lines 10 "Show & tell" "\"$tool\" \"two words\" plain \"a \\\"quote\\\"\" it's \$HOME ;&|" \
    "Second tool" "$tool of mine" "Missing tool" "/no/such/tool at all" " 0 "

start_program
visit_home_page
expect_file "$opened" "$home_page"$'\n'
key alt
key Right Right Right Down
sleep 0.5
picture 5-menu
key Escape Escape
key F7
expect_arguments "two words" plain 'a "quote"' "it's" '$HOME' ';&|'
key F8
expect_arguments of mine
# A tool that is not there ends the command quietly: no box, and the program goes on.
key F9
sleep 1
active_title_is "KAV Compiler" || fail "a missing tool is told in '$(xdotool getactivewindow getwindowname)'"
[ -z "$(cat /proc/"$program"/task/*/children)" ] || fail "the program keeps children: $(cat /proc/"$program"/task/*/children)"
end_program
expect_lines 1 "$header"
