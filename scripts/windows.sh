#!/usr/bin/env bash
# windows.sh: builds what needs no Qt for Windows, and runs its tests under Wine, in a Windows of the build folder's
# own. The first run makes that.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source scripts/build.sh
source scripts/run_tests.sh

configure windows build/windows
build build/windows all all_verify_interface_header_sets
run_tests windows
