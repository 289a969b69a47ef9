# shellcheck shell=bash
# Sourced by the end-to-end sessions: the verbs of a user who has a keyboard and eyes, but no mouse. Each fails
# with the step at which it happened.

# shellcheck source=scripts/virtual_display.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/virtual_display.sh"

program=     # under test
program_pid= # its process
window=      # its id on the display
folder=      # of this session: settings and logs
pictures=    # where what was seen is kept
picture=     # the name of this session's

# The controls of the Single Item tab in the order of the Tab key, then the notepad's, then the row of tabs.
TAB_ORDER=(
  txtStartingPrice txtPrice chkDidNotSell cboSingleItemType cboIsReserve chkMotors chkVehicle optMotorcycle
  chkRealEstate chkSubTitleSingleItem chkListingDesigner chkScheduled chkSlideshow chkSupersizePhotos
  chkExtraPhotos cboExtraPhotos chkBIN chkTenDayAuction chkTwoCategories chkFeaturedCategory chkFeatured
  chkGallery chkGalleryFeatured chkHighlighted chkBold chkGiftIcon cmdCalculate cmdClearAll cmdAddRegularToNotes
  txtInsertionFee txtExtras txtFVF txtFees cmdNotepad cmdPrintNotepad cmdCopyNotepad cmdClearNotepad txtNotes SSTab1)

# What the Tab key passes by because it is disabled or hidden just now.
declare -A UNREACHABLE=([chkVehicle]=1 [optMotorcycle]=1 [cboExtraPhotos]=1 [chkGalleryFeatured]=1
  [cmdPrintNotepad]=1 [cmdCopyNotepad]=1 [cmdClearNotepad]=1 [txtNotes]=1)

STEP="start"
UNREAD="nothing was copied"

step() {
  STEP=$1
  echo "- $STEP"
}

fail() {
  echo "FAILED at \"$STEP\": $1" >&2
  return 1
}

# begin_session PROGRAM PICTURES NAME: a display, a keyboard and settings of its own.
begin_session() {
  local tool
  program=$1
  pictures=$2
  picture=$3
  for tool in Xvfb openbox xdotool xprop xclip import; do
    command -v "$tool" > /dev/null || fail "the test needs $tool" || exit
  done
  folder=$(mktemp -d)
  trap clean_up EXIT
  mkdir -p "$pictures"
  rm -f "$pictures/$picture"{,_failure}.png
  start_virtual_display "$folder"
}

clean_up() {
  local status=$?
  if ((status != 0)); then
    [[ -z ${DISPLAY-} ]] || grab root "$pictures/${picture}_failure.png" || true
    cat "$folder/program.log" >&2 || true
  fi
  [[ -z $program_pid ]] || kill "$program_pid" 2> /dev/null || true
  stop_virtual_display
  rm -rf "$folder"
  exit "$status"
}

# start_program TITLE: and waits for its window.
start_program() {
  "$program" > "$folder/program.log" 2>&1 &
  program_pid=$!
  window=$(visible_window Tessaloom "$program_pid") || fail "no window appeared" || return
  until_true 20 is_active || fail "the window did not become active" || return
  expect_title "$1"
}

# first_start QUESTION TITLE: the first start asks whether to look for updates, and is told not to.
first_start() {
  local question
  start_program "$1" || return
  question=$window
  press Escape
  until_true 20 has_window_after "$question" || fail "no window came after the question" || return
  until_true 20 is_active || fail "the window did not become active" || return
  expect_title "$2"
}

has_window_after() {
  window=$(visible_window Tessaloom "$program_pid") && [[ $window != "$1" ]]
}

has_title() { [[ $(xdotool getwindowname "$window") == "$1" ]]; }

expect_title() { until_true 20 has_title "$1" || fail "the window's title is \"$(xdotool getwindowname "$window")\""; }

# end_program: by the keyboard.
end_program() {
  local status=0
  press ctrl+q
  until_true 30 has_ended || fail "the program did not end" || return
  wait "$program_pid" || status=$?
  program_pid=
  ((status == 0)) || fail "the program ended with status $status"
}

keep_picture() { save_screenshot "$window" "$pictures/$picture.png" || fail "no picture could be taken"; }

