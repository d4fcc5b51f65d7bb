#!/usr/bin/env bash
# Runs clang-tidy on the sources of the cores, the windows and the programs, as the build folder compiles them. A file
# that passed is left out next time, as long as neither it nor any header nor the list of checks has changed.
#
#   tools/check_tidy.sh BUILD_FOLDER
set -euo pipefail
cd "$(dirname "$0")/.."
export build=${1:-build/dev}
export stamps=$build/tidy
mkdir -p "$stamps"
common=$({ cat .clang-tidy; find src apps -name '*.h' | sort | xargs cat; } | sha1sum)
export common

one() {
  local file=$1 stamp output
  stamp=$stamps/$({ echo "$common"; cat "$file"; } | sha1sum | cut -c1-40)
  [ -e "$stamp" ] && return 0
  # clang does not know all of the warnings that g++ is asked for.
  if output=$(clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option -p "$build" "$file" 2>&1); then
    touch "$stamp"
  else
    printf '%s\n' "$output" >&2
    return 1
  fi
}
export -f one
find src apps -name '*.cpp' | sort | xargs -P 2 -I{} bash -c 'one {}'
