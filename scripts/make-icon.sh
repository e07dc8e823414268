#!/usr/bin/env bash
# Draws the launcher's 72x72 icon (a blue tile with two white sync arcs) with
# ImageMagick. Run once; the PNG is committed, so the build does not need it.
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
OUT="${1:-$ROOT/ui-client/launcher/images/ico_72_drovia.png}"

convert -size 72x72 xc:none \
    -fill '#1f6fd1' -draw 'roundrectangle 2,2 69,69 14,14' \
    -fill none -stroke white -strokewidth 6 \
    -draw 'arc 18,18 54,54 200,340' \
    -draw 'arc 18,18 54,54 20,160' \
    -fill white -stroke none \
    -draw 'polygon 59,25 46,30 56,38' \
    -draw 'polygon 13,47 26,42 16,34' \
    -strip "PNG32:$OUT"
