#!/usr/bin/env bash
# Installs what building, running and testing Purrlodge needs on Debian or
# Ubuntu, asking apt only for packages that are missing.
set -euo pipefail

packages=(cmake ninja-build g++ libgtest-dev qt6-base-dev xvfb xauth xdotool imagemagick
          poppler-utils fonts-liberation fonts-liberation2 fonts-dseg fonts-blankenburg libbenchmark-dev
          clang libclang-rt-dev)

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing+=("$package")
done

if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
