#!/usr/bin/env bash
# Regenerates ui-client/launcher/translations/enu.ts from the string table.
# Run it after changing an English text; translators start from its output.
#
# lupdate extracts the texts; the English catalogue then translates every
# text to itself. The file is written from scratch each time so that texts
# removed from the table do not linger as obsolete entries.
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
SOURCE="$ROOT/ui-client/launcher/strtable.cpp"
TARGET="$ROOT/ui-client/launcher/translations/enu.ts"
LUPDATE="${LUPDATE:-lupdate}"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# No -target-language: the catalogue must not name a language, or lrelease
# would add a language section to the compiled catalogue.
"$LUPDATE" -silent -locations none -no-obsolete "$SOURCE" -ts "$work/enu.ts"

# lupdate writes the source escaped for XML already, so copying it verbatim
# into the translation keeps the escaping intact.
perl -0pi -e 's{<source>(.*?)</source>(\s*)<translation type="unfinished"></translation>}{<source>$1</source>$2<translation>$1</translation>}gs' \
    "$work/enu.ts"

if grep -q 'type="unfinished"' "$work/enu.ts"; then
    echo "generate-english-catalogue: some messages were left untranslated" >&2
    exit 1
fi

mv "$work/enu.ts" "$TARGET"
echo "wrote $TARGET ($(grep -c '<message>' "$TARGET") messages)"
