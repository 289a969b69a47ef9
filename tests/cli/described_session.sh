#!/usr/bin/env bash
# described_session.sh FOLDER: the manual page and the completions in FOLDER are understood by those who read them.
set -euo pipefail
folder=$1

failures=0
# expect RULE GOT WANTED
expect() {
  [[ $2 == "$3" ]] && return
  echo "FAILED: $1: \"$2\" instead of \"$3\"" >&2
  failures=$((failures + 1))
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
touch "$work/listing one.csv"
mkdir "$work/site-functions"
cp "$folder/_tessaloom-fees" "$work/site-functions"

# complete_bash WORD...: what bash offers for the last word.
complete_bash() (
  # shellcheck source=/dev/null
  source "$folder/tessaloom-fees.bash"
  # Outside a line that is typed it is refused.
  # shellcheck disable=SC2317 # called by the function
  compopt() { COMPREPLY+=("compopt $*"); }
  # shellcheck disable=SC2034 # read by the function
  COMP_WORDS=(tessaloom-fees "$@")
  # shellcheck disable=SC2034
  COMP_CWORD=$#
  COMPREPLY=(stale)
  _tessaloom_fees
  echo "${COMPREPLY[*]-}"
)

# complete_fish WORDS: what fish offers for the last of them, the words alone.
complete_fish() {
  cd "$work"
  XDG_CONFIG_HOME=$work XDG_DATA_HOME=$work HOME=$work fish --no-config -c \
    "source '$folder/tessaloom-fees.fish'; complete -C 'tessaloom-fees $1'" | cut -f 1 | sort | paste -sd ' '
}

# typed SHELL WORDS: the arguments that the program gets when this is typed into the shell, then tab and return.
typed() {
  local shell=(bash --norc -i) set_up="source '$folder/tessaloom-fees.bash'"
  if [[ $1 == zsh ]]; then
    shell=(zsh -f -i)
    set_up="fpath=('$work/site-functions' \$fpath); autoload -Uz compinit; compinit -u -D; unsetopt auto_remove_slash"
  fi
  printf '%s\n' "$set_up; tessaloom-fees() { printf '<%s>' \"\$@\" > got; }" "tessaloom-fees $2"$'\t' exit > "$work/keys"
  (
    cd "$work"
    : > got
    TERM=dumb HISTFILE='' script -qc "${shell[*]}" /dev/null < keys > /dev/null 2>&1 || true
    cat got
  )
}

while IFS='|' read -r rule words offered; do
  read -ra typed_words <<< "$words"
  [[ $words == *' ' ]] && typed_words+=('')
  expect "bash: $rule" "$(complete_bash "${typed_words[@]}")" "${offered//~/|}"
done <<'END'
a command|sing|single
no option where a command stands| |single multiple payment billpoint batch schedule compare whatif solve bands curve
an option before any command|--|--help --version
an option|single --gallery-|--gallery-featured
an option of its commands alone|payment --gallery|
all options where nothing else stands|schedule |--help --site --format --decimal --version
a value|single --real-estate 30|30-day-auction 30-day-ad
a value behind a sign|single --site = u|us uk
all values behind a sign|single --site =|us uk ca de
a value behind a sign that parts no words|single --site=u|--site=us --site=uk
a format|curve --format |text csv json
a decimal sign|batch --decimal |. ,
what moves|solve --vary o|opening-and-closing
nothing for an amount|single --opening |
nothing for a count|multiple --sold |
nothing for a rate|payment --rate |
nothing for a share|solve --margin |
nothing for an amount behind a sign|single --opening =|
nothing behind the sign of a flag|single --bold =|
a file for a file|curve --svg |compopt -o default
a file behind a sign|curve --svg =|compopt -o default
a file for an argument|batch |compopt -o default
a file behind the options|batch --excel li|compopt -o default
options behind a dash|batch --|--help --decimal --excel --from-window --version
END

while IFS='|' read -r rule words offered; do
  expect "fish: $rule" "$(complete_fish "$words")" "$offered"
done <<'END'
a command|sing|single
an option before any command|--|--help --version
an option|single --gallery-|--gallery-featured
a value|multiple --site u|uk us
a value behind a sign|multiple --site=u|--site=uk --site=us
a format|single --format |csv json text
nothing for an amount|single --opening |
nothing where no argument stands|single |
a file for a file|curve --svg l|listing one.csv
a file for an argument|batch l|listing one.csv
options behind a dash|batch --|--decimal --excel --from-window --help --version
no option of a command that is a value|whatif --kind multiple --vary|
END

while IFS='|' read -r rule words arguments; do
  for shell in bash zsh; do
    expect "$shell, typed: $rule" "$(typed "$shell" "$words")" "$arguments"
  done
done <<'END'
a command|sing|<single>
an option before any command|--ver|<--version>
an option|single --gallery-|<single><--gallery-featured>
a value|single --site d|<single><--site><de>
a value behind a sign|single --site=d|<single><--site=de>
a file for an argument|batch l|<batch><listing one.csv>
a file for a file|curve --svg l|<curve><--svg><listing one.csv>
a file behind a sign|curve --svg=l|<curve><--svg=listing one.csv>
no file for an amount|single --opening l|<single><--opening><l>
no file behind the sign of an amount|single --opening=l|<single><--opening=l>
no file where no argument stands|single l|<single><l>
END

page=$(groff -man -Tutf8 -P-cbou -ww -rLL=200n "$folder/tessaloom-fees.1" 2>&1)
while IFS='|' read -r rule line; do
  [[ $page == *"$line"* ]] && continue
  echo "FAILED: manual page: $rule: no \"$line\" in" "$page" >&2
  failures=$((failures + 1))
done <<'END'
an option and its values|       --vary closing|opening-and-closing
an option by its letter|       -h, --help
an argument in the synopsis|       tessaloom-fees batch [OPTION]... FILE
an argument among the options|       FILE   a CSV file, or - for the standard input.
the long help of a command|       The first line names the columns
whose prices these are|They are not the prices of today.
that names may be cut short|       The name of an option may be cut short as long as no other begins so: --op 9.99.
an exit status|       1      some rows could not be priced, nothing was found or the answer could not be written.
an example|       tessaloom-fees batch listings.csv > priced.csv
END
expect "manual page: no warning" "$(groff -man -Tutf8 -ww -z "$folder/tessaloom-fees.1" 2>&1)" ""
for section in COMMANDS OPTIONS "EXIT STATUS" EXAMPLES; do
  grep -qx "$section" <<< "$page" || expect "manual page: a section" "" "$section"
done
grep -qx "   solve" <<< "$page" || expect "manual page: a command below them" "" "solve"

((failures == 0))
