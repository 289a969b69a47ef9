# shellcheck shell=bash
# Sourced by the screenshot and the end-to-end test: a display of one's own with a window manager, and the
# program on it. Everything is started with a private configuration and ends with stop_virtual_display.

VIRTUAL_DISPLAY_PIDS=()

# until_true SECONDS COMMAND...: polls a command until it succeeds, for so many seconds at most.
until_true() {
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    ((SECONDS < end)) || return 1
    sleep 0.05
  done
}

# start_virtual_display FOLDER: sets DISPLAY and the variables that keep a program to FOLDER and to amounts
# with a decimal point.
start_virtual_display() {
  local folder=$1
  export XDG_CONFIG_HOME=$folder/config XDG_DATA_HOME=$folder/data XDG_STATE_HOME=$folder/state
  export XDG_RUNTIME_DIR=$folder/runtime
  mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_RUNTIME_DIR"
  chmod 700 "$XDG_RUNTIME_DIR"
  unset DISPLAY LC_ALL LANGUAGE WAYLAND_DISPLAY QT_QPA_PLATFORM QT_STYLE_OVERRIDE QT_SCALE_FACTOR QT_FONT_DPI
  export LANG=C.UTF-8
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3> "$folder/display" 2> "$folder/xvfb.log" &
  VIRTUAL_DISPLAY_PIDS+=($!)
  until_true 30 test -s "$folder/display" || {
    cat "$folder/xvfb.log" >&2
    return 1
  }
  DISPLAY=:$(< "$folder/display")
  export DISPLAY
  openbox --sm-disable > "$folder/openbox.log" 2>&1 &
  VIRTUAL_DISPLAY_PIDS+=($!)
  until_true 30 has_window_manager || {
    cat "$folder/openbox.log" >&2
    return 1
  }
}

# Settings as an earlier run has left them: the first one asks a question before it shows its window.
leave_first_run() {
  mkdir -p "$XDG_CONFIG_HOME/Ostrevane"
  printf '[General]\nSite=1\n' > "$XDG_CONFIG_HOME/Ostrevane/Tessaloom.conf"
}

has_window_manager() { xprop -root _NET_SUPPORTING_WM_CHECK 2> /dev/null | grep -q 'window id'; }

stop_virtual_display() {
  local pid
  for pid in "${VIRTUAL_DISPLAY_PIDS[@]}"; do
    kill "$pid" 2> /dev/null || true
    wait "$pid" 2> /dev/null || true
  done
  VIRTUAL_DISPLAY_PIDS=()
}

# visible_window NAME PID: the id of the program's window once it is mapped. Fails when the program has ended.
visible_window() {
  local end=$((SECONDS + 60)) window
  while ((SECONDS < end)) && kill -0 "$2" 2> /dev/null; do
    window=$(xdotool search --onlyvisible --class "^$1\$" 2> /dev/null | head -n 1)
    if [[ -n $window ]]; then
      echo "$window"
      return 0
    fi
    sleep 0.05
  done
  return 1
}

# save_screenshot WINDOW FILE: once two grabs in a row are alike and show more than a plain area.
save_screenshot() {
  local window=$1 file=$2 folder
  folder=$(mktemp -d)
  xdotool mousemove 0 0 # no control under the pointer, no tooltip in the picture
  if until_true 30 grabs_alike "$window" "$folder"; then
    mkdir -p "$(dirname "$file")"
    mv "$folder/second.png" "$file"
  fi
  rm -rf "$folder"
  [[ -s $file ]]
}

# With a time limit: for a window that is gone, import would ask for another one with the mouse.
grab() { timeout 10 import -frame -window "$1" -define png:exclude-chunks=date "$2"; }

grabs_alike() {
  grab "$1" "$2/first.png" &&
    sleep 0.1 &&
    grab "$1" "$2/second.png" &&
    [[ $(identify -format '%#' "$2/first.png") == "$(identify -format '%#' "$2/second.png")" ]] &&
    (($(identify -format '%k' "$2/second.png") > 8))
}
