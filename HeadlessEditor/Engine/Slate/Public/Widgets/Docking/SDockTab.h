#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

class FTabManager;

/** The kind of tab: major tabs hold tab wells, nomad tabs can go anywhere. */
enum ETabRole : uint8
{
	MajorTab,
	PanelTab,
	NomadTab,
	DocumentTab,
	NumRoles
};

/** A tab in a docking area, holding one piece of content. */
class SLATE_API SDockTab : public SBorder
{
public:
	DECLARE_DELEGATE_OneParam(FOnTabClosedCallback, TSharedRef<SDockTab>);
	DECLARE_DELEGATE_RetVal(bool, FCanCloseTab);

	SLATE_BEGIN_ARGS(SDockTab)
		: _Content()
		, _ContentPadding(FMargin(0.0f))
		, _TabRole(ETabRole::PanelTab)
		, _Label()
		, _ShouldAutosize(false)
		, _CanEverClose(true)
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		SLATE_ARGUMENT(ETabRole, TabRole)
		SLATE_ATTRIBUTE(FText, Label)
		SLATE_EVENT(FOnTabClosedCallback, OnTabClosed)
		SLATE_EVENT(FCanCloseTab, OnCanCloseTab)
		SLATE_ARGUMENT(bool, ShouldAutosize)
		SLATE_ARGUMENT(bool, CanEverClose)
		SLATE_END_ARGS()

		SDockTab();
		virtual ~SDockTab();
		void Construct(const FArguments& InArgs);

		/** What this tab shows. */
		TSharedRef<SWidget> GetContent();
		virtual void SetContent(TSharedRef<SWidget> InContent) override;

		/** The brush the docking area draws behind the tab's content. */
		const FSlateBrush* GetContentAreaBrush() const;

		ETabRole GetTabRole() const { return TabRole; }
		ETabRole GetVisualTabRole() const { return TabRole; }
		FText GetTabLabel() const { return TabLabel.Get(); }
		void SetLabel(const TAttribute<FText>& InTabLabel) { TabLabel = InTabLabel; }
		void SetOnTabClosed(const FOnTabClosedCallback& InDelegate) { OnTabClosed = InDelegate; }
		void SetCanCloseTab(const FCanCloseTab& InOnTabClosing) { OnCanCloseTab = InOnTabClosing; }

		/** Whether the tab may close now: it must be closable and its owner must agree. */
		bool CanCloseTab() const;

		/** Closes the tab if it can close; @return whether it closed. */
		bool RequestCloseTab();

		/** Draws the user's eye to the tab: its tab well flashes it. */
		void FlashTab();

		/** The tab manager that spawned this tab. */
		TSharedPtr<FTabManager> GetTabManagerPtr() const { return MyTabManager.Pin(); }
		void SetTabManager(const TSharedPtr<FTabManager>& InTabManager) { MyTabManager = InTabManager; }

	private:
		/** The tab style of the tab's role: major tabs have their own. */
		const FDockTabStyle& GetCurrentStyle() const;

		TSharedRef<SWidget> Content;
		ETabRole TabRole;
		TAttribute<FText> TabLabel;
		FOnTabClosedCallback OnTabClosed;
		FCanCloseTab OnCanCloseTab;
		bool bCanEverClose;
		TWeakPtr<FTabManager> MyTabManager;
};
