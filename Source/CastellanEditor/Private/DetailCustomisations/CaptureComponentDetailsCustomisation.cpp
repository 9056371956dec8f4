// Copyright Nimbrel. All Rights Reserved.

#include "DetailCustomisations/CaptureComponentDetailsCustomisation.h"

#include "Components/SceneCaptureComponent.h"
#include "DetailCategoryBuilder.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "IDetailGroup.h"
#include "Kyro360CaptureComponent.h"
#include "KyroCaptureComponent.h"
#include "PropertyHandle.h"
#include "ShowFlags.h"
#include "Styling/CoreStyle.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "CaptureComponentDetailsCustomisation"

namespace
{
	/** The offered flags in offering order, by name: each engine version numbers them its own way. */
	const FEngineShowFlags::EShowFlag OfferedShowFlags[] = {
		FEngineShowFlags::SF_Atmosphere,
		FEngineShowFlags::SF_Cloud,
		FEngineShowFlags::SF_BSP,
		FEngineShowFlags::SF_Decals,
		FEngineShowFlags::SF_Fog,
		FEngineShowFlags::SF_Landscape,
		FEngineShowFlags::SF_Particles,
		FEngineShowFlags::SF_SkeletalMeshes,
		FEngineShowFlags::SF_StaticMeshes,
		FEngineShowFlags::SF_Translucency,
		FEngineShowFlags::SF_Lighting,
		FEngineShowFlags::SF_DeferredLighting,
		FEngineShowFlags::SF_NaniteMeshes,
		FEngineShowFlags::SF_InstancedStaticMeshes,
		FEngineShowFlags::SF_InstancedFoliage,
		FEngineShowFlags::SF_InstancedGrass,
		FEngineShowFlags::SF_Paper2DSprites,
		FEngineShowFlags::SF_TextRender,
		FEngineShowFlags::SF_AmbientOcclusion,
		FEngineShowFlags::SF_DynamicShadows,
		FEngineShowFlags::SF_SkyLighting,
		FEngineShowFlags::SF_VolumetricFog,
		FEngineShowFlags::SF_AmbientCubemap,
		FEngineShowFlags::SF_DistanceFieldAO,
		FEngineShowFlags::SF_LightFunctions,
		FEngineShowFlags::SF_LightShafts,
		FEngineShowFlags::SF_PostProcessing,
		FEngineShowFlags::SF_ReflectionEnvironment,
		FEngineShowFlags::SF_ScreenSpaceReflections,
		FEngineShowFlags::SF_TexturedLightProfiles,
		FEngineShowFlags::SF_AntiAliasing,
		FEngineShowFlags::SF_TemporalAA,
		FEngineShowFlags::SF_MotionBlur,
		FEngineShowFlags::SF_Bloom,
		FEngineShowFlags::SF_LocalExposure,
		FEngineShowFlags::SF_EyeAdaptation,
		FEngineShowFlags::SF_Game,
		FEngineShowFlags::SF_ToneCurve,
		FEngineShowFlags::SF_PathTracing,
	};

	constexpr int32 NumShowFlagGroups = SFG_Max;

	using FShowFlagSettings = TArray<FEngineShowFlagsSetting>;

	FString GetDisplayName(const FString& FlagName)
	{
		FText DisplayName;
		FEngineShowFlags::FindShowFlagDisplayName(FlagName, DisplayName);
		return DisplayName.ToString();
	}

	/** Flag names match ignoring case; testing the length first keeps the per-frame scans cheap. */
	bool IsSameFlagName(const FString& A, const FString& B)
	{
		return A.Len() == B.Len() && A == B;
	}

	const FEngineShowFlagsSetting* FindOverride(const FShowFlagSettings& Settings, const FString& FlagName)
	{
		return Settings.FindByPredicate([&FlagName](const FEngineShowFlagsSetting& Setting)
			{ return IsSameFlagName(Setting.ShowFlagName, FlagName); });
	}
}

TSharedRef<IDetailCustomization> FCaptureComponentDetailsCustomisation::MakeInstance()
{
	return MakeShareable(new FCaptureComponentDetailsCustomisation);
}

