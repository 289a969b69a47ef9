# shellcheck shell=bash disable=SC2034 # the lists are for those who source this
# Sourced by run, test and .ci/run: installs the Debian packages that are missing, and says so.

# What building and running the calculator and the command need; links are opened by xdg-utils. The compiler's cache
# and the fast linker may be absent elsewhere.
RUN_PACKAGES=(cmake ninja-build g++ ccache mold qt6-base-dev qt6-tools-dev qt6-l10n-tools libcups2-dev librsvg2-bin
  libcli11-dev libfmt-dev nlohmann-json3-dev xdg-utils)

# What a virtual display needs: the server, a window manager, the questions asked to both, the screenshot.
DISPLAY_PACKAGES=(xvfb openbox x11-utils xdotool imagemagick)

# What ./test needs beyond that: test and benchmark libraries; for the end-to-end tests the clipboard, a print
# server with the filters and the printer that a job passes, and what reads the printed pages; and who reads the
# help pages, the manual page and the completions.
TEST_PACKAGES=(libgtest-dev libbenchmark-dev libcsv-dev xclip
  cups-daemon cups-client cups-filters printer-driver-cups-pdf poppler-utils
  fish groff-base openssl strace tidy time zsh)

# What .ci/run needs beyond that: the fuzz targets' compiler, format, tidy (the headers of Clang let it look at our own
# code alone) and script checks.
CI_PACKAGES=(clang libclang-rt-14-dev clang-format clang-tidy libclang-14-dev llvm-14-dev python3 shellcheck git)

# What .ci/run needs to build for Windows and to run that: the compiler, Windows, the sources of the test library.
WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix wine64 libgtest-dev)

# ensure_packages WHY PACKAGE...: one question to dpkg when everything is there, one line and apt when not.
ensure_packages() {
  local why=$1 installed package missing=()
  shift
  if ! command -v dpkg-query > /dev/null; then
    echo "Not a Debian system: make sure that the counterparts of these packages are installed: $*" >&2
    return 0
  fi
  installed=" $(dpkg-query -W -f='${Package}=${db:Status-Status} ' -- "$@" 2> /dev/null || true)"
  for package in "$@"; do
    [[ $installed == *" $package=installed "* ]] || missing+=("$package")
  done
  ((${#missing[@]} == 0)) || install_packages "$why" "${missing[@]}"
}

install_packages() {
  local why=$1 log status=0 as_root=()
  shift
  if ((EUID != 0)); then
    if ! command -v sudo > /dev/null; then
      echo "Missing $why: $*. Install as root: apt-get install $*" >&2
      return 1
    fi
    as_root=(sudo)
    [[ -t 0 ]] || as_root+=(-n) # nobody is there to type a password
  fi
  echo "Installing what is missing $why: $*"
  log=$(mktemp)
  {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300 update &&
      "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 \
        install --no-install-recommends "$@"
  } > "$log" 2>&1 < /dev/null || status=$?
  if ((status != 0)); then
    cat "$log" >&2
    echo "The packages could not be installed: $*" >&2
  fi
  rm -f "$log"
  return "$status"
}