is_running() { kill -0 "$program_pid" 2> /dev/null; }

press() { xdotool key --delay 2 "$@"; }

enter() { xdotool type --delay 2 "$1"; }

# go_to CONTROL: by the first label's mnemonic, then with Tab or Shift+Tab, whichever is shorter.
go_to() {
  local control stops=0 target=-1 keys=()
  for control in "${TAB_ORDER[@]}"; do
    [[ -z ${UNREACHABLE[$control]-} ]] || continue
    [[ $control != "$1" ]] || target=$stops
    stops=$((stops + 1))
  done
  ((target >= 0)) || fail "$1 cannot be reached now" || return
  if ((target <= stops / 2)); then
    for ((; target > 0; target--)); do keys+=(Tab); done
  else
    for ((; target < stops; target++)); do keys+=(shift+Tab); done
  fi
  press alt+e "${keys[@]}"
}

reachable() {
  local control
  for control in "$@"; do unset "UNREACHABLE[$control]"; done
}
unreachable() {
  local control
  for control in "$@"; do UNREACHABLE[$control]=1; done
}

# fill_in BOX TEXT: the box selects its text when it is entered, so that typing replaces it.
fill_in() {
  go_to "$1"
  enter "$2"
}

# switch BOX: ticks a check box that is not ticked, and the other way round.
switch() {
  go_to "$1"
  press space
}

push() { switch "$1"; }

clipboard() { timeout 10 xclip -selection clipboard -out 2> /dev/null; }

is_copied() {
  local text
  text=$(clipboard) && [[ $text != "$UNREAD" ]]
}

forget_clipboard() { printf '%s' "$UNREAD" | xclip -selection clipboard -in > /dev/null; }

# expect CONTROL TEXT: goes there and copies what stands in it.
expect() {
  go_to "$1"
  forget_clipboard
  press ctrl+a ctrl+c
  until_true 20 is_copied || fail "$1 should show \"$2\"; nothing could be copied from it" || return
  [[ $(clipboard) == "$2" ]] || fail "$1 should show \"$2\" but shows \"$(clipboard)\""
}

# expect_empty CONTROL
expect_empty() {
  go_to "$1"
  nothing_in "$1"
}

# nothing_in CONTROL: where the focus is, nothing can be copied, even after all keys have been handled.
nothing_in() {
  forget_clipboard
  press ctrl+a ctrl+c
  all_keys_handled
  ! is_copied || fail "$1 should be empty but shows \"$(clipboard)\""
}

expect_figures() {
  expect txtInsertionFee "$1"
  expect txtExtras "$2"
  if [[ -n $3 ]]; then expect txtFVF "$3"; else expect_empty txtFVF; fi
  expect txtFees "$4"
}

# all_keys_handled: keys are handled in order, so the menu that the last one opens shows that all were.
all_keys_handled() {
  press alt+f
  until_true 20 is_menu_open || fail "Alt+F opened no menu" || return
  press Escape
  until_true 20 is_menu_closed || fail "Escape did not close the menu"
}

# choose_language KEY...: from the first entry of the menu of languages.
choose_language() {
  press alt+o
  until_true 20 is_menu_open || fail "Alt+O opened no menu" || return
  press Up Right "$@" Return
}

visible_windows() { xdotool search --onlyvisible --class '^Tessaloom$' 2> /dev/null | wc -l; }
is_menu_open() { (($(visible_windows) == 2)); }
is_menu_closed() { (($(visible_windows) == 1)); }

is_active() { [[ $(xdotool getactivewindow 2> /dev/null) == "$window" ]]; }

is_on_top() { xprop -id "$window" _NET_WM_STATE | grep -q _NET_WM_STATE_ABOVE; }
is_not_on_top() { ! is_on_top; }

window_height() { xdotool getwindowgeometry --shell "$window" | sed -n 's/^HEIGHT=//p'; }
is_higher_than() { (($(window_height) > $1)); }
is_as_high_as() { (($(window_height) == $1)); }

store() { echo "$XDG_CONFIG_HOME/Ostrevane/Tessaloom.conf"; }

is_stored() { grep -qx "$1" "$(store)" 2> /dev/null; }

has_ended() { ! is_running; }
