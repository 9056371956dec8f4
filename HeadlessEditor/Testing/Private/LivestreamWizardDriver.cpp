#include "LivestreamWizardDriver.h"

#include "Framework/Docking/TabManager.h"
#include "HeadlessMenus.h"
#include "Styling/SlateColor.h"
#include "ToolMenus.h"
#include "WidgetDriver.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** Where the plugin puts its combo button, and the tab its menu entry opens. */
	const TCHAR* const ToolbarMenu = TEXT("LevelEditor.LevelEditorToolBar.AssetsToolBar");
	const TCHAR* const ToolbarSection = TEXT("Content");
	const TCHAR* const ToolbarButton = TEXT("Nimbrel");
	const TCHAR* const WizardMenuEntry = TEXT("Livestream Wizard");
	const TCHAR* const WizardTabId = TEXT("LivestreamWizard");

	TSharedRef<SButton> FindCreateButton(const TSharedRef<SWidget>& Wizard)
	{
		const TSharedPtr<SButton> Button = FWidgetDriver::Find<SButton>(Wizard, TEXT("SButton"), FString(TEXT("Create")));
		checkf(Button.IsValid(), TEXT("The wizard has no Create button"));
		return Button.ToSharedRef();
	}

	void PickCapture(const TSharedRef<SWidget>& Wizard, const FString& Capture)
	{
		const TSharedRef<SComboBox<TSharedPtr<FString>>> Combo = FWidgetDriver::Find<SComboBox<TSharedPtr<FString>>>(Wizard, TEXT("SComboBox")).ToSharedRef();
		const TSharedPtr<FString>* Option = FWidgetDriver::GetComboOptions(Combo).FindByPredicate([&Capture](const TSharedPtr<FString>& Item)
			{ return Item->Equals(Capture); });
		checkf(Option, TEXT("The wizard offers no capture type \"%s\""), *Capture);
		FWidgetDriver::PickComboItem(Combo, *Option);
	}

	/** Ticks an output as a user told to tick it does: a box already ticked is left alone. */
	void TickOutput(const TSharedRef<SWidget>& Wizard, const FString& Caption)
	{
		const TSharedPtr<SCheckBox> CheckBox = FWidgetDriver::Find<SCheckBox>(Wizard, TEXT("SCheckBox"), Caption);
		checkf(CheckBox.IsValid(), TEXT("The wizard offers no output \"%s\""), *Caption);
		if (!CheckBox->IsChecked())
		{
			FWidgetDriver::ToggleCheckBox(CheckBox.ToSharedRef());
		}
	}

	/** The wizard's complaints and errors are the lines it shows in red. */
	bool IsShownInRed(const STextBlock& Text)
	{
		const FSlateColor Color = FWidgetDriver::GetColor(Text);
		return Color.IsColorSpecified() && Color.GetSpecifiedColor() == FLinearColor::Red;
	}

	TArray<TSharedRef<STextBlock>> GetShownTexts(const TSharedRef<SWidget>& Wizard)
	{
		TArray<TSharedRef<STextBlock>> Shown;
		for (const TSharedRef<SWidget>& Widget : FWidgetDriver::FindAllWidgets(Wizard, TEXT("STextBlock")))
		{
			const TSharedRef<STextBlock> Text = StaticCastSharedRef<STextBlock>(Widget);
			if (FWidgetDriver::IsShown(Widget) && !Text->GetText().IsEmpty())
			{
				Shown.Add(Text);
			}
		}
		return Shown;
	}
}

TSharedRef<SDockTab> FLivestreamWizardDriver::OpenFromToolbar()
{
	UToolMenu* Toolbar = UToolMenus::Get()->FindMenu(ToolbarMenu);
	FToolMenuSection* Section = Toolbar ? Toolbar->FindSection(ToolbarSection) : nullptr;
	FToolMenuEntry* Button = Section ? Section->FindEntry(ToolbarButton) : nullptr;
	checkf(Button, TEXT("The level editor's toolbar has no \"%s\" button"), ToolbarButton);
	const bool bClicked = UE::Headless::ClickMenuEntry(Button->ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.Execute(), WizardMenuEntry);
	checkf(bClicked, TEXT("The toolbar button's menu has no enabled \"%s\" entry"), WizardMenuEntry);
	const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(WizardTabId));
	checkf(Tab.IsValid(), TEXT("The menu entry opened no \"%s\" tab"), WizardTabId);
	return Tab.ToSharedRef();
}

FIntPoint FLivestreamWizardDriver::GetDockedTabSize()
{
	return FIntPoint(560, 512);
}

void FLivestreamWizardDriver::FillIn(const TSharedRef<SWidget>& Wizard, const FLivestreamWizardInputs& Inputs)
{
	if (Inputs.Capture.IsSet())
	{
		PickCapture(Wizard, Inputs.Capture.GetValue());
	}
	for (const FString& Output : Inputs.Outputs)
	{
		TickOutput(Wizard, Output);
	}
	if (Inputs.Name.IsSet())
	{
		// The user then clicks elsewhere (Create, say), which commits the name and takes the focus.
		FWidgetDriver::TypeText(FWidgetDriver::Find<SEditableTextBox>(Wizard, TEXT("SEditableTextBox")).ToSharedRef(), FText::FromString(Inputs.Name.GetValue()), ETextCommit::OnUserMovedFocus);
	}
}

bool FLivestreamWizardDriver::PressCreate(const TSharedRef<SWidget>& Wizard)
{
	return FWidgetDriver::Click(FindCreateButton(Wizard));
}

FLivestreamWizardResult FLivestreamWizardDriver::ReadResult(const TSharedRef<SWidget>& Wizard)
{
	FLivestreamWizardResult Result;
	const TArray<TSharedRef<STextBlock>> Shown = GetShownTexts(Wizard);
	if (FWidgetDriver::IsShown(FindCreateButton(Wizard)))
	{
		Result.Outcome = ELivestreamWizardOutcome::Refused;
		for (const TSharedRef<STextBlock>& Text : Shown)
		{
			if (IsShownInRed(*Text))
			{
				Result.Warnings.Add(Text->GetText().ToString());
			}
		}
		return Result;
	}
	// The done page ends the tree: its result line, then its button's label.
	const STextBlock& ResultLine = *Shown[Shown.Num() - 2];
	Result.DoneText = ResultLine.GetText().ToString();
	Result.Outcome = IsShownInRed(ResultLine) ? ELivestreamWizardOutcome::Failed : ELivestreamWizardOutcome::Created;
	return Result;
}
