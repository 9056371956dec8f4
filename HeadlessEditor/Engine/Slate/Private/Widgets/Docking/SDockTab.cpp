#include "Widgets/Docking/SDockTab.h"

#include "Framework/Docking/DockingState.h"
#include "Framework/Docking/TabManager.h"
#include "Styling/AppStyle.h"
#include "Styling/SlateTypes.h"

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

	// The tab stands for the docking area showing its content: the content area's brush, behind the content.
	SBorder::Construct(SBorder::FArguments()
						   .BorderImage(this, &SDockTab::GetContentAreaBrush)
						   .Padding(InArgs._ContentPadding)
							   [Content]);
}

const FDockTabStyle& SDockTab::GetCurrentStyle() const
{
	return FAppStyle::Get().GetWidgetStyle<FDockTabStyle>(GetVisualTabRole() == ETabRole::MajorTab ? "Docking.MajorTab" : "Docking.Tab");
}

const FSlateBrush* SDockTab::GetContentAreaBrush() const
{
	return &GetCurrentStyle().ContentAreaBrush;
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
