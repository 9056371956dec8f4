#include "ShowFlags.h"

#include "Containers/Map.h"
#include "HeadlessShowFlags.h"
#include "Internationalization/Internationalization.h"

namespace
{
	/** In which init modes a flag starts on; ESFIM_All0 clears every flag. */
	enum class EShowFlagDefault : uint8
	{
		On,
		Off,
		EditorOrVR,
		EditorOnly,
		GameOnly,
		VREditingOnly
	};

	struct FShowFlagInfo
	{
		const TCHAR* Name;
		EShowFlagGroup Group;
		EShowFlagDefault Default;
		bool FEngineShowFlags::*Member;
	};

	constexpr EShowFlagDefault On = EShowFlagDefault::On;
	constexpr EShowFlagDefault Off = EShowFlagDefault::Off;
	constexpr EShowFlagDefault EditorOrVR = EShowFlagDefault::EditorOrVR;
	constexpr EShowFlagDefault EditorOnly = EShowFlagDefault::EditorOnly;
	constexpr EShowFlagDefault GameOnly = EShowFlagDefault::GameOnly;
	constexpr EShowFlagDefault VREditingOnly = EShowFlagDefault::VREditingOnly;

	const FShowFlagInfo GShowFlagInfos[] = {
#define SHOWFLAG(Name, Group, DefaultRule, Key, Text) {TEXT(#Name), Group, DefaultRule, &FEngineShowFlags::Name},
#include "ShowFlagsValues.inl"
	};

	static_assert(UE_ARRAY_COUNT(GShowFlagInfos) == FEngineShowFlags::SF_FirstCustom, "one entry per built-in flag");

	bool IsOnByDefault(EShowFlagDefault Default, EShowFlagInitMode InitMode)
	{
		const bool bEditor = InitMode == ESFIM_Editor;
		const bool bVREditing = InitMode == ESFIM_VREditing;
		switch (Default)
		{
			case EShowFlagDefault::On:
				return true;
			case EShowFlagDefault::Off:
				return false;
			case EShowFlagDefault::EditorOrVR:
				return bEditor || bVREditing;
			case EShowFlagDefault::EditorOnly:
				return bEditor;
			case EShowFlagDefault::GameOnly:
				return !bEditor && !bVREditing;
			case EShowFlagDefault::VREditingOnly:
				return bVREditing;
		}
		return false;
	}

	bool GMissingFromBuild[FEngineShowFlags::SF_FirstCustom] = {};

	bool IsInBuild(uint32 Index)
	{
		return Index < FEngineShowFlags::SF_FirstCustom && !GMissingFromBuild[Index];
	}

	const TMap<FString, FText>& GetDisplayNames()
	{
		static const TMap<FString, FText> DisplayNames = []()
		{
			TMap<FString, FText> Names;
#define SHOWFLAG(Name, Group, DefaultRule, Key, Text) Names.Add(TEXT(#Name), NSLOCTEXT("UnrealEd", Key, Text));
#include "ShowFlagsValues.inl"
			// Volume classes the editor shows in the same menus, although they are not flags.
			Names.Add(TEXT("BlockingVolume"), NSLOCTEXT("UnrealEd", "BlockingVolumeSF", "Blocking"));
			Names.Add(TEXT("CullDistanceVolume"), NSLOCTEXT("UnrealEd", "CullDistanceVolumeSF", "Cull Distance"));
			Names.Add(TEXT("LevelStreamingVolume"), NSLOCTEXT("UnrealEd", "LevelStreamingVolumeSF", "Level Streaming"));
			Names.Add(TEXT("LightmassCharacterIndirectDetailVolume"), NSLOCTEXT("UnrealEd", "LightmassCharacterIndirectDetailVolumeSF", "Lightmass Character Indirect Detail"));
			Names.Add(TEXT("LightmassImportanceVolume"), NSLOCTEXT("UnrealEd", "LightmassImportanceVolumeSF", "Lightmass Importance"));
			Names.Add(TEXT("MassiveLODOverrideVolume"), NSLOCTEXT("UnrealEd", "MassiveLODOverrideVolumeSF", "Massive LOD Override"));
			Names.Add(TEXT("NavMeshBoundsVolume"), NSLOCTEXT("UnrealEd", "NavMeshBoundsVolumeSF", "NavMesh Bounds"));
			Names.Add(TEXT("NavModifierVolume"), NSLOCTEXT("UnrealEd", "NavModifierVolumeSF", "Nav Modifier"));
			Names.Add(TEXT("PainCausingVolume"), NSLOCTEXT("UnrealEd", "PainCausingVolumeSF", "Pain Causing"));
			Names.Add(TEXT("PhysicsVolume"), NSLOCTEXT("UnrealEd", "PhysicsVolumeSF", "Physics"));
			Names.Add(TEXT("PostProcessVolume"), NSLOCTEXT("UnrealEd", "PostProcessVolumeSF", "Post Process"));
			Names.Add(TEXT("PrecomputedVisibilityOverrideVolume"), NSLOCTEXT("UnrealEd", "PrecomputedVisibilityOverrideVolumeSF", "Precomputed Visibility Override"));
			Names.Add(TEXT("PrecomputedVisibilityVolume"), NSLOCTEXT("UnrealEd", "PrecomputedVisibilityVolumeSF", "Precomputed Visibility"));
			Names.Add(TEXT("AudioVolume"), NSLOCTEXT("UnrealEd", "AudioVolumeSF", "Audio"));
			Names.Add(TEXT("TriggerVolume"), NSLOCTEXT("UnrealEd", "TriggerVolumeSF", "Trigger"));
			Names.Add(TEXT("CameraBlockingVolume"), NSLOCTEXT("UnrealEd", "CameraBlockingVolumeSF", "Camera Blocking"));
			Names.Add(TEXT("HierarchicalLODVolume"), NSLOCTEXT("UnrealEd", "HierarchicalLODVolumeSF", "Hierarchical LOD"));
			Names.Add(TEXT("KillZVolume"), NSLOCTEXT("UnrealEd", "KillZVolumeSF", "Kill Z"));
			Names.Add(TEXT("MeshMergeCullingVolume"), NSLOCTEXT("UnrealEd", "MeshMergeCullingVolumeSF", "Mesh Merge Culling"));
			Names.Add(TEXT("VolumetricLightmapDensityVolume"), NSLOCTEXT("UnrealEd", "VolumetricLightmapDensityVolumeSF", "Volumetric Lightmap Density"));
			Names.Add(TEXT("VisualizeAO"), NSLOCTEXT("UnrealEd", "VisualizeAOSF", "Ambient Occlusion"));
			return Names;
		}();
		return DisplayNames;
	}
}

