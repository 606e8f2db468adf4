#!/usr/bin/env bash
# Installs the dependencies, builds the library and runs the demo program.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
cmake --preset release
cmake --build --preset release --target kels_demo
./build/release/examples/kels_demo
