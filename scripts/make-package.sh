#!/usr/bin/env bash
# Packs a staged per-user bundle into the package archive that the launcher
# unpacks into ~/.Drovia/Drovia.app:
#   make-package.sh <staged bundle folder> <output .vpk>
# The archive is a zip with deflate: quick to unpack, and its central
# directory makes counting the entries cheap. Folders come first and the
# version file last, so an interrupted unpack never looks like a complete
# installation.
set -euo pipefail

if [ $# -ne 2 ]; then
    echo "usage: $0 <staged bundle folder> <output .vpk>" >&2
    exit 2
fi
STAGE="$1"
OUT="$2"
VERSION_FILE="Contents/Resources/INFO"

if [ ! -f "$STAGE/$VERSION_FILE" ]; then
    echo "make-package: $STAGE has no $VERSION_FILE" >&2
    exit 1
fi

LIST="$(mktemp)"
trap 'rm -f "$LIST" "$OUT.part"' EXIT

(
    cd "$STAGE"
    find . -mindepth 1 -type d | sed 's|^\./||' | LC_ALL=C sort
    find . -mindepth 1 ! -type d ! -path "./$VERSION_FILE" | sed 's|^\./||' | LC_ALL=C sort
    echo "$VERSION_FILE"
) > "$LIST"

mkdir -p "$(dirname "$OUT")"
bsdtar -c -n --format zip --options zip:compression=deflate \
    -f "$OUT.part" -C "$STAGE" -T "$LIST"
mv "$OUT.part" "$OUT"
