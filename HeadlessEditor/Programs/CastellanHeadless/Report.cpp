#include "Report.h"

#include "CastellanEditorStyle.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Docking/TabManager.h"
#include "HeadlessMenus.h"
#include "HeadlessTabs.h"
#include "HeadlessPropertyEditor.h"
#include "IPlacementModeModule.h"
#include "Modules/ModuleManager.h"
#include "PrintableText.h"
#include "PropertyEditorModule.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "ToolMenus.h"
#include "UObject/NameTypes.h"
#include "WidgetDriver.h"

namespace
{
	void AppendLine(FString& Out, int32 Depth, const FString& Line)
	{
		Out += FString::ChrN(Depth * 2, u' ') + Line + TEXT("\n");
	}

	/** A text from the editor, as it may be printed. */
	FString Shown(const FString& Text)
	{
		return FPrintableText::Escape(Text);
	}

	FString Shown(const FText& Text)
	{
		return Shown(Text.ToString());
	}

	FString Shown(const FName& Name)
	{
		return Shown(Name.ToString());
	}

	/** An outline made by another part of the editor, escaped line by line. */
	FString ShownLines(const FString& Outline)
	{
		TArray<FString> Lines;
		Outline.ParseIntoArray(Lines, TEXT("\n"), false);
		for (FString& Line : Lines)
		{
			Line = Shown(Line);
		}
		return FString::Join(Lines, TEXT("\n"));
	}

	void DescribeStyle(FString& Out)
	{
		const ISlateStyle* Style = FSlateStyleRegistry::FindSlateStyle(FCastellanEditorStyle::GetStyleSetName());
		if (!Style)
		{
			return;
		}
		TArray<const FSlateBrush*> Brushes;
		Style->GetResources(Brushes);
		AppendLine(Out, 1, FString::Printf(TEXT("Style set \"%s\": %d brushes"), *Shown(Style->GetStyleSetName()), Brushes.Num()));
	}

	void DescribeTab(FString& Out)
	{
		const TSharedPtr<const FTabSpawnerEntry> Spawner = UE::Headless::FindNomadTabSpawner(TEXT("LivestreamWizard"));
		if (!Spawner.IsValid())
		{
			return;
		}
		AppendLine(Out, 1, FString::Printf(TEXT("Nomad tab \"LivestreamWizard\": \"%s\", tooltip \"%s\", icon %s"), *Shown(Spawner->GetDisplayName()), *Shown(Spawner->GetTooltipText()), *Shown(Spawner->GetIcon().GetStyleName())));
	}

	void DescribeCommands(FString& Out)
	{
		TArray<TSharedPtr<FUICommandInfo>> Commands;
		FInputBindingManager::Get().GetCommandInfosFromContext(TEXT("CastellanEditor"), Commands);
		AppendLine(Out, 1, FString::Printf(TEXT("Command context \"CastellanEditor\": %d commands"), Commands.Num()));
	}

	void DescribeToolbarButton(FString& Out)
	{
		UToolMenu* Toolbar = UToolMenus::Get()->FindMenu(TEXT("LevelEditor.LevelEditorToolBar.AssetsToolBar"));
		FToolMenuSection* Section = Toolbar ? Toolbar->FindSection(TEXT("Content")) : nullptr;
		if (Section && Section->FindEntry(TEXT("Nimbrel")))
		{
			AppendLine(Out, 1, TEXT("Toolbar combo button \"Nimbrel\" in LevelEditor.LevelEditorToolBar.AssetsToolBar, section \"Content\""));
		}
	}

	void DescribePlacementCategory(FString& Out)
	{
		if (!IPlacementModeModule::IsAvailable())
		{
			return;
		}
		const FPlacementCategoryInfo* Category = IPlacementModeModule::Get().GetRegisteredPlacementCategory(TEXT("Nimbrel"));
		if (!Category)
		{
			return;
		}
		TArray<TSharedPtr<FPlaceableItem>> Items;
		IPlacementModeModule::Get().GetItemsForCategory(Category->UniqueHandle, Items);
		AppendLine(Out, 1, FString::Printf(TEXT("Placement category \"%s\" (%s): %d actor classes"), *Shown(Category->DisplayName), *Shown(Category->TagMetaData), Items.Num()));
	}

