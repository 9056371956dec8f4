#pragma once

#include "CoreMinimal.h"
#include "Editor/Transactor.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "HeadlessEditorSession.h"
#include "InputCoreTypes.h"
#include "LevelDriver.h"
#include "Layout/Geometry.h"
#include "SLivestreamWizard.h"
#include "WidgetDriver.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

/** A Livestream Wizard in a running headless editor, reached through the widgets a user sees. */
class FWizardHarness
{
public:
	explicit FWizardHarness(const FHeadlessEditorOptions& Options = FHeadlessEditorOptions())
		: Session(Options)
		, Wizard(SNew(SLivestreamWizard))
	{
	}

	FHeadlessEditorSession Session;
	TSharedRef<SLivestreamWizard> Wizard;

	TSharedRef<SComboBox<TSharedPtr<FString>>> GetCombo() const
	{
		return FWidgetDriver::Find<SComboBox<TSharedPtr<FString>>>(Wizard, TEXT("SComboBox")).ToSharedRef();
	}
	TSharedRef<SCheckBox> GetOutput(const TCHAR* Caption) const
	{
		return FWidgetDriver::Find<SCheckBox>(Wizard, TEXT("SCheckBox"), FString(Caption)).ToSharedRef();
	}
	TSharedRef<SEditableTextBox> GetNameBox() const
	{
		return FWidgetDriver::Find<SEditableTextBox>(Wizard, TEXT("SEditableTextBox")).ToSharedRef();
	}
	TSharedRef<SButton> GetCreateButton() const
	{
		return FWidgetDriver::Find<SButton>(Wizard, TEXT("SButton"), FString(TEXT("Create"))).ToSharedRef();
	}
	/** The done page's button: the last button of the wizard (the combo box holds one too). */
	TSharedRef<SButton> GetRestartButton() const
	{
		return StaticCastSharedRef<SButton>(FWidgetDriver::FindAllWidgets(Wizard, TEXT("SButton")).Last());
	}
	/** The text block right after the one showing Label, in tree order. */
	TSharedRef<STextBlock> GetTextBlockAfter(const FString& Label) const
	{
		const TArray<TSharedRef<SWidget>> Blocks = FWidgetDriver::FindAllWidgets(Wizard, TEXT("STextBlock"));
		for (int32 Index = 0; Index + 1 < Blocks.Num(); ++Index)
		{
			if (StaticCastSharedRef<STextBlock>(Blocks[Index])->GetText().ToString().Equals(Label))
			{
				return StaticCastSharedRef<STextBlock>(Blocks[Index + 1]);
			}
		}
		checkf(false, TEXT("No text block follows the label"));
		return StaticCastSharedRef<STextBlock>(Blocks[0]);
	}
	TSharedRef<STextBlock> GetOutputWarning() const { return GetTextBlockAfter(TEXT("Virtual Webcam")); }
	TSharedRef<STextBlock> GetNameWarning() const { return GetTextBlockAfter(TEXT("3. Set Livestream Name:")); }
	/** The done page's result line: the text block before the restart button's label. */
	TSharedRef<STextBlock> GetDoneText() const
	{
		const TArray<TSharedRef<SWidget>> Blocks = FWidgetDriver::FindAllWidgets(Wizard, TEXT("STextBlock"));
		return StaticCastSharedRef<STextBlock>(Blocks[Blocks.Num() - 2]);
	}
	TSharedRef<STextBlock> GetDoneButtonText() const
	{
		const TArray<TSharedRef<SWidget>> Blocks = FWidgetDriver::FindAllWidgets(Wizard, TEXT("STextBlock"));
		return StaticCastSharedRef<STextBlock>(Blocks.Last());
	}

	FString GetSelectedCapture() const { return *GetCombo()->GetSelectedItem(); }
	void PickCapture(const FString& Option) const
	{
		for (const TSharedPtr<FString>& Item : FWidgetDriver::GetComboOptions(GetCombo()))
		{
			if (Item->Equals(Option))
			{
				FWidgetDriver::PickComboItem(GetCombo(), Item);
			}
		}
	}
	void Tick(const TCHAR* Caption) const { FWidgetDriver::ToggleCheckBox(GetOutput(Caption)); }
	void SetName(const FString& Name) const { FWidgetDriver::TypeText(GetNameBox(), FText::FromString(Name), ETextCommit::Default); }
	bool ClickCreate() const { return FWidgetDriver::Click(GetCreateButton()); }
	bool ClickRestart() const { return FWidgetDriver::Click(GetRestartButton()); }
	/** An Enter that reaches the wizard, as one the name box let through would. */
	FReply PressKeyOnWizard(const FKey& Key) const { return Wizard->OnKeyDown(FGeometry(), FKeyEvent(Key, FModifierKeysState(), 0, false, 0, 0)); }

	bool IsCreatorPageShown() const { return FWidgetDriver::IsShown(GetCreateButton()); }
	bool IsDonePageShown() const { return FWidgetDriver::IsShown(GetRestartButton()); }

	/** Ticks Caption, names the livestream and presses Create. */
	void Create(const FString& Name, const TCHAR* Caption = TEXT("Spout")) const
	{
		if (!GetOutput(Caption)->IsChecked())
		{
			Tick(Caption);
		}
		SetName(Name);
		ClickCreate();
	}
};
