#!/usr/bin/env bash
# Installs what is needed, builds and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install_packages.sh build run test
. scripts/environment.sh
exec cmake --workflow --preset ci
