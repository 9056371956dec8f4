#!/usr/bin/env bash
# Render the images of SlateCore's core style (check box marks, combo arrow, scroll shadows) into Content/Slate
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
content="$here/../Content/Slate"

command -v rsvg-convert >/dev/null || { echo "rsvg-convert missing: apt-get install librsvg2-bin" >&2; exit 1; }

# render SOURCE.svg WIDTH HEIGHT OUTPUT.png
render() {
    mkdir -p "$(dirname "$4")"
    rsvg-convert --width "$2" --height "$3" --format png "$here/$1" --output "$4"
}

render CoreWidgets/check.svg 16 16 "$content/Starship/CoreWidgets/CheckBox/check.png"
render CoreWidgets/indeterminate.svg 16 16 "$content/Starship/CoreWidgets/CheckBox/indeterminate.png"
render CoreWidgets/wide-chevron-down.svg 16 16 "$content/Starship/CoreWidgets/ComboBox/wide-chevron-down.png"
render CoreWidgets/scrollbox-shadow-top.svg 16 8 "$content/Common/ScrollBoxShadowTop.png"
render CoreWidgets/scrollbox-shadow-bottom.svg 16 8 "$content/Common/ScrollBoxShadowBottom.png"
render CoreWidgets/scrollbox-shadow-left.svg 8 16 "$content/Common/ScrollBoxShadowLeft.png"
render CoreWidgets/scrollbox-shadow-right.svg 8 16 "$content/Common/ScrollBoxShadowRight.png"

echo "Rendered 7 core style images into $content"
