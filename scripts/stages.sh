# shellcheck shell=bash
# Sourced by .ci/run: its stages, how long each took, and how many tests ran.

STAGE_NAMES=()
STAGE_STARTS=()

# stage NAME: the one before is at its end.
stage() {
  STAGE_NAMES+=("$1")
  STAGE_STARTS+=("$SECONDS")
  printf '\n=== %02d:%02d  %s\n' $((SECONDS / 60)) $((SECONDS % 60)) "$1"
}

# The closing table: stage, seconds, share of the whole.
print_stages() {
  local at end total=$((SECONDS > 0 ? SECONDS : 1))
  printf '\n%-52s %7s %6s\n' stage seconds share
  for at in "${!STAGE_NAMES[@]}"; do
    end=${STAGE_STARTS[at + 1]:-$SECONDS}
    printf '%-52s %7d %5d%%\n' "${STAGE_NAMES[at]}" $((end - STAGE_STARTS[at])) $(((end - STAGE_STARTS[at]) * 100 / total))
  done
  printf '%-52s %7d  load %s, %s cores\n' total "$SECONDS" "$(cut -d' ' -f1-3 /proc/loadavg)" "$(nproc)"
}

# print_test_counts FOLDER...: tests of each kind, by the label that CMake gave them.
print_test_counts() {
  local folder rows
  printf '\n%-20s %-14s %6s\n' build 'kind of test' tests
  for folder in "$@"; do
    # A Qt Test program is one test to CTest; it counts its functions and rows itself. (Asking CTest ends its log.)
    rows=$(awk -v build="$(basename "$folder")" '/^Totals: / { rows += $2 } END { if (rows) printf "%-20s %-14s %6d\n", build, "  window rows", rows }' \
      "$folder/Testing/Temporary/LastTest.log")
    ctest --test-dir "$folder" --show-only=json-v1 | python3 -c '
import collections, json, sys
kinds = collections.Counter()
for test in json.load(sys.stdin)["tests"]:
    labels = [label for row in test.get("properties", []) if row["name"] == "LABELS" for label in row["value"]]
    kinds[labels[0] if labels else "other"] += 1
for kind, count in sorted(kinds.items()):
    print(f"{sys.argv[1]:20} {kind:14} {count:6}")
' "$(basename "$folder")"
    [[ -z $rows ]] || printf '%s\n' "$rows"
  done
}
