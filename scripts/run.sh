#!/usr/bin/env bash
# Installs what is needed, builds, makes a demo home once and starts the main window on it. Without a display it
# prints the cards, last month's report and a screenshot into the demo home instead.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install_packages.sh build run
. scripts/environment.sh
bin=build/release/bin
home=$PWD/demo-home

if [[ ! -f build/release/build.ninja ]]; then cmake --preset release >/dev/null; fi
cmake --build --preset release --target attendance attendancectl attendance-station

# The mark tells a finished home from one that an interrupted run left behind.
if [[ ! -f $home/.made ]]; then
  rm -rf "$home"
  "$bin/attendancectl" --home "$home" demo
  touch "$home/.made"
fi
mkdir -p "$home/station"
cp -n "$home/attendance.ini" "$home/station/"
echo "The window that scans cards: $bin/attendance-station --home $home/station"

if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
  exec "$bin/attendance" --home "$home" "$@"
fi
"$bin/attendancectl" --home "$home" cards --all --out "$home/cards.pdf"
month=$(date -d "$(date +%Y-%m-01) -1 day" +%Y-%m)
"$bin/attendancectl" --home "$home" month "$month" --out "$home/month.pdf"
QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES=default.warning=false "$bin/attendance" --home "$home" --screenshot "$home/main-window.png"
echo "There is no display. The cards are in $home/cards.pdf, the report of $month in $home/month.pdf, a screenshot is in $home/main-window.png."
