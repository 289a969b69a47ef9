#!/usr/bin/env bash
# screenshot.sh PROGRAM FILE: starts the program on a display of its own and keeps a picture of its window.
set -euo pipefail
# shellcheck source=scripts/virtual_display.sh
source "$(dirname "${BASH_SOURCE[0]}")/virtual_display.sh"

program=$1
file=$2
folder=$(mktemp -d)
trap 'stop_virtual_display; rm -rf "$folder"' EXIT

start_virtual_display "$folder"
leave_first_run
"$program" > "$folder/program.log" 2>&1 &
pid=$!
VIRTUAL_DISPLAY_PIDS=("$pid" "${VIRTUAL_DISPLAY_PIDS[@]}")
rm -f "$file"
if ! window=$(visible_window "$(basename "$program")" "$pid") || ! save_screenshot "$window" "$file"; then
  cat "$folder/program.log" >&2
  echo "The window of $program did not appear." >&2
  exit 1
fi
