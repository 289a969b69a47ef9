#!/usr/bin/env bash
# installed_session.sh PROGRAM FOLDER: the program as it is installed finds the languages and the branding file that
# lie beside it, also when it is started by its link. Keeps a picture in FOLDER.
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
# shellcheck source=tests/end_to_end/keyboard.sh
source "$here/keyboard.sh"
begin_session "$1" "$2" installed

step "install"
cmake --install "$(dirname "$program")/.." --prefix "$folder/prefix" > "$folder/install.log"
program=$folder/prefix/bin/Tessaloom
beside=$(dirname "$(readlink -f "$program")")
cp "$here/../../packaging/AppData.example" "$beside/AppData"
for page in tessaloom_help.htm marrowfeld_hilfe.htm; do
  cmp "$here/../../help/$page" "$beside/$page" || fail "$page is not beside the program"
done

step "it speaks the user's language"
LANG=fr_CA.UTF-8 LANGUAGE=fr_CA first_start "Rechercher des mises à jour" "Tessaloom pour eBay.com"
press alt+a
until_true 20 is_menu_open || fail "Alt+A opened no menu"
grab root "$pictures/$picture.png" || fail "no picture could be taken"
press Escape
end_program

step "a library that is broken is told, and English is spoken"
head -c 1000 "$beside/TessaloomLang40C.dll" > "$folder/broken"
mv "$folder/broken" "$beside/TessaloomLang40C.dll"
LANG=fr_CA.UTF-8 LANGUAGE=fr_CA "$program" > "$folder/program.log" 2>&1 &
program_pid=$!
is_told() { xdotool getactivewindow getwindowname 2> /dev/null | grep -qx 'Error with Regsvr32.exe'; }
is_message_gone() { ! xdotool search --onlyvisible --name '^Error with Regsvr32.exe$' > /dev/null 2>&1; }
until_true 30 is_told || fail "no message told of the broken library"
press Return
until_true 20 is_message_gone || fail "Return did not close the message"
window=$(visible_window Tessaloom "$program_pid") || fail "no window appeared"
expect_title "Tessaloom for eBay.com"
until_true 20 is_active || fail "the window did not become active"

step "also over a window that is kept on top"
press alt+o
until_true 20 is_menu_open || fail "Alt+O opened no menu"
press k
until_true 20 is_on_top || fail "the window was not kept on top"
choose_language Down Down Down
until_true 30 is_told || fail "no message told of the broken library"
xprop -id "$(xdotool getactivewindow)" WM_TRANSIENT_FOR | grep -q "$(printf '0x%x' "$window")" ||
  fail "the message does not belong to the window, which hides it"
press Return
until_true 20 is_message_gone || fail "Return did not close the message"
end_program

step "done"
