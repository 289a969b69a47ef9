#!/usr/bin/env bash
# links_session.sh PROGRAM FOLDER: every kind of link of the installed program, by keyboard and by mouse, through
# the desktop's own opener to a browser and a mail program that write down what they are given; and an error that
# is sent by mail and noted in the log. Keeps a picture in FOLDER.
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
# shellcheck source=tests/end_to_end/keyboard.sh
source "$here/keyboard.sh"
begin_session "$1" "$2" links
command -v xdg-open > /dev/null || fail "the test needs xdg-open"

# recorder NAME: a program that adds its arguments to the file of this name, one a line, and their number.
recorder() {
  printf '#!/bin/sh\nprintf "%%s\\n" "$#" "$@" >> "%s"\n' "$folder/$1.heard" > "$folder/$1"
  chmod +x "$folder/$1"
}

# No program of this machine's is asked, no desktop is there.
choose_programs() {
  unset XDG_CURRENT_DESKTOP DESKTOP_SESSION KDE_FULL_SESSION GNOME_DESKTOP_SESSION_ID DBUS_SESSION_BUS_ADDRESS
  export XDG_DATA_DIRS=$folder/share MAILCAPS=/dev/null BROWSER=$folder/browser
  recorder browser
  recorder mailer
  mkdir -p "$XDG_DATA_DIRS" "$XDG_DATA_HOME/applications"
  printf '[Desktop Entry]\nType=Application\nName=Mailer\nExec=%s %%u\nMimeType=x-scheme-handler/mailto;\n' \
    "$folder/mailer" > "$XDG_DATA_HOME/applications/mailer.desktop"
  printf '[Default Applications]\nx-scheme-handler/mailto=mailer.desktop\n' > "$XDG_CONFIG_HOME/mimeapps.list"
}

# expect_opened PROGRAM ARGUMENT: it was started once, with this and nothing else.
expect_opened() {
  local heard=$folder/$1.heard
  until_true 20 test -s "$heard" || fail "the $1 was not started" || return
  printf '1\n%s\n' "$2" | cmp -s - "$heard" || fail "the $1 should be given \"$2\" but was given: $(< "$heard")" || return
  rm "$heard"
  [[ -z $(find "$folder" -maxdepth 1 -name '*.heard') ]] || fail "another program was started, too"
}

# times NUMBER KEY: the key, so often.
times() {
  local at
  for ((at = 0; at < $1; at++)); do echo "$2"; done
}

# choose_help NUMBER: the entry of the Help menu that is so many below the first.
choose_help() {
  local keys
  mapfile -t keys < <(times "$1" Down)
  press alt+h
  until_true 20 is_menu_open || fail "Alt+H opened no menu" || return
  press "${keys[@]}" Return
}

# choose_source NUMBER: the entry of the Sources menu, the last one of Help, that is so many below the first.
choose_source() {
  local keys
  mapfile -t keys < <(times "$1" Down)
  press alt+h
  until_true 20 is_menu_open || fail "Alt+H opened no menu" || return
  press Up Right
  until_true 20 is_submenu_open || fail "the Sources menu did not open" || return
  press "${keys[@]}" Return
  until_true 20 is_menu_closed || fail "the menu stayed open"
}

is_submenu_open() { (($(visible_windows) == 3)); }

# dialog TITLE: waits for a window of the program's with this title, and looks at it from now on.
dialog() {
  title=$1
  until_true 20 is_in_front || fail "no window \"$title\" came to the front" || return
  window=$(xdotool getactivewindow)
  sleep 0.3 # the keys go to it a moment after the window manager says so
}
is_in_front() { [[ $(xdotool getactivewindow getwindowname 2> /dev/null) == "$title" ]]; }

# return_to WINDOW: waits until the dialog before it is gone.
return_to() {
  window=$1
  until_true 20 is_active || fail "the window did not become active again" || return
  sleep 0.3
}

# click_link WHICH: the first link of the window, which is the highest and the leftmost, or the last. Links are blue.
click_link() {
  local which=$1 at
  xdotool mousemove 0 0
  until_true 20 finds_link "$which" || fail "there is no link in the window" || return
  read -ra at < "$folder/place"
  xdotool mousemove --window "$window" "${at[@]}" click 1
}

