#!/usr/bin/env bash
# tidy.sh [FILE REGEX]: clang-tidy over every source of ours, with the checks of .clang-tidy. What moc and uic
# make is read but not judged.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source scripts/build.sh

# tidy BUILD FILE-REGEX [OPTION...]: prints what it finds, and nothing of the thousands of warnings in foreign
# headers.
tidy() {
  local folder=$1 files=$2
  shift 2
  run-clang-tidy -quiet -p "$folder" -j "${JOBS:-$(nproc)}" "$@" "$files" 2> /dev/null
}

configure release build/release
build build/release
configure fuzz build/fuzz
if (($# > 0)); then
  tidy build/release "$1"
  exit
fi
tidy build/release "^$PWD/(app|cli|fee_model|localization|notepad|support|window)/.*\\.cpp$"
# Half of the time goes to following paths through the code. Tests and benchmarks are not worth it: they run.
tidy build/release "^$PWD/(bench|tests)/.*\\.cpp$" '-checks=-clang-analyzer-*'
tidy build/fuzz "^$PWD/fuzz/.*\\.cpp$"
# What is compiled for Windows alone, with the headers of the compiler that does it.
configure windows build/windows
headers=$(x86_64-w64-mingw32-g++-posix -print-file-name=include/c++)
tidy build/windows "^$PWD/.*_windows\\.cpp$" -extra-arg=--target=x86_64-w64-mingw32 \
  "-extra-arg=-isystem$headers" "-extra-arg=-isystem$headers/x86_64-w64-mingw32"
