#!/usr/bin/env bash
# command_session.sh PROGRAM: the commands that price one thing, as a shell runs them.
set -uo pipefail
program=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
failures=0

# expect WHAT EXPECTED ACTUAL
expect() {
  [[ $2 == "$3" ]] && return
  printf '%s: expected "%s", got "%s"\n' "$1" "$2" "$3" >&2
  failures=$((failures + 1))
}

for command in "single --opening 1" "schedule" "curve --svg -"; do
  # shellcheck disable=SC2086 # words
  "$program" $command > /dev/full 2> err
  expect "$command: a full disk" 1 "$?"
  expect "$command: a full disk" "tessaloom-fees: cannot write: No space left on device" "$(cat err)"
done

nothing=
"$program" curve --svg="$nothing" --bold > out 2> err
expect "an empty name of a file" 2 "$?"
expect "an empty name of a file: none is written" "err out" "$(echo *)"

((failures == 0))
