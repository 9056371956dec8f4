#include "Report.h"

#include "CastellanEditorStyle.h"
#include "Editor/TransBuffer.h"
#include "Editor/Transactor.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"
#include "GameFramework/Actor.h"
#include "HeadlessMenus.h"
#include "HeadlessTabs.h"
#include "IPlacementModeModule.h"
#include "KyroMediaOutput.h"
#include "KyroNDISenderManager.h"
#include "KyroSpoutSenderManager.h"
#include "KyroVirtualWebcamOutput.h"
#include "LevelDriver.h"
#include "ToolMenus.h"
#include "UObject/Package.h"
#include "Framework/Docking/TabManager.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "WidgetDriver.h"

namespace
{
	void AppendLine(FString& Out, int32 Depth, const FString& Line)
	{
		Out += FString::ChrN(Depth * 2, u' ') + Line + TEXT("\n");
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
		AppendLine(Out, 1, FString::Printf(TEXT("Style set \"%s\": %d brushes"), *Style->GetStyleSetName().ToString(), Brushes.Num()));
	}

	void DescribeTab(FString& Out)
	{
		const TSharedPtr<const FTabSpawnerEntry> Spawner = UE::Headless::FindNomadTabSpawner(TEXT("LivestreamWizard"));
		if (!Spawner.IsValid())
		{
			return;
		}
		AppendLine(Out, 1, FString::Printf(TEXT("Nomad tab \"LivestreamWizard\": \"%s\", tooltip \"%s\", icon %s"), *Spawner->GetDisplayName().ToString(), *Spawner->GetTooltipText().ToString(), *Spawner->GetIcon().GetStyleName().ToString()));
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
		AppendLine(Out, 1, FString::Printf(TEXT("Placement category \"%s\" (%s): %d actor classes"), *Category->DisplayName.ToString(), *Category->TagMetaData, Items.Num()));
	}

	void DescribeCustomisations(FString& Out)
	{
		const FPropertyEditorModule* PropertyEditor = FModuleManager::GetModulePtr<FPropertyEditorModule>(TEXT("PropertyEditor"));
		if (!PropertyEditor)
		{
			return;
		}
		for (const auto& Pair : PropertyEditor->GetGlobalPropertyTypeToLayoutMap())
		{
			AppendLine(Out, 1, FString::Printf(TEXT("Property type customisation: %s"), *Pair.Key.ToString()));
		}
		for (const auto& Pair : PropertyEditor->GetClassNameToDetailLayoutNameMap())
		{
			AppendLine(Out, 1, FString::Printf(TEXT("Class customisation: %s"), *Pair.Key.ToString()));
		}
	}

	FString DescribeObject(const UObject* Object)
	{
		return Object ? Object->GetPathName() : FString(TEXT("none"));
	}

	FString DescribeVector(const FVector& Vector)
	{
		return FString::Printf(TEXT("(%.0f, %.0f, %.0f)"), Vector.X, Vector.Y, Vector.Z);
	}

	template <typename EntryType>
	void DescribeSenders(FString& Out, const TArray<EntryType>& Senders)
	{
		for (const EntryType& Sender : Senders)
		{
			AppendLine(Out, 2, FString::Printf(TEXT("sender \"%s\" (standalone \"%s\"), %s, render target %s"), *Sender.SenderName, *Sender.StandaloneSenderName, Sender.bEnabled ? TEXT("enabled") : TEXT("disabled"), *DescribeObject(Sender.RenderTarget)));
		}
	}

	void DescribeActor(FString& Out, AActor* Actor)
	{
		AppendLine(Out, 1, FString::Printf(TEXT("%s (%s) at %s"), *Actor->GetName(), *Actor->GetClass()->GetName(), *DescribeVector(Actor->GetActorLocation())));
		if (const AKyroSpoutSenderManager* Spout = Cast<AKyroSpoutSenderManager>(Actor))
		{
			DescribeSenders(Out, Spout->Senders);
		}
		else if (const AKyroNDISenderManager* NDI = Cast<AKyroNDISenderManager>(Actor))
		{
			DescribeSenders(Out, NDI->Senders);
		}
		else if (const AKyroMediaOutput* MediaOutput = Cast<AKyroMediaOutput>(Actor))
		{
			AppendLine(Out, 2, FString::Printf(TEXT("render target %s"), *DescribeObject(MediaOutput->RenderTarget)));
		}
		else if (const AKyroVirtualWebcamOutput* Webcam = Cast<AKyroVirtualWebcamOutput>(Actor))
		{
			AppendLine(Out, 2, FString::Printf(TEXT("render target %s"), *DescribeObject(Webcam->RenderTarget)));
		}
	}
}

FString CastellanReport::DescribeLevelAndAssets()
{
	FString Out;
	AppendLine(Out, 0, TEXT("Level:"));
	for (AActor* Actor : FLevelDriver::GetActors())
	{
		DescribeActor(Out, Actor);
	}
	AppendLine(Out, 0, TEXT("Selected:"));
	for (AActor* Actor : FLevelDriver::GetSelectedActors())
	{
		AppendLine(Out, 1, Actor->GetName());
	}
	AppendLine(Out, 0, TEXT("Assets in /Game/LivestreamWizard:"));
	for (UObject* Asset : FLevelDriver::GetAssets(TEXT("/Game/LivestreamWizard")))
	{
		AppendLine(Out, 1, FString::Printf(TEXT("%s (%s), package %s"), *Asset->GetPathName(), *Asset->GetClass()->GetName(), FLevelDriver::IsPackageDirty(Asset) ? TEXT("modified, unsaved") : TEXT("saved")));
	}
	AppendLine(Out, 0, TEXT("Undo history:"));
	const UTransactor* History = FLevelDriver::GetTransactionHistory();
	for (int32 Index = 0; History && Index < History->GetQueueLength(); ++Index)
	{
		AppendLine(Out, 1, FString::Printf(TEXT("\"%s\""), *History->GetTransaction(Index)->GetTitle().ToString()));
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
	AppendLine(Out, 0, FString::Printf(TEXT("Toolbar \"LevelEditor.LevelEditorToolBar.AssetsToolBar\", section \"Content\": combo button \"%s\" (style %s)"), *Button->Label.Get().ToString(), *Button->StyleNameOverride.ToString()));
	Out += UE::Headless::DescribeMenu(Button->ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.Execute());
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
