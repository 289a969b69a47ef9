#!/usr/bin/env bash
# batch_session.sh PROGRAM: batch among files, pipes, full disks and readers that go away.
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

# expect_text WHAT TEXT FILE: the file holds the text.
expect_text() {
  grep -qF -e "$2" "$3" && return
  printf '%s: no "%s" in:\n%s\n' "$1" "$2" "$(head -c 1000 "$3")" >&2
  failures=$((failures + 1))
}

# run ARGUMENT...: leaves what it wrote in out and err, and how it ended in status.
run() {
  "$program" batch "$@" > out 2> err
  status=$?
}

printf 'id,opening,closing\n1,9.99,25\n2,1,2\n' > list.csv
run list.csv
expect "all good" 0 "$status"
expect "nothing to tell" "" "$(cat err)"
cp out expected

run - < list.csv
expect "from the standard input" "$(cat expected)" "$(cat out)"
(
  printf 'id,opening,clo'
  sleep 0.2
  printf 'sing\n1,9.99,25\n2'
  sleep 0.2
  printf ',1,2'
) | "$program" batch - > out
expect "from a pipe, bit by bit" "$(cat expected)" "$(cat out)"

printf 'opening\nx\n1\n' > wrong.csv
run wrong.csv
expect "a wrong row" 1 "$status"
expect "a wrong row" 'wrong.csv:2: opening: "x" is no number' "$(cat err)"

run missing.csv
expect "a missing file" 2 "$status"
expect_text "a missing file" "missing.csv: No such file or directory" err
run .
expect "a directory" 2 "$status"
expect_text "a directory" ".: Is a directory" err
if ((EUID != 0)); then
  chmod 000 list.csv
  run list.csv
  expect "an unreadable file" 2 "$status"
  expect_text "an unreadable file" "Permission denied" err
  chmod 600 list.csv
fi
: > empty.csv
run empty.csv
expect "an empty file" 2 "$status"
run
expect "no file" 2 "$status"
run "$program"
expect "a binary file" 2 "$status"
expect "a binary file: one line" 1 "$(wc -l < err)"
{
  printf 'opening,a\n'
  cat "$program"
} > binary.csv
run binary.csv
expect "binary rows" 1 "$status"

# Answers of the size of many pieces.
{
  echo 'id,opening,closing'
  for ((at = 0; at < 30000; ++at)); do echo "$at,9.99,25"; done
} > long.csv
"$program" batch long.csv > /dev/full 2> err
expect "a full disk" 1 $?
expect_text "a full disk" "cannot write: No space left on device" err
expect "a full disk: one message" 1 "$(wc -l < err)"

"$program" batch long.csv 2> err | head -n 1 > out
expect "the reader goes away: by its signal" 141 "${PIPESTATUS[0]}"
expect "the reader goes away: in silence" "" "$(cat err)"
# Also where the parent ignores the signal.
(
  trap '' PIPE
  "$program" batch long.csv 2> err
  echo $? > status
) | head -n 1 > out
expect "the reader goes away from a process that ignores it" 141 "$(cat status)"

run long.csv
expect "long: in order" "$(cut -d, -f1 long.csv | md5sum)" "$(cut -d, -f1 out | md5sum)"

# Zeros without an end are no names of columns, and no row either.
timeout 5 head -c 10G /dev/zero | timeout 20 "$program" batch - > out 2> err
expect "zeros" 2 "${PIPESTATUS[1]}"
expect_text "zeros" "too long" err
{
  printf 'opening,a\n1,2\n'
  timeout 5 head -c 10G /dev/zero
} | timeout 20 "$program" batch - > out 2> err
expect "zeros behind rows" 1 "${PIPESTATUS[1]}"
expect_text "zeros behind rows" "-:3: the row is longer than 16 MB" err
expect "zeros behind rows: what stands before them" 2 "$(wc -l < out)"
# Rows without an end, cut after some time: each that arrived whole is answered.
{
  printf 'opening,a\n'
  timeout 2 yes 1,2 | tee rows
} | timeout 60 "$program" batch - 2> err | wc -l > count
expect "rows from a pipe that is cut" "$(grep -c . rows)" "$(($(cat count) - 1))"
expect "rows from a pipe that is cut" "" "$(cat err)"

# Memory stays the same, however long the table is.
if [[ -x /usr/bin/time && -z ${TESSALOOM_SANITIZED-} ]]; then
  for ((at = 0; at < 20; ++at)); do tail -n +2 long.csv; done | (echo 'id,opening,closing' && cat) |
    /usr/bin/time -f '%M' "$program" batch - 2> err > /dev/null
  memory=$(tail -n 1 err)
  ((memory < 64 * 1024)) || expect "memory in kilobytes" "less than 65536" "$memory"
fi

((failures == 0))
