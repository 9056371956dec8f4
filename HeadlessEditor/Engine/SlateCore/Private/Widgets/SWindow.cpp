#include "Widgets/SWindow.h"

#include "Application/SlateApplicationBase.h"
#include "Styling/AppStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/SOverlay.h"

SWindow::SWindow() = default;

SWindow::~SWindow() = default;

void SWindow::Construct(const FArguments& InArgs)
{
	check(InArgs._Style);
	Style = InArgs._Style;
	Title = InArgs._Title;
	SizingRule = InArgs._SizingRule;
	bHasCloseButton = InArgs._HasCloseButton;
	bHasMaximizeButton = InArgs._SupportsMaximize;
	bHasMinimizeButton = InArgs._SupportsMinimize;
	SetForegroundColor(FAppStyle::Get().GetSlateColor("DefaultForeground"));

	// The title bar comes from the application, which decides how title bars look; the title is
	// centred, as Windows centres the titles of its windows.
	TSharedRef<SVerticalBox> MainWindowArea = SNew(SVerticalBox).Visibility(EVisibility::SelfHitTestInvisible);
	if (InArgs._CreateTitleBar)
	{
		FWindowTitleBarArgs Args(SharedThis(this));
		Args.CenterContentAlignment = HAlign_Center;
		MainWindowArea->AddSlot().AutoHeight()[FSlateApplicationBase::Get().MakeWindowTitleBar(Args, TitleBar)];
	}
	MainWindowArea->AddSlot().FillHeight(1.0f).Expose(ContentSlot)[InArgs._Content.Widget];

	// Background, border and outline under the title bar and content.
	ChildSlot
		[SNew(SOverlay) + SOverlay::Slot()[SNew(SImage).Image(&Style->BackgroundBrush)] + SOverlay::Slot()[SNew(SImage).Image(&Style->BorderBrush)] + SOverlay::Slot().Padding(2.0f)[SNew(SImage).Image(&Style->OutlineBrush)] + SOverlay::Slot().Padding(Style->BorderPadding)[MainWindowArea]];
}

void SWindow::SetContent(TSharedRef<SWidget> InContent)
{
	(*ContentSlot)[InContent];
}

TSharedRef<const SWidget> SWindow::GetContent() const
{
	return ContentSlot->GetWidget();
}