finds_link() {
  import -window "$window" "$folder/links.png" &&
    convert "$folder/links.png" -fuzz 25% +transparent '#0000FF' sparse-color:- | tr ' ' '\n' |
    sed -n 's/^\([0-9]*\),\([0-9]*\),.*/\1 \2/p' | sort -k 2n > "$folder/places"
  # Letters of one row differ in their heights.
  if [[ $1 == first ]]; then
    awk 'NR == 1 { top = $2 } $2 < top + 6' "$folder/places" | sort -n | head -n 1
  else
    tac "$folder/places" | awk 'NR == 1 { bottom = $2 } $2 > bottom - 6' | sort -n | tail -n 1
  fi > "$folder/place"
  [[ -s $folder/place ]]
}

# encoded TEXT: as it stands in a mail link. Bytes, not characters.
encoded() {
  local LC_ALL=C at byte
  for ((at = 0; at < ${#1}; at++)); do
    byte=${1:at:1}
    case $byte in
      [A-Za-z0-9._~-]) printf '%s' "$byte" ;;
      *) printf '%%%02X' "'$byte" ;;
    esac
  done
}

version=$(sed -n 's/^project(Tessaloom VERSION \([0-9.]*\).*/\1/p' "$here/../../CMakeLists.txt")

step "install into a folder with an awkward name"
choose_programs
prefix="$folder/it's \"A & B\" 50%"
cmake --install "$(dirname "$program")/.." --prefix "$prefix" > "$folder/install.log"
program=$(readlink -f "$prefix/bin/Tessaloom")
help=$(dirname "$program")/tessaloom_help.htm
leave_first_run
sed -i 's/^Site=1$/Site=4/' "$(store)" # a seller in Germany converts currencies
start_program "Tessaloom for eBay Germany"
main=$window

step "Help > Contents"
choose_help 0
expect_opened browser "file://$folder/it's%20%22A%20&%20B%22%2050%25${help#"$prefix"}"

step "Help > Homepage"
choose_help 2
expect_opened browser https://www.ostrevane.example/

step "Help > Send Feedback"
choose_help 4
expect_opened mailer "mailto:support@ostrevane.example?subject=Comment%20RE%3A%20Tessaloom%20$version"

step "Help > Join Mailing List"
choose_help 5
expect_opened mailer \
  "mailto:subscribe@ostrevane.example?subject=Subscribe%20Ostrevane%20Mailing%20List%20REF%3A%20Tessaloom"

step "Help > Sources: the first, one in the middle, the last"
choose_source 0
expect_opened browser https://pages.ebay.com/help/sellerguide/selling-fees.html
choose_source 9
expect_opened browser "https://www.paypal.com/cgi-bin/webscr?cmd=p/gen/fees-outside"
choose_source 12
expect_opened browser https://pages.ebay.co.uk/help/sellerguide/bp-fees.html

step "the links of the Payment Services tab, by mouse"
until_true 20 is_menu_closed || fail "a menu stayed open"
all_keys_handled
press alt+p
click_link first
expect_opened browser https://www.xe.com/ucc/
click_link last
expect_opened browser https://www.iloxx.de/ebay/spreischeck.asp

step "the Shipping tab, by mouse"
press ctrl+Tab
click_link first
expect_opened browser https://postcalc.usps.com/
click_link last
expect_opened browser https://www.theupsstore.com/pack-ship
click_link first
expect_opened browser https://postcalc.usps.com/
xdotool mousemove 0 0

step "the Shipping tab, by keyboard"
press Tab Return
expect_opened browser "https://wwwapps.ups.com/QCCWebApp/request?iso_language=en&iso_country=US"
press Tab space
expect_opened browser "https://www.fedex.com/ratefinder/home?cc=US&language=en"
keep_picture

step "the homepage in the About window"
choose_help 1
dialog "Tessaloom - Calculate eBay Auction Fees"
click_link first
expect_opened browser https://www.ostrevane.example/
press Escape
return_to "$main"

step "a help file that is missing is told"
rm "$help"
choose_help 0
dialog "Tessaloom  Error"
text="The help file was not found: $help"

step "and is sent by mail"
press alt+s
expect_opened mailer \
  "mailto:errors@ostrevane.example?subject=Tessaloom%20$version%20Error&body=$(encoded "$text")"
return_to "$main"

step "and is noted in the log, in one line"
log=$XDG_STATE_HOME/Ostrevane/Tessaloom/MasterDebugLog.txt
until_true 20 test -s "$log" || fail "there is no log"
(($(wc -l < "$log") == 1)) || fail "the log has more than one line: $(< "$log")"
line=$(< "$log")
[[ ${line#* } == "$version $text" ]] || fail "the log says \"$line\""
[[ ${line%% *} =~ ^[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}(Z|[+-][0-9]{2}:[0-9]{2})$ ]] ||
  fail "the log has no time at its beginning: \"$line\""
end_program

step "done"
