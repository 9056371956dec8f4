#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Layout/Children.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

DECLARE_DELEGATE_OneParam(FOnIsOpenChanged, bool);

/**
 * A PopupAnchor summons a Popup relative to its content.
 * Summoning a popup relative to the cursor is accomplished via the application.
 */
class SLATE_API SMenuAnchor : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SMenuAnchor)
		: _Content()
		, _Padding(FMargin(0.0f))
		, _OnGetMenuContent()
		, _Placement(MenuPlacement_BelowAnchor)
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(FMargin, Padding)
		/** Static menu content to use when the delegate used when OnGetMenuContent is not defined. */
		SLATE_ARGUMENT(TSharedPtr<SWidget>, MenuContent)
		/** Optional delegate to call to get the menu content when the menu is opened */
		SLATE_EVENT(FOnGetContent, OnGetMenuContent)
		/** Called when the menu is opened or closed */
		SLATE_EVENT(FOnIsOpenChanged, OnMenuOpenChanged)
		/** Where the menu opens relative to the anchor */
		SLATE_ATTRIBUTE(EMenuPlacement, Placement)
		SLATE_END_ARGS()

		virtual ~SMenuAnchor();

		/**
		 * Construct this widget
		 *
		 * @param	InArgs	The declaration data for this widget
		 */
		void Construct(const FArguments& InArgs);

		SMenuAnchor();

		/** See Content Slot attribute */
		void SetContent(TSharedRef<SWidget> InContent);

		/** See MenuContent attribute */
		virtual void SetMenuContent(TSharedRef<SWidget> InMenuContent);

		/** See Placement attribute */
		void SetMenuPlacement(TAttribute<EMenuPlacement> InMenuPlacement) { Placement = InMenuPlacement; }

		/**
		 * Open or close the popup
		 *
		 * @param InIsOpen  If true, open the popup. Otherwise close it.
		 * @param bFocusMenu Shoudl we focus the popup as soon as it opens?
		 */
		virtual void SetIsOpen(bool InIsOpen, const bool bFocusMenu = true, const int32 FocusUserIndex = 0);

		/** @return true if the popup is open; false otherwise. */
		bool IsOpen() const;

	protected:
		// SWidget interface
		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
		virtual FVector2D ComputeDesiredSize(float) const override;
		virtual FChildren* GetChildren() override;
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
		// End of SWidget interface

	protected:
		/** Static menu content to use when the delegate used when OnGetMenuContent is not defined. */
		TSharedPtr<SWidget> MenuContent;

		/** MenuContent plus any extra wrapping widgets needed by the menu infrastructure. */
		TSharedPtr<SWidget> WrappedContent;

		/** Callback invoked when the popup is being summoned */
		FOnGetContent OnGetMenuContent;

		/** Callback invoked when the popup is being opened/closed */
		FOnIsOpenChanged OnMenuOpenChanged;

		/** Where the menu opens relative to the anchor */
		TAttribute<EMenuPlacement> Placement;

		/** The anchor's content, and the slot a menu shown in the anchor's own window would use. */
		TPanelChildren<FBasicLayoutWidgetSlot> Children;

	private:
		/** Whether the menu is open: it shows in a window of its own, apart from the anchor's. */
		bool bIsMenuOpen;
};
