# shellcheck shell=bash
# Sourced by run, test and .ci/run: configures and builds, as little as possible, and as fast as this machine can.

# Where ccache is, what another checkout has compiled is not compiled again: paths below the checkout count as relative
# ones, for the compiler's cache and, in messages, for whoever reads them.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

# what_speeds_up PRESET: options for CMake.
what_speeds_up() {
  local preset=$1
  if command -v ccache > /dev/null; then echo "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"; fi
  # It links in a tenth of the time; it knows nothing of Windows.
  if [[ $preset != windows ]] && command -v mold > /dev/null; then echo "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold"; fi
}

# configure PRESET FOLDER [OPTION...]: configures unless ninja can do it itself. A folder that was configured
# for another place of the sources (a moved checkout) starts afresh.
configure() {
  local preset=$1 folder=$2 fresh=() speed
  shift 2
  if [[ -f $folder/CMakeCache.txt ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$folder/CMakeCache.txt"; then
    fresh=(--fresh)
  elif [[ -f $folder/build.ninja ]]; then
    return 0
  fi
  mapfile -t speed < <(what_speeds_up "$preset")
  cmake --preset "$preset" -B "$folder" "${fresh[@]}" "${speed[@]}" "$@"
}

# build FOLDER [TARGET...]
build() {
  local folder=$1
  shift
  cmake --build "$folder" --parallel "${JOBS:-$(nproc)}" --target "${@:-all}"
}