void FCaptureComponentDetailsCustomisation::CustomizeDetails(IDetailLayoutBuilder& DetailBuilder)
{
	IDetailCategoryBuilder& Category = DetailBuilder.EditCategory(TEXT("Nimbrel Capture Settings"), FText::GetEmpty(), ECategoryPriority::Default);

	ShowFlagSettingsProperty = DetailBuilder.GetProperty(TEXT("ShowFlagSettings"), UKyroCaptureComponent::StaticClass());
	if (!ShowFlagSettingsProperty->IsValidHandle())
	{
		ShowFlagSettingsProperty = DetailBuilder.GetProperty(TEXT("ShowFlagSettings"), UKyro360CaptureComponent::StaticClass());
	}
	if (!ShowFlagSettingsProperty->IsValidHandle())
	{
		ShowFlagSettingsProperty = DetailBuilder.GetProperty(TEXT("ShowFlagSettings"));
		check(ShowFlagSettingsProperty->IsValidHandle());
	}
	DetailBuilder.HideProperty(ShowFlagSettingsProperty);

	// Adding the category's own properties first keeps them, in their order, above the show-flag groups.
	TArray<TSharedRef<IPropertyHandle>> AllProperties;
	Category.GetDefaultProperties(AllProperties, true, true);
	for (const TSharedRef<IPropertyHandle>& Property : AllProperties)
	{
		if (Property->GetProperty() != ShowFlagSettingsProperty->GetProperty())
		{
			Category.AddProperty(Property);
		}
	}

	TArray<FString> FlagsByGroup[NumShowFlagGroups];
	for (const FEngineShowFlags::EShowFlag Flag : OfferedShowFlags)
	{
		const FString FlagName = FEngineShowFlags::FindNameByIndex(Flag);
		if (FlagName.IsEmpty())
		{
			continue;
		}
		FlagsByGroup[FEngineShowFlags::FindShowFlagGroup(*FlagName)].Add(FlagName);
	}

	for (int32 Group = 0; Group < NumShowFlagGroups; ++Group)
	{
		TArray<FString>& Flags = FlagsByGroup[Group];
		if (Flags.IsEmpty())
		{
			continue;
		}

		Flags.Sort([](const FString& A, const FString& B)
			{ return GetDisplayName(A).Compare(GetDisplayName(B), ESearchCase::IgnoreCase) < 0; });

		const FText Label = GetGroupLabel(Group);
		IDetailGroup& DetailGroup = Category.AddGroup(FName(*Label.ToString()), Label, true, false);
		for (const FString& FlagName : Flags)
		{
			// clang-format off
			DetailGroup.AddWidgetRow()
			.NameContent()
			[
				SNew(STextBlock)
				.Text(FText::FromString(GetDisplayName(FlagName)))
				.Font(FCoreStyle::GetDefaultFontStyle("Regular", 8))
			]
			.ValueContent()
			[
				SNew(SCheckBox)
				.IsChecked(this, &FCaptureComponentDetailsCustomisation::GetShowFlagCheckState, FlagName)
				.OnCheckStateChanged(this, &FCaptureComponentDetailsCustomisation::OnShowFlagCheckStateChanged, FlagName)
			];
			// clang-format on
		}
	}
}

ECheckBoxState FCaptureComponentDetailsCustomisation::GetShowFlagCheckState(FString FlagName) const
{
	TArray<const void*> RawData;
	ShowFlagSettingsProperty->AccessRawData(RawData);
	TArray<UObject*> OuterObjects;
	ShowFlagSettingsProperty->GetOuterObjects(OuterObjects);

	TOptional<bool> Result;
	for (int32 Index = 0; Index < RawData.Num(); ++Index)
	{
		bool bValue = false;
		const FShowFlagSettings* Settings = static_cast<const FShowFlagSettings*>(RawData[Index]);
		if (const FEngineShowFlagsSetting* Override = Settings ? FindOverride(*Settings, FlagName) : nullptr)
		{
			bValue = Override->Enabled;
		}
		else if (OuterObjects.IsValidIndex(Index))
		{
			bValue = GetArchetypeDefault(OuterObjects[Index], FlagName);
		}

		if (!Result.IsSet())
		{
			Result = bValue;
		}
		else if (Result.GetValue() != bValue)
		{
			return ECheckBoxState::Undetermined;
		}
	}
	return Result.Get(false) ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
}