	void DescribeCustomisations(FString& Out)
	{
		const FPropertyEditorModule* PropertyEditor = FModuleManager::GetModulePtr<FPropertyEditorModule>(TEXT("PropertyEditor"));
		if (!PropertyEditor)
		{
			return;
		}
		for (const FName TypeName : UE::Headless::GetCustomizedPropertyTypeNames())
		{
			AppendLine(Out, 1, FString::Printf(TEXT("Property type customisation: %s"), *Shown(TypeName)));
		}
		for (const auto& Pair : PropertyEditor->GetClassNameToDetailLayoutNameMap())
		{
			AppendLine(Out, 1, FString::Printf(TEXT("Class customisation: %s"), *Shown(Pair.Key)));
		}
	}

	FString DescribeObjectPath(const FString& Path)
	{
		return Path.IsEmpty() ? FString(TEXT("none")) : Shown(Path);
	}

	FString DescribeVector(const FVector& Vector)
	{
		return FString::Printf(TEXT("(%.0f, %.0f, %.0f)"), Vector.X, Vector.Y, Vector.Z);
	}

	void DescribeActor(FString& Out, const FActorSnapshot& Actor)
	{
		AppendLine(Out, 1, FString::Printf(TEXT("%s (%s) at %s"), *Shown(Actor.Name), *Shown(Actor.ClassName), *DescribeVector(Actor.Location)));
		for (const FSenderSnapshot& Sender : Actor.Senders)
		{
			AppendLine(Out, 2, FString::Printf(TEXT("sender \"%s\" (standalone \"%s\"), %s, render target %s"), *Shown(Sender.Name), *Shown(Sender.StandaloneName), Sender.bEnabled ? TEXT("enabled") : TEXT("disabled"), *DescribeObjectPath(Sender.RenderTarget)));
		}
		if (Actor.OutputRenderTarget.IsSet())
		{
			AppendLine(Out, 2, FString::Printf(TEXT("render target %s"), *DescribeObjectPath(Actor.OutputRenderTarget.GetValue())));
		}
	}

	FString DescribeLevel(const FLevelSnapshot& Level)
	{
		FString Out;
		AppendLine(Out, 0, TEXT("Level:"));
		for (const FActorSnapshot& Actor : Level.Actors)
		{
			DescribeActor(Out, Actor);
		}
		AppendLine(Out, 0, TEXT("Selected:"));
		for (const FString& Name : Level.SelectedActors)
		{
			AppendLine(Out, 1, Shown(Name));
		}
		AppendLine(Out, 0, TEXT("Assets in /Game/LivestreamWizard:"));
		for (const FAssetSnapshot& Asset : Level.Assets)
		{
			AppendLine(Out, 1, FString::Printf(TEXT("%s (%s), package %s"), *Shown(Asset.Path), *Shown(Asset.ClassName), Asset.bPackageDirty ? TEXT("modified, unsaved") : TEXT("saved")));
		}
		AppendLine(Out, 0, TEXT("Undo history:"));
		for (const FString& Title : Level.UndoHistory)
		{
			AppendLine(Out, 1, FString::Printf(TEXT("\"%s\""), *Shown(Title)));
		}
		return Out;
	}

	/** The folder the wizard asks the asset tools to name its package in. */
	const TCHAR* const WizardPackageFolder = TEXT("/Game/LivestreamWizard/");
	/** The digits the asset tools may append to a package name to make it unique. */
	constexpr int32 MaxNumberingDigits = 10;

