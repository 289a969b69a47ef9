#!/usr/bin/env bash
# curve_session.sh PROGRAM: pictures of the command are XML that a reader of SVG accepts, and are not empty.
set -euo pipefail
program=$1

fail() {
  echo "FAILED: $1" >&2
  exit 1
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# picture_of ARGUMENT...: draws a picture into a file and has it read.
picture_of() {
  "$program" curve "$@" --svg "$work/curve.svg" || fail "no picture of: $*"
  rsvg-convert --output "$work/curve.png" "$work/curve.svg" || fail "not read: $*"
  # An empty sheet of that size takes 3 KB.
  (($(stat -c %s "$work/curve.png") > 10000)) || fail "nothing on the picture of: $*"
  for part in '<title id="curve-title">What' '<desc id="curve-desc">Net' 'role="img"'; do
    grep -qF -- "$part" "$work/curve.svg" || fail "no $part in the picture of: $*"
  done
}

for site in us uk ca de; do
  picture_of --site "$site"
  picture_of --site "$site" --payment paypal --vehicle --decimal ,
  picture_of --site "$site" --from 9.90 --to 15.40 --two-categories
done
"$program" curve --svg - | rsvg-convert --output "$work/piped.png" || fail "not read from a pipe"
if echo '<svg' | rsvg-convert --output "$work/broken.png" 2> "$work/reason"; then fail "anything is read"; fi
