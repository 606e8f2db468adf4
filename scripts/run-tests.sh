#!/usr/bin/env bash
# Installs the dependencies, builds a configuration and runs its whole test
# suite. Usage: scripts/run-tests.sh [release|m32|asan]   (default: release)
set -euo pipefail
cd "$(dirname "$0")/.."
preset="${1:-release}"
./scripts/install-deps.sh
cmake --preset "$preset"
cmake --build --preset "$preset"
ctest --preset "$preset"
