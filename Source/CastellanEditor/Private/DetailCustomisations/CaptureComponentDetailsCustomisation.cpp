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
	/** The offered flags as indices of the 5.1 engine build, in the order they are offered. */
	const uint32 OfferedShowFlags[] = {
		131, // Atmosphere
		132, // Cloud
		125, // BSP
		15, // Decals
		121, // Fog
		119, // Landscape
		77, // Particles
		79, // SkeletalMeshes
		118, // StaticMeshes
		81, // Translucency
		96, // Lighting
		97, // DeferredLighting
		69, // NaniteMeshes
		70, // InstancedStaticMeshes
		71, // InstancedFoliage
		75, // InstancedGrass
		148, // Paper2DSprites
		135, // TextRender
		14, // AmbientOcclusion
		76, // DynamicShadows
		143, // SkyLighting
		157, // VolumetricFog
		6, // AmbientCubemap
		155, // DistanceFieldAO
		68, // LightFunctions
		129, // LightShafts
		0, // PostProcessing
		49, // ReflectionEnvironment
		54, // ScreenSpaceReflections
		67, // TexturedLightProfiles
		4, // AntiAliasing
		5, // TemporalAA
		34, // MotionBlur
		1, // Bloom
		2, // LocalExposure
		7, // EyeAdaptation
		123, // Game
		44, // ToneCurve
		178, // PathTracing
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
	for (const uint32 FlagIndex : OfferedShowFlags)
	{
		const FString FlagName = FEngineShowFlags::FindNameByIndex(FlagIndex);
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
			DetailGroup.AddWidgetRow()
				.NameContent()
					[SNew(STextBlock)
							.Text(FText::FromString(GetDisplayName(FlagName)))
							.Font(FCoreStyle::GetDefaultFontStyle("Regular", 8))]
				.ValueContent()
					[SNew(SCheckBox)
							.IsChecked(this, &FCaptureComponentDetailsCustomisation::GetShowFlagCheckState, FlagName)
							.OnCheckStateChanged(this, &FCaptureComponentDetailsCustomisation::OnShowFlagCheckStateChanged, FlagName)];
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
