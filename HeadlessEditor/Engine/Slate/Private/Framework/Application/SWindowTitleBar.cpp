#include "Framework/Application/SWindowTitleBar.h"

#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SSpacer.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>

namespace
{
	/**
	 * The room the application's icon takes at the left of the bar. Its image is the engine's logo,
	 * which the headless editor does not draw, so the room stays empty.
	 */
	const FVector2D AppIconSize(24.0, 24.0);
	const FMargin AppIconPadding(4.0f, 4.0f, 0.0f, 0.0f);

	/** A button the window does not offer shows its disabled image, which the window styles leave empty. */
	TSharedRef<SWidget> MakeWindowButton(const FButtonStyle& Style, bool bEnabled)
	{
		return SNew(SButton).IsFocusable(false).IsEnabled(bEnabled).ContentPadding(0.0f).ButtonStyle(&FCoreStyle::Get(), "NoBorder")[SNew(SImage).Image(bEnabled ? &Style.Normal : &Style.Disabled)];
	}
}

void SWindowTitleBar::Construct(const FArguments& InArgs, const TSharedRef<SWindow>& InWindow, const TSharedPtr<SWidget>& InCenterContent, EHorizontalAlignment InCenterContentAlignment)
{
	OwnerWindowPtr = InWindow;
	Style = InArgs._Style;
	ShowAppIcon = InArgs._ShowAppIcon;
	// Unless told otherwise the bar shows the window's title, as it is each time it is drawn.
	Title = InArgs._Title.IsSet() ? InArgs._Title : TAttribute<FText>::CreateSP(&InWindow.Get(), &SWindow::GetTitle);
	ChildSlot[SNew(SBorder).Padding(0.0f).Visibility(EVisibility::SelfHitTestInvisible).BorderImage(&Style->ActiveTitleBrush)[MakeTitleBarContent(InCenterContent, InCenterContentAlignment)]];
}

void SWindowTitleBar::MakeTitleBarContentWidgets(TSharedPtr<SWidget>& OutLeftContent, TSharedPtr<SWidget>& OutRightContent)
{
	const TSharedPtr<SWindow> OwnerWindow = OwnerWindowPtr.Pin();
	const bool bHasWindowButtons = OwnerWindow->HasCloseBox() || OwnerWindow->HasMinimizeBox() || OwnerWindow->HasMaximizeBox();
	OutLeftContent = ShowAppIcon && bHasWindowButtons ? StaticCastSharedRef<SWidget>(SNew(SBox).Padding(AppIconPadding)[SNew(SSpacer).Size(AppIconSize)]) : StaticCastSharedRef<SWidget>(SNew(SSpacer));
	if (!bHasWindowButtons)
	{
		OutRightContent = SNew(SSpacer);
		return;
	}
	OutRightContent = SNew(SBox)
						  .Visibility(EVisibility::SelfHitTestInvisible)
						  .Padding(FMargin(2.0f, 0.0f, 0.0f, 0.0f))
							  [SNew(SHorizontalBox) + SHorizontalBox::Slot().VAlign(VAlign_Top).AutoWidth()[MakeWindowButton(Style->MinimizeButtonStyle, OwnerWindow->HasMinimizeBox())] + SHorizontalBox::Slot().VAlign(VAlign_Top).AutoWidth()[MakeWindowButton(Style->MaximizeButtonStyle, OwnerWindow->HasMaximizeBox())] + SHorizontalBox::Slot().VAlign(VAlign_Top).AutoWidth()[MakeWindowButton(Style->CloseButtonStyle, OwnerWindow->HasCloseBox())]];
}

TSharedRef<SWidget> SWindowTitleBar::MakeTitleBarContent(TSharedPtr<SWidget> CenterContent, EHorizontalAlignment CenterContentAlignment)
{
	TSharedPtr<SWidget> LeftContent;
	TSharedPtr<SWidget> RightContent;
	MakeTitleBarContentWidgets(LeftContent, RightContent);
	if (!CenterContent.IsValid())
	{
		CenterContent = SNew(SBox).HAlign(HAlign_Center).Visibility(EVisibility::SelfHitTestInvisible).Padding(FMargin(5.0f, 2.0f, 5.0f, 2.0f))[SNew(STextBlock).Visibility(EVisibility::SelfHitTestInvisible).TextStyle(&Style->TitleTextStyle).Text(Title)];
	}

	// A centred title is centred on the whole bar: both sides take the room of the wider one.
	LeftContent->SlatePrepass(1.0f);
	RightContent->SlatePrepass(1.0f);
	FVector2D LeftSize = LeftContent->GetDesiredSize();
	FVector2D RightSize = RightContent->GetDesiredSize();
	if (CenterContentAlignment == HAlign_Center)
	{
		LeftSize = FVector2D(std::max(LeftSize.X, RightSize.X), std::max(LeftSize.Y, RightSize.Y));
		RightSize = LeftSize;
	}

	return SNew(SBox).Visibility(EVisibility::SelfHitTestInvisible)
		[SNew(SOverlay).Visibility(EVisibility::SelfHitTestInvisible) + SOverlay::Slot()[SNew(SHorizontalBox).Visibility(EVisibility::SelfHitTestInvisible) + SHorizontalBox::Slot().AutoWidth()[SNew(SSpacer).Size(LeftSize)] + SHorizontalBox::Slot().HAlign(CenterContentAlignment).VAlign(VAlign_Center).FillWidth(1.0f)[CenterContent.ToSharedRef()] + SHorizontalBox::Slot().AutoWidth()[SNew(SSpacer).Size(RightSize)]] + SOverlay::Slot()[SNew(SHorizontalBox).Visibility(EVisibility::SelfHitTestInvisible) + SHorizontalBox::Slot().AutoWidth().HAlign(HAlign_Left).VAlign(VAlign_Top)[LeftContent.ToSharedRef()] + SHorizontalBox::Slot().FillWidth(1.0f) + SHorizontalBox::Slot().AutoWidth().HAlign(HAlign_Right).VAlign(VAlign_Top)[RightContent.ToSharedRef()]]];
}
