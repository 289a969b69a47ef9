#!/usr/bin/env bash
# batch_session.sh PROGRAM: batch among files, pipes, full disks and readers that go away.
set -uo pipefail
program=$1
golden=$(dirname "$(readlink -f "$0")")/golden
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

# The same tables as elsewhere, now through the options of the command.
for row in "excel:--excel" "decimal_comma:--decimal ," "from_window:--from-window" \
  "from_window_comma:--from-window --decimal ,"; do
  read -ra options <<< "${row#*:}"
  "$program" batch "${options[@]}" - < "$golden/batch_${row%%:*}.csv" > out 2> err
  cmp -s out "$golden/batch_${row%%:*}.expected.csv" || expect "batch ${options[*]}" "the expected table" another
  expect "batch ${options[*]}: errors" "$(sed 's/^list.csv/-/' "$golden/batch_${row%%:*}.errors.txt")" "$(cat err)"
done

# told DELAY: what a terminal is told of a table that arrives in so many seconds.
told() {
  script -qec "(cat list.csv; sleep $1; echo 3,1,2) | '$program' batch - > out" typescript > /dev/null
  grep -v '^Script' typescript
}
expect "progress of a short run" "" "$(told 0)"
expect_text "progress of a long run" "0 MB" <(told 1.2)
expect "progress disappears" "    " "$(told 1.2 | tr '\r' '\n' | grep -o '^ *$' | tail -n 1)"
(
  cat list.csv
  sleep 1.2
  echo 3,1,2
) | "$program" batch - > out 2> err
expect "no progress without a terminal" "" "$(cat err)"

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
# Even the superuser cannot read there.
run /proc/self/mem
expect "an unreadable file" 2 "$status"
expect_text "an unreadable file" "/proc/self/mem: Input/output error" err
printf 'opening,a,a,Opening\n' > twice.csv
run twice.csv
expect "a column twice" 2 "$status"
expect "a column twice" 'tessaloom-fees: twice.csv:1: two columns are named "opening"' "$(cat err)"
printf 'opening,net\n1,2\n' > again.csv
run again.csv
expect "a name of the answer" 0 "$status"
expect_text "a name of the answer" 'again.csv:1: the column "net" is there already' err
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

"$program" batch list.csv 2> err >&-
expect "a closed output" 1 $?
expect "a closed output" "tessaloom-fees: cannot write: Bad file descriptor" "$(cat err)"

# A disk that fills on the way keeps the beginning of the answer, nothing twice and nothing left out.
"$program" batch long.csv > whole
(
  trap '' XFSZ
  ulimit -f 700
  "$program" batch long.csv > part 2> err
  echo $? > status
)
expect "a disk that fills: it fails" 1 "$(cat status)"
expect_text "a disk that fills: it says so" "cannot write: File too large" err
expect "a disk that fills: what fitted is there" $((700 * 1024)) "$(stat -c %s part)"
cmp -n $((700 * 1024)) part whole || expect "a disk that fills: the beginning of the answer" same other

cp list.csv self.csv
# shellcheck disable=SC2094 # that is what is tried
"$program" batch self.csv >> self.csv 2> err
expect "into its own input" 2 $?
expect_text "into its own input" "self.csv: the answer would be written into this very file" err
expect "into its own input: it stays as it was" "$(cat list.csv)" "$(cat self.csv)"

# A pipe whose other end does not let its users wait, as some programs hand them over.
perl -MFcntl - "$program" << 'EOF' > out 2> err
pipe(my $from_writer, my $to_batch) && pipe(my $from_batch, my $to_reader) or die;
fcntl($_, F_SETFL, fcntl($_, F_GETFL, 0) | O_NONBLOCK) or die for $from_writer, $to_reader;
my $batch = fork;
if ($batch == 0) {
  open(STDIN, '<&', $from_writer) && open(STDOUT, '>&', $to_reader) or die;
  close($_) for $from_writer, $to_batch, $from_batch, $to_reader;
  exec($ARGV[0], 'batch', '-') or die;
}
close($_) for $from_writer, $to_reader;
if (fork == 0) {
  close($from_batch);
  sleep(1);
  open(my $table, '<', 'long.csv') or die;
  local $/;
  print $to_batch scalar(<$table>);
  exit;
}
close($to_batch);
sleep(2);
print while <$from_batch>;
waitpid($batch, 0);
exit($? >> 8);
EOF
expect "pipes that do not wait" 0 $?
expect "pipes that do not wait: the same answer" "$(md5sum < whole)" "$(md5sum < out)"

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
expect "zeros behind rows: what stands before them and for them" 3 "$(wc -l < out)"
# Rows without an end, cut after some time: each that arrived whole is answered.
{
  printf 'opening,a\n'
  timeout 2 yes 1,2 | tee rows
} | timeout 60 "$program" batch - 2> err | wc -l > count
expect "rows from a pipe that is cut" "$(grep -c . rows)" "$(($(cat count) - 1))"
expect "rows from a pipe that is cut" "" "$(cat err)"

# expect_memory WHAT: what a table from the standard input takes stays the same, however long it is.
expect_memory() {
  [[ -x /usr/bin/time && -z ${TESSALOOM_SANITIZED-} ]] || return
  /usr/bin/time -f '%M' "$program" batch - 2> err > /dev/null
  local memory
  memory=$(tail -n 1 err)
  ((memory < 64 * 1024)) || expect "$1: memory in kilobytes" "less than 65536" "$memory"
}
for ((at = 0; at < 20; ++at)); do tail -n +2 long.csv; done | (echo 'id,opening,closing' && cat) |
  expect_memory "a long table"
(echo 'opening' && head -c 1G /dev/zero && echo && echo 1) | expect_memory "a row without an end"
(printf 'opening,a\n1,"\n' && yes "$(printf %050d 0)" | head -n 500000) | expect_memory "a mark that is never closed"
(echo 'opening' && yes x | head -n 1000000) | expect_memory "short rows, all of them wrong"

((failures == 0))
