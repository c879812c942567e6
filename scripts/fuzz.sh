#!/usr/bin/env bash
# Feeds damaged files to the readers of recordsets and of metafiles. Usage: fuzz.sh [SECONDS], 30 for each unless told.
# What it finds is left in build/fuzz as crash-*; findings become tests.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install_packages.sh build run fuzz
. scripts/environment.sh
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzz_recordsets fuzz_metafiles

# fuzz NAME [OPTION...]
fuzz() {
  local name=$1
  shift
  mkdir -p "build/fuzz/$name"
  "build/fuzz/bin/fuzz_$name" -max_total_time="$seconds" -max_len=8192 -rss_limit_mb=1024 \
    -artifact_prefix=build/fuzz/ -print_final_stats=1 -verbosity=0 "$@" "build/fuzz/$name" "tests/fuzz/$name"
}

seconds=${1:-30}
fuzz recordsets -dict=tests/fuzz/recordsets.dict
# The fonts of the system stay loaded to the end, which is no leak of the reader.
ASAN_OPTIONS=detect_leaks=0 fuzz metafiles -detect_leaks=0
