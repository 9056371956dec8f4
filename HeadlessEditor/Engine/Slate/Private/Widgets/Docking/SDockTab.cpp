#include "Widgets/Docking/SDockTab.h"

#include "Framework/Docking/DockingState.h"
#include "Framework/Docking/TabManager.h"

SDockTab::SDockTab()
	: Content(SNullWidget::NullWidget)
	, TabRole(ETabRole::PanelTab)
	, bCanEverClose(true)
{
}

SDockTab::~SDockTab()
{
	FDockingState::Get().AttentionRequests.RemoveAll([this](const TPair<const SDockTab*, int32>& Request)
		{ return Request.Key == this; });
}

void SDockTab::Construct(const FArguments& InArgs)
{
	Content = InArgs._Content.Widget;
	TabRole = InArgs._TabRole;
	TabLabel = InArgs._Label;
	OnTabClosed = InArgs._OnTabClosed;
	OnCanCloseTab = InArgs._OnCanCloseTab;
	bCanEverClose = InArgs._CanEverClose;

	SBorder::Construct(SBorder::FArguments()
						   .Padding(InArgs._ContentPadding)
							   [Content]);
}

TSharedRef<SWidget> SDockTab::GetContent()
{
	return Content;
}

void SDockTab::SetContent(TSharedRef<SWidget> InContent)
{
	Content = InContent;
	SBorder::SetContent(InContent);
}

bool SDockTab::CanCloseTab() const
{
	return bCanEverClose && (!OnCanCloseTab.IsBound() || OnCanCloseTab.Execute());
}

bool SDockTab::RequestCloseTab()
{
	if (!CanCloseTab())
	{
		return false;
	}
	const TSharedRef<SDockTab> Self = SharedThis(this);
	OnTabClosed.ExecuteIfBound(Self);
	FDockingState::Get().RemoveLiveTab(*this);
	return true;
}

void SDockTab::FlashTab()
{
	for (TPair<const SDockTab*, int32>& Request : FDockingState::Get().AttentionRequests)
	{
		if (Request.Key == this)
		{
			++Request.Value;
			return;
		}
	}
	FDockingState::Get().AttentionRequests.Add(TPair<const SDockTab*, int32>(this, 1));
}
