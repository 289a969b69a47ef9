#!/usr/bin/env bash
# silent_session.sh PROGRAM FOLDER: starting, using and closing the program opens no network socket; only asking for
# updates does. All that the program and its threads open is watched from outside.
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
# shellcheck source=tests/end_to_end/keyboard.sh
source "$here/keyboard.sh"
begin_session "$1" "$2" silent
command -v strace > /dev/null || fail "the test needs strace"
# Leaks cannot be looked for in a program that is watched; the other sessions do.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0
watched=$program
calls=$folder/calls

# The program in the place of a watched one: same process, and the watcher beside it.
program=$folder/watched
printf '#!/bin/sh\nexec strace -D -f -q -e trace=socket,connect -o "%s" "%s"\n' "$calls" "$watched" > "$program"
chmod +x "$program"

network_calls() { grep -E 'AF_INET6?\b' "$calls"; }

# The display is reached through a socket, too: without that one nothing was watched.
expect_silence() {
  grep -q 'socket(AF_UNIX' "$calls" || fail "nothing was watched" || return
  ! network_calls > "$folder/network" || fail "the network was touched: $(< "$folder/network")"
}

step "a first run that is told not to look for updates"
first_start "Check for product updates" "Tessaloom for eBay.com"
is_stored UpdateCheck=0 || fail "the answer was not stored"
fill_in txtStartingPrice 9.99
expect txtInsertionFee 0.35
end_program
expect_silence

step "a later run"
start_program "Tessaloom for eBay.com"
press alt+s
press alt+h
until_true 20 is_menu_open || fail "Alt+H opened no menu"
press Escape
end_program
expect_silence

# refuse_network: from now on the running program gets no socket. Nothing leaves the machine, but what it tries is
# seen.
refuse_network() {
  strace -f -q -p "$program_pid" -e trace=socket -e inject=socket:error=EAFNOSUPPORT -o "$calls" &
  VIRTUAL_DISPLAY_PIDS+=($!)
  until_true 20 is_watched || fail "the program cannot be watched"
}
is_watched() { [[ $(sed -n 's/^TracerPid:\t//p' "/proc/$program_pid/status") != 0 ]]; }
has_tried() { network_calls > /dev/null; }

step "a first run that is told to look for updates"
program=$watched
rm "$(store)" "$calls"
start_program "Check for product updates"
question=$window
refuse_network
press Return # the button that is chosen beforehand
until_true 20 has_window_after "$question" || fail "no window came after the question"
until_true 20 has_tried || fail "asking for updates was not seen"
until_true 20 is_stored UpdateCheck=1 || fail "the answer was not stored"

step "a server that cannot be reached says nothing"
until_true 20 is_active || fail "the window did not become active"
expect_title "Tessaloom for eBay.com"
fill_in txtStartingPrice 9.99
expect txtInsertionFee 0.35
end_program

step "a later run that asks by the menu"
rm "$calls"
start_program "Tessaloom for eBay.com"
refuse_network
press alt+h
until_true 20 is_menu_open || fail "Alt+H opened no menu"
press k
until_true 20 has_tried || fail "asking for updates was not seen"
end_program

step "done"
