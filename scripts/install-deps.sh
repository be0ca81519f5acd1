#!/usr/bin/env bash
# Installs the Debian 12 packages Lumaris builds and tests with. Needs root (or sudo).
set -euo pipefail
packages=(
  build-essential cmake ninja-build pkg-config dpkg-dev
  qt6-base-dev libgl1-mesa-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  libftdi1-dev librtmidi-dev
  libola-dev ola
  clang libclang-rt-14-dev
  xvfb xauth iproute2 util-linux python3
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -eq 0 ]; then exit 0; fi
sudo_cmd=""
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null 2>&1; then
    echo "Missing Debian packages and no sudo here: run once as root  su -c \"apt-get install -y ${missing[*]}\"  then again" >&2
    exit 1
  fi
  sudo_cmd="sudo"
fi
echo "Installing ${#missing[@]} Debian packages: ${missing[*]}"
$sudo_cmd apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq --no-install-recommends "${missing[@]}"
