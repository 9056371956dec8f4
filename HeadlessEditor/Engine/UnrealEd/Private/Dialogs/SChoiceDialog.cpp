#include "Dialogs/SChoiceDialog.h"

#include "Styling/AppStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SHyperlink.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Layout/SUniformGridPanel.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "Dialogs"

void SChoiceDialog::Construct(const FArguments& InArgs)
{
	MyMessage = InArgs._Message;
	TSharedPtr<SUniformGridPanel> ButtonBox;

	ChildSlot
		[SNew(SBorder)
				.BorderImage(FAppStyle::GetBrush("ToolPanel.GroupBorder"))
				.Padding(16.0f)
					[SNew(SVerticalBox) + SVerticalBox::Slot().HAlign(HAlign_Fill).VAlign(VAlign_Fill).FillHeight(1.0f).MaxHeight(550.0f)[SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Top).HAlign(HAlign_Left)[SNew(SImage).DesiredSizeOverride(FVector2D(24.0, 24.0)).Image(FAppStyle::Get().GetBrush("Icons.WarningWithColor.Large"))] + SHorizontalBox::Slot().Padding(16.0f, 0.0f, 0.0f, 0.0f)[SNew(SScrollBox) + SScrollBox::Slot().HAlign(HAlign_Left).VAlign(VAlign_Center)[SNew(STextBlock).Text(MyMessage).Font(FAppStyle::GetFontStyle("StandardDialog.LargeFont")).WrapTextAt(InArgs._WrapMessageAt)]]] + SVerticalBox::Slot().AutoHeight()[SNew(SHorizontalBox) + SHorizontalBox::Slot().FillWidth(1.0f).HAlign(HAlign_Left).VAlign(VAlign_Center)[SNew(SHyperlink).Text(NSLOCTEXT("SChoiceDialog", "CopyMessageHyperlink", "Copy Message")).ToolTipText(NSLOCTEXT("SChoiceDialog", "CopyMessageTooltip", "Copy the text in this message to the clipboard (CTRL+C)"))] + SHorizontalBox::Slot().AutoWidth().HAlign(HAlign_Right).VAlign(VAlign_Center)[SAssignNew(ButtonBox, SUniformGridPanel).SlotPadding(FMargin(16.0f, 0.0f, 0.0f, 0.0f)).MinDesiredSlotWidth(FAppStyle::Get().GetFloat("StandardDialog.MinDesiredSlotWidth")).MinDesiredSlotHeight(FAppStyle::Get().GetFloat("StandardDialog.MinDesiredSlotHeight"))]]]];

	// The first button is the primary one: what Enter would choose.
	const TArray<EAppReturnType::Type> Buttons = GetButtons(InArgs._MessageType.Get());
	for (int32 SlotIndex = 0; SlotIndex < Buttons.Num(); ++SlotIndex)
	{
		const FButtonStyle& Style = FAppStyle::Get().GetWidgetStyle<FButtonStyle>(SlotIndex == 0 ? "PrimaryButton" : "Button");
		ButtonBox->AddSlot(SlotIndex, 0)[SNew(SButton).VAlign(VAlign_Center).HAlign(HAlign_Center).ButtonStyle(&Style).Text(EAppReturnTypeToText(Buttons[SlotIndex])).OnClicked(this, &SChoiceDialog::HandleButtonClicked, Buttons[SlotIndex])];
	}
}

TArray<EAppReturnType::Type> SChoiceDialog::GetButtons(EAppMsgType::Type MessageType)
{
	switch (MessageType)
	{
		case EAppMsgType::Ok:
			return {EAppReturnType::Ok};
		case EAppMsgType::YesNo:
			return {EAppReturnType::Yes, EAppReturnType::No};
		case EAppMsgType::OkCancel:
			return {EAppReturnType::Ok, EAppReturnType::Cancel};
		case EAppMsgType::YesNoCancel:
			return {EAppReturnType::Yes, EAppReturnType::No, EAppReturnType::Cancel};
		case EAppMsgType::CancelRetryContinue:
			return {EAppReturnType::Continue, EAppReturnType::Retry, EAppReturnType::Cancel};
		case EAppMsgType::YesNoYesAllNoAll:
			return {EAppReturnType::Yes, EAppReturnType::No, EAppReturnType::YesAll, EAppReturnType::NoAll};
		case EAppMsgType::YesNoYesAllNoAllCancel:
			return {EAppReturnType::Yes, EAppReturnType::No, EAppReturnType::YesAll, EAppReturnType::NoAll, EAppReturnType::Cancel};
		case EAppMsgType::YesNoYesAll:
			return {EAppReturnType::Yes, EAppReturnType::No, EAppReturnType::YesAll};
	}
	checkf(false, TEXT("Invalid Message Type"));
	return {};
}

FText SChoiceDialog::EAppReturnTypeToText(EAppReturnType::Type ReturnType)
{
	switch (ReturnType)
	{
		case EAppReturnType::No:
			return LOCTEXT("EAppReturnTypeNo", "No");
		case EAppReturnType::Yes:
			return LOCTEXT("EAppReturnTypeYes", "Yes");
		case EAppReturnType::YesAll:
			return LOCTEXT("EAppReturnTypeYesAll", "Yes All");
		case EAppReturnType::NoAll:
			return LOCTEXT("EAppReturnTypeNoAll", "No All");
		case EAppReturnType::Cancel:
			return LOCTEXT("EAppReturnTypeCancel", "Cancel");
		case EAppReturnType::Ok:
			return LOCTEXT("EAppReturnTypeOk", "OK");
		case EAppReturnType::Retry:
			return LOCTEXT("EAppReturnTypeRetry", "Retry");
		case EAppReturnType::Continue:
			return LOCTEXT("EAppReturnTypeContinue", "Continue");
	}
	return LOCTEXT("MissingType", "MISSING RETURN TYPE");
}

FReply SChoiceDialog::HandleButtonClicked(EAppReturnType::Type InResponse)
{
	Response = InResponse;
	return FReply::Handled();
}

#undef LOCTEXT_NAMESPACE
