#!/usr/bin/env bash
# Gives a built Drovia.app another build number without compiling anything:
# the bundle's version file and the one inside its package name the new
# build, and the package is packed again around it.
#   set-build-number.sh <Drovia.app> <build number>
set -euo pipefail

if [ $# -ne 2 ] || ! [[ "$2" =~ ^[0-9]+$ ]]; then
    echo "usage: $0 <Drovia.app> <build number>" >&2
    exit 2
fi
BUNDLE="$1"
VERSION_FILE="Contents/Resources/INFO"
PACKAGE="$BUNDLE/Contents/Resources/package/drovia.vpk"

STAGE="$(mktemp -d)"
trap 'rm -rf "$STAGE"' EXIT

bsdtar -x -f "$PACKAGE" -C "$STAGE"
sed -i "s/^build_version=.*/build_version=$2/" "$STAGE/$VERSION_FILE" "$BUNDLE/$VERSION_FILE"
"$(dirname "$0")/make-package.sh" "$STAGE" "$PACKAGE"
