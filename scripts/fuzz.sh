#!/usr/bin/env bash
# fuzz.sh SECONDS: builds the fuzz targets and runs each for so long, from a copy of its corpus. What a target
# finds is left in build/fuzz/findings.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source scripts/build.sh

seconds=$1
configure fuzz build/fuzz
build build/fuzz fuzz/all
mkdir -p build/fuzz/findings
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

mapfile -t targets < <(find build/fuzz/fuzz -maxdepth 1 -type f -name '*_fuzz' -executable | sort)
((${#targets[@]} > 0)) || {
  echo "There is no fuzz target in build/fuzz/fuzz." >&2
  exit 1
}
# All at once: together they take as long as one.
pids=()
for target in "${targets[@]}"; do
  name=$(basename "$target" _fuzz)
  cp -r "fuzz/corpus/$name" "$work/$name"
  "$target" -max_total_time="$seconds" -print_final_stats=1 -verbosity=0 -artifact_prefix=build/fuzz/findings/ \
    "$work/$name" > "$work/$name.log" 2>&1 &
  pids+=($!)
done

status=0
for at in "${!targets[@]}"; do
  name=$(basename "${targets[at]}" _fuzz)
  if wait "${pids[at]}"; then
    echo "$name: $seconds seconds, $(grep number_of_executed_units "$work/$name.log" | grep -o '[0-9]*$') inputs, no finding"
  else
    echo "$name: a finding" >&2
    cat "$work/$name.log" >&2
    status=1
  fi
done
exit "$status"
