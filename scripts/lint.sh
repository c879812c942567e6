#!/usr/bin/env bash
# Checks formatting of all files, and runs clang-tidy over them.
# Usage: lint.sh [--changed-since REVISION]   clang-tidy only on files that differ from REVISION.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install_packages.sh build test lint
. scripts/environment.sh
mapfile -t files < <(git ls-files -- 'src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp' 'bench/*.h' 'bench/*.cpp')
clang-format --dry-run -Werror "${files[@]}"

# What only clang's fuzzer compiles is not part of the build that clang-tidy reads.
apart=':!tests/fuzz'
if [[ ${1:-} == --changed-since ]]; then
  mapfile -t units < <(git diff --name-only --diff-filter=d "$2" -- 'src/*.cpp' 'tests/*.cpp' "$apart")
else
  mapfile -t units < <(git ls-files -- 'src/*.cpp' 'tests/*.cpp' "$apart")
fi
[[ ${#units[@]} -eq 0 ]] && exit 0
if [[ ! -f build/dev/compile_commands.json ]]; then cmake --preset dev >/dev/null; fi
echo "clang-tidy on ${#units[@]} files"
# clang has no use for the flags that only g++ knows, and says a line a file about warnings it hid.
printf '%s\0' "${units[@]}" |
  xargs -0 -P "$(nproc)" -n 1 clang-tidy --quiet -p build/dev --extra-arg=-Wno-unknown-warning-option \
    2> >(grep -vE '^[0-9]+ warnings? generated' >&2)
