#!/usr/bin/env bash
# tidy.sh [FILE REGEX]: clang-tidy over every source of ours, with the checks of .clang-tidy. What moc and uic
# make is read but not judged.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source scripts/build.sh

# tidy BUILD FILE-REGEX: prints what it finds, and nothing of the thousands of warnings in foreign headers.
tidy() {
  run-clang-tidy -quiet -p "$1" -j "${JOBS:-$(nproc)}" "$2" 2> /dev/null
}

configure release build/release
build build/release
configure fuzz build/fuzz
tidy build/release "${1:-^$PWD/(app|bench|cli|fee_model|localization|notepad|support|tests|window)/.*\\.cpp$}"
tidy build/fuzz "${1:-^$PWD/fuzz/.*\\.cpp$}"
