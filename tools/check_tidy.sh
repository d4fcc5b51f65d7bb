#!/usr/bin/env bash
# Runs clang-tidy on the sources of the cores, the windows and the programs. Files that did not change since they last
# passed are left out: their preprocessed text is what counts, kept as a hash in the build folder.
#
#   tools/check_tidy.sh BUILD_FOLDER
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/dev}
stamps=$build/tidy
mkdir -p "$stamps"
config=$(sha1sum .clang-tidy | cut -c1-40)

one() {
  local file=$1 hash stamp
  hash=$({ echo "$3"; cat "$file"; sed -n 's/^#include "\(.*\)"/src\/\1/p' "$file" | xargs -r cat 2>/dev/null; } | sha1sum | cut -c1-40)
  stamp=$2/$hash
  [ -e "$stamp" ] && return 0
  clang-tidy --quiet -p "$4" "$file" 2>/dev/null || { echo "clang-tidy: $file" >&2; return 1; }
  touch "$stamp"
}
export -f one
find src apps -name '*.cpp' | sort | xargs -P 2 -I{} bash -c 'one "$@"' _ {} "$stamps" "$config" "$build"
