#!/usr/bin/env bash
# Installs every package the build, the tests, the 32-bit configuration and the
# benchmarks need, from Debian's archive. Idempotent: when every package is
# already present it does nothing and returns at once.
set -u

PKGS_NATIVE="build-essential cmake ninja-build pkgconf g++-multilib \
  libhwy-dev libgtest-dev libbenchmark-dev libfftw3-dev binutils"
PKGS_I386="libhwy-dev:i386 libgtest-dev:i386 libgomp1:i386"

SUDO=""
if [ "$(id -u)" != "0" ]; then SUDO="sudo"; fi

missing=""
for p in $PKGS_NATIVE $PKGS_I386; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing="$missing $p"
  fi
done
if [ -z "$missing" ]; then
  echo "install-deps: all packages present"
  exit 0
fi

echo "install-deps: installing$missing"
if ! dpkg --print-foreign-architectures | grep -qx i386; then
  $SUDO dpkg --add-architecture i386
fi
# A mirror that is syncing can make one index fail; the install below is what counts.
$SUDO apt-get update || echo "install-deps: apt-get update reported a problem; continuing"
export DEBIAN_FRONTEND=noninteractive
if ! $SUDO apt-get install -y --no-install-recommends $missing; then
  echo "install-deps: package installation failed" >&2
  exit 1
fi
echo "install-deps: done"
