#!/usr/bin/env bash
# Installs the Debian packages that building, testing and the demo need.
# Only missing packages are installed, so a second run returns at once.
set -euo pipefail

PACKAGES=(
    build-essential cmake ninja-build pkg-config
    qtbase5-dev qttools5-dev qttools5-dev-tools
    libarchive-dev libarchive-tools libicu-dev
    googletest libgtest-dev
    xvfb x11-apps x11-utils imagemagick
    clang libclang-rt-14-dev
    python3 gnuplot-nox strace
    dpkg-dev lintian desktop-file-utils appstream
)

missing=()
for pkg in "${PACKAGES[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$pkg")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

SUDO=""
if [ "$(id -u)" -ne 0 ]; then
    SUDO="sudo"
fi

echo "Installing: ${missing[*]}"
$SUDO apt-get update -qq
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
