#!/usr/bin/env bash
# Render the images of SlateCore's core style (check box marks, combo arrow) into Content/Slate
# from the hand-written SVG sources next to this script.
#
# Debian package needed:
#   librsvg2-bin       (rsvg-convert: SVG -> PNG)
#
#   apt-get install -y librsvg2-bin
#
# Usage: HeadlessEditor/Engine/SlateCore/Art/render-core-images.sh   (from anywhere; repeatable)
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
content="$here/../Content/Slate/Starship/CoreWidgets"

command -v rsvg-convert >/dev/null || { echo "rsvg-convert missing: apt-get install librsvg2-bin" >&2; exit 1; }

# render SOURCE.svg SIZE OUTPUT.png
render() {
    mkdir -p "$(dirname "$3")"
    rsvg-convert --width "$2" --height "$2" --format png "$here/$1" --output "$3"
}

render CoreWidgets/check.svg 16 "$content/CheckBox/check.png"
render CoreWidgets/indeterminate.svg 16 "$content/CheckBox/indeterminate.png"
render CoreWidgets/wide-chevron-down.svg 16 "$content/ComboBox/wide-chevron-down.png"

echo "Rendered 3 core style images into $content"
