#!/usr/bin/env bash
# described_session.sh FOLDER: the manual page and the completions in FOLDER are understood by those who read them.
set -euo pipefail
folder=$1

fail() {
  echo "FAILED: $1" >&2
  exit 1
}

# complete_bash WORD...: what bash offers for the last word.
complete_bash() (
  # shellcheck source=/dev/null
  source "$folder/tessaloom-fees.bash"
  # shellcheck disable=SC2034 # read by the function
  COMP_WORDS=("$@")
  # shellcheck disable=SC2034
  COMP_CWORD=$(($# - 1))
  COMPREPLY=()
  _tessaloom_fees
  echo "${COMPREPLY[*]-}"
)

# complete_fish LINE: what fish offers, the words alone.
complete_fish() {
  XDG_CONFIG_HOME=$work XDG_DATA_HOME=$work HOME=$work fish --no-config -c \
    "source '$folder/tessaloom-fees.fish'; complete -C '$1'" | cut -f 1 | sort | paste -sd ' '
}

# expect WHAT GOT WANTED
expect() { [[ $2 == "$3" ]] || fail "$1: \"$2\" instead of \"$3\""; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

expect "bash completes a command" "$(complete_bash tessaloom-fees sing)" "single"
expect "bash completes an option" "$(complete_bash tessaloom-fees single --gallery-)" "--gallery-featured"
expect "bash completes a value" "$(complete_bash tessaloom-fees single --real-estate 30)" "30-day-auction 30-day-ad"
expect "bash offers an option to its commands alone" "$(complete_bash tessaloom-fees payment --gallery)" ""
expect "fish completes an option" "$(complete_fish 'tessaloom-fees single --gallery-')" "--gallery-featured"
expect "fish completes a value" "$(complete_fish 'tessaloom-fees multiple --site u')" "uk us"
zsh -n "$folder/_tessaloom-fees" || fail "zsh does not read its completion"
expect "the manual page is set without a warning" "$(groff -man -Tutf8 -P-cbou -ww "$folder/tessaloom-fees.1" 2>&1 > "$work/page")" ""
text=$(tr -s ' \n' ' ' < "$work/page")
[[ $text == *"--pictures 1|2|3|4|5|pack"* ]] || fail "the manual page lacks an option"
[[ $text == *"not the prices of today"* ]] || fail "the manual page does not say whose prices these are"
