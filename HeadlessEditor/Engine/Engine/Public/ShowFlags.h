#pragma once

#include "CoreMinimal.h"

/** The editor's grouping of show flags. */
enum EShowFlagGroup
{
	SFG_Normal,
	SFG_Advanced,
	SFG_PostProcess,
	SFG_CollisionModes,
	SFG_Developer,
	SFG_Visualize,
	SFG_LightTypes,
	SFG_LightingComponents,
	SFG_LightingFeatures,
	SFG_Lumen,
	SFG_Hidden,
	SFG_Transient,
	SFG_Custom,
	SFG_Max
};

/** How a set of show flags starts out. */
enum EShowFlagInitMode
{
	ESFIM_Game,
	ESFIM_Editor,
	ESFIM_VREditing,
	ESFIM_All0
};

/**
 * The switches of what a view renders: one bool per built-in flag, addressable by name or by index.
 * Custom (plugin-registered) flags are not mirrored: indices from SF_FirstCustom up are unknown here.
 */
struct FEngineShowFlags
{
#define SHOWFLAG(Name, Group, DefaultRule, Key, Text) \
	bool Name; \
	void Set##Name(bool bVal) \
	{ \
		Name = bVal; \
	}
#include "ShowFlagsValues.inl"

	/** The index of each built-in flag. */
	enum EShowFlag
	{
#define SHOWFLAG(Name, Group, DefaultRule, Key, Text) SF_##Name,
#include "ShowFlagsValues.inl"
		SF_FirstCustom,
	};

	/** The localised display name of a flag; a name missing from the table shows as itself. The name must not be empty. */
	static ENGINE_API void FindShowFlagDisplayName(const FString& InName, FText& OutText);

	/** The editor group of a flag. An unknown name is a programming error. */
	static ENGINE_API EShowFlagGroup FindShowFlagGroup(const TCHAR* Name);

	FEngineShowFlags(EShowFlagInitMode InitMode)
	{
		Init(InitMode);
	}

	FEngineShowFlags()
	{
		Init(ESFIM_Game);
	}

	ENGINE_API void SetSingleFlag(uint32 Index, bool bSet);

	ENGINE_API bool GetSingleFlag(uint32 Index) const;

	/** The index of a flag, matching names ignoring case; INDEX_NONE when unknown. */
	ENGINE_API static int32 FindIndexByName(const TCHAR* Name, const TCHAR* CommaSeparatedNames = 0);

	/** The name of the flag at an index, or an empty string. */
	ENGINE_API static FString FindNameByIndex(uint32 InIndex);

private:
	ENGINE_API void Init(EShowFlagInitMode InitMode);
};
