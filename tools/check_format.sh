#!/bin/bash
# Fails when a C++ file is not as clang-format-19 would write it; with --fix, rewrites such files.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=(--dry-run --Werror)
[[ "${1:-}" == --fix ]] && mode=(-i)

formatter=clang-format-19
command -v "$formatter" >/dev/null || { echo "$formatter is not installed" >&2; exit 1; }
find src tests bench fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 -r -n 32 "$formatter" "${mode[@]}"