	/** Why the engine could not hold the name's package once numbered, in plain words; unset when it could. */
	TOptional<FString> DiagnoseNameLength(const FString& Name)
	{
		// Invalid characters become '_' one for one, so the name keeps its length in the package name.
		const int32 PackageNameLength = FString(WizardPackageFolder).Len() + Name.Len();
		if (PackageNameLength + MaxNumberingDigits < NAME_SIZE)
		{
			return TOptional<FString>();
		}
		return FString::Printf(TEXT("the name is too long for the engine: its package name (%s and the name) is %d characters long, and with the %d digits the asset tools may append to make it unique it reaches %d, the engine's limit for a name (NAME_SIZE)"),
			WizardPackageFolder, PackageNameLength, MaxNumberingDigits, static_cast<int32>(NAME_SIZE));
	}

	FString DescribeEditorMessage(const FEditorMessage& Message)
	{
		if (Message.Kind == FEditorMessage::EKind::MessageBox)
		{
			return TEXT("the editor showed a message box: ") + Shown(Message.Text);
		}
		const TCHAR* Level = Message.Verbosity == ELogVerbosity::Warning ? TEXT("a warning") : TEXT("an error");
		return FString::Printf(TEXT("the editor logged %s (%s): %s"), Level, *Shown(Message.Category), *Shown(Message.Text));
	}
}

FString CastellanReport::DescribeCreateResult(const FCreateResult& Result)
{
	return TEXT("After pressing Create, the wizard shows:\n") + Result.WizardOutline + TEXT("\n") + DescribeLevel(Result.Level);
}

FString CastellanReport::DescribeFailure(const FCreateResult& Result)
{
	FString Out;
	if (Result.Wizard.Outcome == ELivestreamWizardOutcome::Refused)
	{
		AppendLine(Out, 0, TEXT("the wizard refused to create the livestream; it shows:"));
		for (const FString& Warning : Result.Wizard.Warnings)
		{
			AppendLine(Out, 1, Shown(Warning));
		}
	}
	else if (Result.Wizard.Outcome == ELivestreamWizardOutcome::Failed)
	{
		AppendLine(Out, 0, FString::Printf(TEXT("the wizard failed to create the livestream; it shows \"%s\""), *Shown(Result.Wizard.DoneText)));
		for (const FEditorMessage& Message : Result.EditorMessages)
		{
			AppendLine(Out, 1, DescribeEditorMessage(Message));
		}
		if (Result.EditorMessages.IsEmpty())
		{
			const TOptional<FString> Diagnosis = DiagnoseNameLength(Result.Name);
			AppendLine(Out, 1, Diagnosis.IsSet() ? Diagnosis.GetValue() : FString(TEXT("the editor gave no reason: it showed no message box and logged no warning or error")));
		}
	}
	return Out;
}

FString CastellanReport::DescribeToolbarMenu()
{
	FString Out;
	UToolMenu* Toolbar = UToolMenus::Get()->FindMenu(TEXT("LevelEditor.LevelEditorToolBar.AssetsToolBar"));
	FToolMenuSection* Section = Toolbar ? Toolbar->FindSection(TEXT("Content")) : nullptr;
	FToolMenuEntry* Button = Section ? Section->FindEntry(TEXT("Nimbrel")) : nullptr;
	if (!Button)
	{
		AppendLine(Out, 0, TEXT("No toolbar button."));
		return Out;
	}
	AppendLine(Out, 0, FString::Printf(TEXT("Toolbar \"LevelEditor.LevelEditorToolBar.AssetsToolBar\", section \"Content\": combo button \"%s\" (style %s)"), *Shown(Button->Label.Get()), *Shown(Button->StyleNameOverride)));
	Out += ShownLines(UE::Headless::DescribeMenu(Button->ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.Execute()));
	return Out;
}

FString CastellanReport::DescribeRegistrations()
{
	FString Out;
	AppendLine(Out, 0, TEXT("Registered by CastellanEditor:"));
	DescribeStyle(Out);
	DescribeTab(Out);
	DescribeCommands(Out);
	DescribeToolbarButton(Out);
	DescribePlacementCategory(Out);
	DescribeCustomisations(Out);
	return Out;
}
