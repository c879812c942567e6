#!/usr/bin/env bash
# Makes the documents' picture of the main window anew from the demo home that scripts/run.sh made.
set -euo pipefail
cd "$(dirname "$0")/.."

. scripts/environment.sh
home=$PWD/demo-home
[[ -f $home/.made ]] || { echo "Run scripts/run.sh first: it makes the demo home." >&2; exit 1; }
mkdir -p docs/screenshots
QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES=default.warning=false \
  build/release/bin/attendance --home "$home" --screenshot docs/screenshots/main-window.png
