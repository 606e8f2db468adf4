#!/usr/bin/env bash
# Installs the dependencies, builds the library and runs the demo program.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
cmake --preset release -DKELS_BUILD_TESTS=OFF
cmake --build --preset release --target kels_demo
./build/release/examples/kels_demo
