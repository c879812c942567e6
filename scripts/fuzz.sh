#!/usr/bin/env bash
# Feeds damaged files to the reader of recordsets. Usage: fuzz.sh [SECONDS], 30 unless told. What it finds is left in
# build/fuzz as crash-*; findings become tests.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install_packages.sh build fuzz
. scripts/environment.sh
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzz_persisted_reader
mkdir -p build/fuzz/corpus
exec build/fuzz/bin/fuzz_persisted_reader -max_total_time="${1:-30}" -max_len=8192 -rss_limit_mb=1024 \
  -dict=tests/fuzz/words.dict -artifact_prefix=build/fuzz/ -print_final_stats=1 -verbosity=0 \
  build/fuzz/corpus tests/fuzz/corpus
