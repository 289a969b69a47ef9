# shellcheck shell=bash
# Sourced by test and .ci/run.

# run_tests PRESET: all tests of a build, away from the user's own settings. Fails if there are none.
run_tests() (
  private=$(mktemp -d)
  trap 'rm -rf "$private"' EXIT
  export XDG_CONFIG_HOME=$private/config XDG_DATA_HOME=$private/data XDG_STATE_HOME=$private/state
  # Twice as many as there are cores: the longer half of them mostly waits, for windows, servers and processes.
  ctest --preset "$1" --parallel $((${JOBS:-$(nproc)} * 2)) --no-tests=error --no-label-summary
)
