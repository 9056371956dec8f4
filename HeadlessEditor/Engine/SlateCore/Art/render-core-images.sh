#!/usr/bin/env bash
# Render the images of SlateCore's core style (check box marks, arrows, scroll shadows, menu, notification,
# dialog and window glyphs, class placeholders) into Content/Slate
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
render Common/chevron-right.svg 16 16 "$content/Starship/Common/chevron-right.png"
render Common/alert-triangle-large.svg 32 32 "$content/Starship/Common/alert-triangle-large.png"
render Common/check-circle-large.svg 32 32 "$content/Starship/Common/check-circle-large.png"
render Common/circle-thick.svg 32 32 "$content/Starship/Common/circle-thick.png"
render Common/hyperlink-underline.svg 16 16 "$content/Common/HyperlinkUnderline.png"
render Common/close.svg 16 16 "$content/Starship/Common/close.png"
render Common/search.svg 16 16 "$content/Starship/Common/search.png"
render Common/hyperlink-dotted.svg 16 16 "$content/Common/HyperlinkDotted.png"
render Common/default-class-16.svg 16 16 "$content/Starship/AssetIcons/Default_16.png"
render Common/default-class-64.svg 64 64 "$content/Starship/AssetIcons/Default_64.png"
render Notifications/throbber.svg 40 40 "$content/Starship/Notifications/Throbber.png"
render Notifications/watermark.svg 128 128 "$content/Starship/Notifications/Watermark.png"
render Window/close.svg 42 34 "$content/Starship/CoreWidgets/Window/close.png"
render Window/minimize.svg 42 34 "$content/Starship/CoreWidgets/Window/minimize.png"
render Window/maximize.svg 42 34 "$content/Starship/CoreWidgets/Window/maximize.png"
render PlacementBrowser/label-back.svg 18 18 "$content/Starship/PlacementBrowser/LabelBack_18x.png"

echo "Rendered 23 core style images into $content"
