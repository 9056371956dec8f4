#include "Report.h"

#include "CastellanEditorStyle.h"
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
		TArray<FName> Keys;
		static_cast<const FSlateStyleSet*>(Style)->GetBrushKeys(Keys);
		AppendLine(Out, 1, FString::Printf(TEXT("Style set \"%s\": %d brushes"), *Style->GetStyleSetName().ToString(), Keys.Num()));
	}

	void DescribeTab(FString& Out)
	{
		const TSharedPtr<const FTabSpawnerEntry> Spawner = FWidgetDriver::FindNomadTabSpawner(TEXT("LivestreamWizard"));
		if (!Spawner.IsValid())
		{
			return;
		}
		AppendLine(Out, 1, FString::Printf(TEXT("Nomad tab \"LivestreamWizard\": \"%s\", tooltip \"%s\", icon %s"), *Spawner->GetDisplayName().ToString(), *Spawner->GetTooltipText().ToString(), *Spawner->GetIcon().GetStyleName().ToString()));
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
}

FString CastellanReport::DescribeRegistrations()
{
	FString Out;
	AppendLine(Out, 0, TEXT("Registered by CastellanEditor:"));
	DescribeStyle(Out);
	DescribeTab(Out);
	DescribeCustomisations(Out);
	return Out;
}
