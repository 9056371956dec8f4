#pragma once

#include "CoreMinimal.h"
#include "Math/IntPoint.h"

class SWidget;

/**
 * The outline of a widget tree as a user sees it in a window of a given size, one line per thing a
 * user reads or operates, indented under the widgets that hold them:
 *
 *   SCheckBox "Spout" checked at 16,291 528x18
 *
 * - Text blocks, editable texts, buttons, check boxes, combo boxes and scroll bars show as one line
 *   each, with the text they show (escaped as FPrintableText does) and a check box's state; their
 *   inner parts are not listed. A button that shows a check box, as a menu's toggle entry, says its
 *   state too.
 * - Drop-downs a pop-up layer (UE::Headless::MakePopupLayer) drew over the tree follow its content,
 *   as children of the layer.
 * - Images show when they paint with some opacity, named by their picture file if they have one.
 * - Panels that only arrange their children (boxes, overlays, borders) are left out: their children
 *   show in their place. Any other widget (a tab, the module's own widgets) shows as a heading.
 * - A collapsed or hidden widget shows as one line saying so, without its children; a disabled one
 *   says so.
 * - "at X,Y WxH" is where the widget lies in the window, in whole pixels, after laying the tree out
 *   and painting it at that size.
 */
class HEADLESSTESTING_API FViewOutline
{
public:
	static FString Describe(const TSharedRef<SWidget>& Root, FIntPoint WindowSize);
};
