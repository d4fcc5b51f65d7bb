#!/usr/bin/env bash
# Fails if a source file is not as clang-format would write it. With --fix it writes them.
set -euo pipefail
cd "$(dirname "$0")/.."
mode=(--dry-run --Werror)
[ "${1:-}" = --fix ] && mode=(-i)
find src apps tests bench texts -name '*.cpp' -o -name '*.h' | sort | xargs -r clang-format "${mode[@]}"
