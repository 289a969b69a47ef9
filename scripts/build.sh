# shellcheck shell=bash
# Sourced by run, test and .ci/run: configures and builds, as little as possible.

# configure PRESET FOLDER [OPTION...]: configures unless ninja can do it itself. A folder that was configured
# for another place of the sources (a moved checkout) starts afresh.
configure() {
  local preset=$1 folder=$2 fresh=()
  shift 2
  if [[ -f $folder/CMakeCache.txt ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$folder/CMakeCache.txt"; then
    fresh=(--fresh)
  elif [[ -f $folder/build.ninja ]]; then
    return 0
  fi
  cmake --preset "$preset" -B "$folder" "${fresh[@]}" "$@"
}

# build FOLDER [TARGET...]
build() {
  local folder=$1
  shift
  cmake --build "$folder" --parallel "${JOBS:-$(nproc)}" --target "${@:-all}"
}