void FCaptureComponentDetailsCustomisation::OnShowFlagCheckStateChanged(ECheckBoxState NewState, FString FlagName)
{
	if (NewState == ECheckBoxState::Undetermined)
	{
		return;
	}

	ShowFlagSettingsProperty->NotifyPreChange();

	TArray<void*> RawData;
	ShowFlagSettingsProperty->AccessRawData(RawData);
	TArray<UObject*> OuterObjects;
	ShowFlagSettingsProperty->GetOuterObjects(OuterObjects);

	const bool bNewValue = NewState == ECheckBoxState::Checked;
	for (int32 Index = 0; Index < RawData.Num(); ++Index)
	{
		FShowFlagSettings* Settings = static_cast<FShowFlagSettings*>(RawData[Index]);
		if (!Settings)
		{
			continue;
		}

		const bool bDefault = GetArchetypeDefault(OuterObjects.IsValidIndex(Index) ? OuterObjects[Index] : nullptr, FlagName);
		if (bNewValue == bDefault)
		{
			// An override equal to the default is never kept.
			Settings->RemoveAll([&FlagName](const FEngineShowFlagsSetting& Setting)
				{ return IsSameFlagName(Setting.ShowFlagName, FlagName); });
			continue;
		}

		FEngineShowFlagsSetting* Override = Settings->FindByPredicate([&FlagName](const FEngineShowFlagsSetting& Setting)
			{ return IsSameFlagName(Setting.ShowFlagName, FlagName); });
		if (!Override)
		{
			Override = &Settings->AddDefaulted_GetRef();
			Override->ShowFlagName = FlagName;
		}
		Override->Enabled = bNewValue;
	}

	ShowFlagSettingsProperty->NotifyPostChange(EPropertyChangeType::ValueSet);
	ShowFlagSettingsProperty->NotifyFinishedChangingProperties();
}

bool FCaptureComponentDetailsCustomisation::GetArchetypeDefault(const UObject* OuterObject, const FString& FlagName)
{
	if (!OuterObject)
	{
		return false;
	}

	const UObject* Archetype = OuterObject->GetArchetype();
	const int32 FlagIndex = FEngineShowFlags::FindIndexByName(*FlagName);
	if (!Archetype || FlagIndex == INDEX_NONE)
	{
		return false;
	}

	if (const UKyroCaptureComponent* CaptureArchetype = Cast<UKyroCaptureComponent>(Archetype))
	{
		return CaptureArchetype->ShowFlags.GetSingleFlag(FlagIndex);
	}
	if (const UKyro360CaptureComponent* Capture360Archetype = Cast<UKyro360CaptureComponent>(Archetype))
	{
		return Capture360Archetype->ShowFlags.GetSingleFlag(FlagIndex);
	}
	return false;
}

FText FCaptureComponentDetailsCustomisation::GetGroupLabel(int32 Group)
{
	switch (Group)
	{
		case SFG_Normal:
			return LOCTEXT("CommonShowFlagHeader", "General Show Flags");
		case SFG_Advanced:
			return LOCTEXT("AdvancedShowFlagsMenu", "Advanced Show Flags");
		case SFG_PostProcess:
			return LOCTEXT("PostProcessShowFlagsMenu", "Post Processing Show Flags");
		case SFG_CollisionModes:
			return LOCTEXT("CollisionModesShowFlagsMenu", "Collision Modes Show Flags");
		case SFG_Developer:
			return LOCTEXT("DeveloperShowFlagsMenu", "Developer Show Flags");
		case SFG_Visualize:
			return LOCTEXT("VisualizeShowFlagsMenu", "Visualize Show Flags");
		case SFG_LightTypes:
			return LOCTEXT("LightTypesShowFlagsMenu", "Light Types Show Flags");
		case SFG_LightingComponents:
			return LOCTEXT("LightingComponentsShowFlagsMenu", "Lighting Components Show Flags");
		case SFG_LightingFeatures:
			return LOCTEXT("LightingFeaturesShowFlagsMenu", "Lighting Features Show Flags");
		case SFG_Lumen:
			return LOCTEXT("LumenFeaturesShowFlagsMenu", "Lumen Show Flags");
		case SFG_Hidden:
		case SFG_Transient:
			// Transient flags are hidden ones too, so the two groups share a label.
			return LOCTEXT("HiddenShowFlagsMenu", "Hidden Show Flags");
		default:
			return LOCTEXT("MiscFlagsMenu", "Misc Show Flags");
	}
}

#undef LOCTEXT_NAMESPACE
