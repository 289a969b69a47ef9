#!/usr/bin/env bash
# Refuses what the compiler and clang-tidy let pass: includes that go around the layers, calls that depend on
# the locale, files that have grown too long.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."

failures=0

# tracked PATHSPEC...: what git knows or would add, so that a file is checked before its commit.
tracked() { git ls-files -z --cached --others --exclude-standard -- "$@"; }

# refuse WHY REGEX PATHSPEC...: no line of these files may match.
refuse() {
  local why=$1 regex=$2 found
  shift 2
  found=$(tracked "$@" | xargs -0 -r grep -nHP -e "$regex" || true)
  [[ -z $found ]] && return
  printf '%s:\n%s\n\n' "$why" "$found" >&2
  failures=$((failures + 1))
}

sources_of() { printf '%s/*.h\n%s/*.cpp\n' "$1" "$1"; }

mapfile -t all < <(printf '*.h\n*.cpp\n')
refuse "Includes go by the include roots of the libraries, not by way of the folders" \
  '^\s*#\s*include\s*"[^"]*\.\./' "${all[@]}"

mapfile -t amounts < <(for folder in fee_model window cli support/registry; do sources_of "$folder"; done)
refuse "Numbers depend on the locale that is handed in, or on none, not on the process's (see fee_model/amount_text.h)" \
  '\bstd::(to_string|to_wstring|sto(i|l|ll|ul|ull|f|d|ld)|locale|setlocale|put_money|get_money)\b|\b(s|sn|f|v|vs|vsn|vf)?(print|scan)f\s*\(|\b(ato(f|i|l|ll)|strto(d|f|ld|l|ul|ll|ull)|toupper|tolower|isdigit|isspace|isalpha)\s*\(' \
  "${amounts[@]}"

mapfile -t model < <(for folder in fee_model cli support/registry; do sources_of "$folder"; done)
refuse "The fee model, the companion command and the registry know nothing of Qt" \
  '^\s*#\s*include\s*[<"]Q' "${model[@]}"

mapfile -t below < <(for folder in fee_model cli localization support notepad; do sources_of "$folder"; done)
mapfile -t window_headers < <(tracked 'window/*.h' | xargs -0 -r -n 1 basename)
# What uic makes of its forms is its own as well.
mapfile -t -O "${#window_headers[@]}" window_headers < <(tracked 'window/*.ui' | xargs -0 -r -n 1 basename | sed 's/\(.*\)\.ui$/ui_\1.h/')
refuse "Nothing below the window knows it" \
  "^\\s*#\\s*include\\s*[<\"](window/|($(IFS='|'; printf '%s' "${window_headers[*]//./\\.}"))[>\"])" "${below[@]}"

# Tables may be as long as what they list, tests as their rows.
while IFS= read -r -d '' file; do
  lines=$(wc -l < "$file")
  ((lines <= 300)) && continue
  echo "$file has $lines lines: at more than 300, split it." >&2
  failures=$((failures + 1))
done < <(tracked '*.h' '*.cpp' ':!:tests' ':!:fee_model/fee_schedule.cpp' ':!:localization/string_table.cpp')

# The scripts themselves.
mapfile -d '' -t scripts < <(tracked run test .ci/run '*.sh')
for script in "${scripts[@]}"; do bash -n "$script" || failures=$((failures + 1)); done
shellcheck -x "${scripts[@]}" || failures=$((failures + 1))

((failures == 0)) || {
  echo "lint: $failures rules broken" >&2
  exit 1
}
