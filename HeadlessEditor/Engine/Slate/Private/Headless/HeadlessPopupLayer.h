#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SMenuAnchor;

/**
 * Draws its content, then the drop-downs of the open menu anchors in it where the editor would open
 * their pop-up windows. The engine shows those in windows of their own; a picture of one window
 * shows them over it.
 */
class SHeadlessPopupLayer : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SHeadlessPopupLayer)
	{
	}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** The menu windows drawn at the last paint, in the order drawn. */
	TArray<TSharedRef<SWidget>> GetDrawnWindows() const;

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	/** An open anchor, the drop-down it opened and the menu window it is shown in. */
	struct FPopup
	{
		TWeakPtr<SMenuAnchor> Anchor;
		TWeakPtr<SWidget> Content;
		TSharedPtr<SWidget> Window;
	};

	/** The menu window of an open anchor's drop-down, made once and kept while that drop-down is open. */
	TSharedRef<SWidget> FindOrMakeWindow(const TSharedRef<SMenuAnchor>& Anchor) const;

	mutable TArray<FPopup> Popups;
};
