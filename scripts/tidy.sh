#!/usr/bin/env bash
# tidy.sh [FILE REGEX]: clang-tidy over every source of ours, with the checks of .clang-tidy. What moc and uic
# make is read but not judged.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source scripts/build.sh

# Without the headers of Clang the checks go through foreign code as well: three times as long for the same findings.
scope=()
if clang_headers=$(llvm-config-14 --includedir 2> /dev/null) && [[ -d $clang_headers/clang-tidy ]]; then
  module=$PWD/build/tidy/own_code.so
  if [[ ! $module -nt scripts/tidy/own_code.cpp ]]; then
    mkdir -p build/tidy
    g++ -std=c++17 -O1 -fPIC -shared -fno-rtti -isystem "$clang_headers" scripts/tidy/own_code.cpp -o "$module"
  fi
  scope=("-load=$module")
fi

# tidy BUILD FILE-REGEX CHECKS [OPTION...]: the checks are added to those of .clang-tidy.
tidy() {
  local folder=$1 files=$2 checks=$3
  shift 3
  python3 scripts/tidy/tidy.py "$folder" "$files" "${scope[@]}" "-checks=$checks${scope:+,house-own-code}" "$@"
}

configure release build/release
build build/release
configure fuzz build/fuzz
if (($# > 0)); then
  tidy build/release "$1" ""
  exit
fi
tidy build/release "^$PWD/(app|cli|fee_model|localization|notepad|support|window)/.*\\.cpp$" ""
# A third of the time goes to following paths through the code. Tests and benchmarks are not worth it: they run.
tidy build/release "^$PWD/(bench|tests)/.*\\.cpp$" "-clang-analyzer-*"
tidy build/fuzz "^$PWD/fuzz/.*\\.cpp$" ""
# What is compiled for Windows alone, with the headers of the compiler that does it.
configure windows build/windows
headers=$(x86_64-w64-mingw32-g++-posix -print-file-name=include/c++)
tidy build/windows "^$PWD/.*_windows\\.cpp$" "" -extra-arg=--target=x86_64-w64-mingw32 \
  "-extra-arg=-isystem$headers" "-extra-arg=-isystem$headers/x86_64-w64-mingw32"
