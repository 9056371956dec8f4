#include "Components/SceneCaptureComponent.h"

#include "Components/SceneCaptureComponent2D.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"

USceneCaptureComponent::USceneCaptureComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, PrimitiveRenderMode(ESceneCapturePrimitiveRenderMode::PRM_RenderScenePrimitives)
	, bCaptureEveryFrame(true)
	, bCaptureOnMovement(true)
	, ShowFlags(ESFIM_Game)
{
	// Features a scene capture does not want, as the engine switches them off.
	ShowFlags.SetMotionBlur(false);
	ShowFlags.SetSeparateTranslucency(false);
	ShowFlags.SetHMDDistortion(false);
	ShowFlags.SetOnScreenDebug(false);
}

void USceneCaptureComponent::UpdateShowFlags()
{
	if (const USceneCaptureComponent* Archetype = Cast<USceneCaptureComponent>(GetArchetype()))
	{
		ShowFlags = Archetype->ShowFlags;
	}

	for (const FEngineShowFlagsSetting& ShowFlagSetting : ShowFlagSettings)
	{
		const int32 SettingIndex = FEngineShowFlags::FindIndexByName(*ShowFlagSetting.ShowFlagName);
		if (SettingIndex != INDEX_NONE)
		{
			ShowFlags.SetSingleFlag(SettingIndex, ShowFlagSetting.Enabled);
		}
	}
}

void USceneCaptureComponent::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);

	const FName MemberPropertyName = PropertyChangedEvent.GetMemberPropertyName();
	if (MemberPropertyName == FName(TEXT("ShowFlagSettings")) || MemberPropertyName.IsNone())
	{
		UpdateShowFlags();
	}
}

USceneCaptureComponent2D::USceneCaptureComponent2D(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, FOVAngle(90.0f)
	, OrthoWidth(512.0f)
{
	// Older 2D captures rendered without these, and the engine keeps that default.
	ShowFlags.SetTemporalAA(false);
	ShowFlags.SetMotionBlur(false);
}
