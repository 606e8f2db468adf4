#!/usr/bin/env bash
# Builds the benchmarks (Release, -O3 -march=native peers) and runs them.
# Usage: scripts/run-bench.sh [benchmark-binary-name ...]   (default: all)
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
cmake --preset bench
cmake --build --preset bench
if [ "$#" -eq 0 ]; then
  set -- $(cd build/bench/bench && ls kels_bench_* 2>/dev/null)
fi
for b in "$@"; do
  echo "== $b"
  ./build/bench/bench/"$b"
done
