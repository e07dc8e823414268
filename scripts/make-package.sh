#!/usr/bin/env bash
# Packs a staged per-user bundle into the package archive that the launcher
# unpacks into ~/.Drovia/Drovia.app:
#   make-package.sh <staged bundle folder> <output .vpk> [format]
# The archive is a zip with deflate: the launcher's counting pass reads only
# its central directory, so the second pass over the package costs next to
# nothing, and every libarchive reads it (docs/performance.md has the
# measurements). Folders come first and the version file last, so an
# interrupted unpack never looks like a complete installation.
set -euo pipefail

# Formats the benchmarks compare; docs/performance.md has the numbers.
case "${3:-zip}" in
    zip)        FORMAT=(--format zip --options zip:compression=deflate) ;;
    zip-stored) FORMAT=(--format zip --options zip:compression=store) ;;
    tar.gz)     FORMAT=(--format pax --gzip) ;;
    tar.xz)     FORMAT=(--format pax --xz) ;;
    tar.zst)    FORMAT=(--format pax --zstd) ;;
    *)          FORMAT=() ;;
esac
if [ $# -lt 2 ] || [ $# -gt 3 ] || [ ${#FORMAT[@]} -eq 0 ]; then
    echo "usage: $0 <staged bundle folder> <output .vpk> [zip|zip-stored|tar.gz|tar.xz|tar.zst]" >&2
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
bsdtar -c -n "${FORMAT[@]}" -f "$OUT.part" -C "$STAGE" -T "$LIST"
mv "$OUT.part" "$OUT"