void UE::Headless::SetShowFlagsMissingFromBuild(const TArray<uint32>& Indices)
{
	for (bool& bMissing : GMissingFromBuild)
	{
		bMissing = false;
	}
	for (const uint32 Index : Indices)
	{
		check(Index < FEngineShowFlags::SF_FirstCustom);
		GMissingFromBuild[Index] = true;
	}
}

void FEngineShowFlags::FindShowFlagDisplayName(const FString& InName, FText& OutText)
{
	check(InName.Len() > 0);
	// The names are keys of a map of FStrings, whose lookup ignores case as the engine's does.
	if (const FText* Found = GetDisplayNames().Find(InName))
	{
		OutText = *Found;
	}
	else
	{
		OutText = FText::FromString(InName);
	}
}

EShowFlagGroup FEngineShowFlags::FindShowFlagGroup(const TCHAR* Name)
{
	const int32 FlagIndex = FindIndexByName(Name);
	if (FlagIndex >= 0 && FlagIndex < SF_FirstCustom)
	{
		return GShowFlagInfos[FlagIndex].Group;
	}
	// Every built-in flag has a group, so an unknown name is a programming error.
	checkNoEntry();
	return SFG_PostProcess;
}

void FEngineShowFlags::SetSingleFlag(uint32 Index, bool bSet)
{
	if (Index < SF_FirstCustom)
	{
		this->*GShowFlagInfos[Index].Member = bSet;
		return;
	}
	checkNoEntry();
}

bool FEngineShowFlags::GetSingleFlag(uint32 Index) const
{
	if (Index < SF_FirstCustom)
	{
		return this->*GShowFlagInfos[Index].Member;
	}
	checkNoEntry();
	return false;
}

int32 FEngineShowFlags::FindIndexByName(const TCHAR* Name, const TCHAR* CommaSeparatedNames)
{
	if (!Name)
	{
		return INDEX_NONE;
	}

	const FString Search = Name;
	if (CommaSeparatedNames == nullptr)
	{
		for (int32 Index = 0; Index < SF_FirstCustom; ++Index)
		{
			if (!GMissingFromBuild[Index] && Search == GShowFlagInfos[Index].Name)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	// The position of the name in the list.
	int32 Position = 0;
	FString Candidate;
	for (const TCHAR* Cursor = CommaSeparatedNames;; ++Cursor)
	{
		if (*Cursor == TEXT(',') || *Cursor == 0)
		{
			check(!Candidate.IsEmpty());
			if (Candidate == Search)
			{
				return Position;
			}
			if (*Cursor == 0)
			{
				return INDEX_NONE;
			}
			Candidate.Empty();
			++Position;
		}
		else
		{
			Candidate += *Cursor;
		}
	}
}

FString FEngineShowFlags::FindNameByIndex(uint32 InIndex)
{
	return IsInBuild(InIndex) ? FString(GShowFlagInfos[InIndex].Name) : FString();
}

void FEngineShowFlags::Init(EShowFlagInitMode InitMode)
{
	for (const FShowFlagInfo& Info : GShowFlagInfos)
	{
		this->*Info.Member = InitMode != ESFIM_All0 && IsOnByDefault(Info.Default, InitMode);
	}
}
