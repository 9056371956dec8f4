#include "Components/SceneCaptureComponent2D.h"
#include "Internationalization/Text.h"
#include "ShowFlags.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace
{
	struct FExpectedFlag
	{
		uint32 Index;
		const char* Name;
		EShowFlagGroup Group;
		const char* DisplayName;
	};

	// A sample of the 5.1 table across its whole range, checked against the engine source.
	const FExpectedFlag ExpectedFlags[] = {
		{0, "PostProcessing", SFG_Hidden, "Post-processing"},
		{5, "TemporalAA", SFG_Advanced, "Temporal AA (instead FXAA)"},
		{67, "TexturedLightProfiles", SFG_LightingFeatures, "Textured Light Profiles (IES Texture)"},
		{71, "InstancedFoliage", SFG_Advanced, "Foliage"},
		{77, "Particles", SFG_Normal, "Particle Sprites"},
		{135, "TextRender", SFG_Advanced, "Render (3D) Text"},
		{143, "SkyLighting", SFG_LightTypes, "Sky Lighting"},
		{178, "PathTracing", SFG_Hidden, "Path tracing"},
	};

	FString DisplayNameOf(const FString& Name)
	{
		FText Text;
		FEngineShowFlags::FindShowFlagDisplayName(Name, Text);
		return Text.ToString();
	}
}

TEST(ShowFlagTable, IndicesNamesGroupsAndDisplayNamesAreThoseOfTheEngine)
{
	for (const FExpectedFlag& Expected : ExpectedFlags)
	{
		const FString Name = FString(Expected.Name);
		EXPECT_TRUE(FEngineShowFlags::FindNameByIndex(Expected.Index).Equals(Name)) << Expected.Name;
		EXPECT_EQ(FEngineShowFlags::FindIndexByName(*Name), (int32)Expected.Index) << Expected.Name;
		EXPECT_EQ(FEngineShowFlags::FindShowFlagGroup(*Name), Expected.Group) << Expected.Name;
		EXPECT_TRUE(DisplayNameOf(Name).Equals(FString(Expected.DisplayName))) << Expected.Name;
	}
	EXPECT_EQ((int32)FEngineShowFlags::SF_FirstCustom, 202);
	EXPECT_TRUE(FEngineShowFlags::FindNameByIndex(201).Equals(TEXT("ShaderPrint")));
}

TEST(ShowFlagTable, DisplayNamesAreUnrealEdTexts)
{
	FText Text;
	FEngineShowFlags::FindShowFlagDisplayName(TEXT("Bloom"), Text);
	EXPECT_TRUE(FTextInspector::GetNamespace(Text).Get(FString()).Equals(TEXT("UnrealEd")));
	EXPECT_TRUE(FTextInspector::GetKey(Text).Get(FString()).Equals(TEXT("BloomSF")));
}

TEST(ShowFlagTable, NamesMatchIgnoringCaseAndUnknownOnesAreNotFound)
{
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("motionblur")), (int32)FEngineShowFlags::SF_MotionBlur);
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("NoSuchFlag")), INDEX_NONE);
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(nullptr), INDEX_NONE);
	EXPECT_TRUE(FEngineShowFlags::FindNameByIndex(FEngineShowFlags::SF_FirstCustom).IsEmpty());
	EXPECT_TRUE(DisplayNameOf(TEXT("NoSuchFlag")).Equals(TEXT("NoSuchFlag")));
}

TEST(ShowFlagTable, DefaultsFollowTheInitMode)
{
	const FEngineShowFlags Game(ESFIM_Game);
	const FEngineShowFlags Editor(ESFIM_Editor);
	const FEngineShowFlags AllOff(ESFIM_All0);
	EXPECT_TRUE(Game.GetSingleFlag(FEngineShowFlags::SF_Game));
	EXPECT_FALSE(Editor.GetSingleFlag(FEngineShowFlags::SF_Game));
	EXPECT_TRUE(Game.GetSingleFlag(FEngineShowFlags::SF_MotionBlur));
	EXPECT_FALSE(Editor.GetSingleFlag(FEngineShowFlags::SF_MotionBlur));
	EXPECT_FALSE(Game.GetSingleFlag(FEngineShowFlags::SF_PathTracing));
	EXPECT_TRUE(Editor.GetSingleFlag(FEngineShowFlags::SF_Grid));
	EXPECT_TRUE(Game.GetSingleFlag(FEngineShowFlags::SF_Bloom));
	EXPECT_FALSE(AllOff.GetSingleFlag(FEngineShowFlags::SF_Bloom));
}

TEST(ShowFlagTable, SceneCapturesStartWithoutMotionBlurAndTemporalAA)
{
	const USceneCaptureComponent2D* Defaults = GetDefault<USceneCaptureComponent2D>();
	EXPECT_FALSE(Defaults->ShowFlags.GetSingleFlag(FEngineShowFlags::SF_MotionBlur));
	EXPECT_FALSE(Defaults->ShowFlags.GetSingleFlag(FEngineShowFlags::SF_TemporalAA));
	EXPECT_FALSE(Defaults->ShowFlags.GetSingleFlag(FEngineShowFlags::SF_SeparateTranslucency));
	EXPECT_TRUE(Defaults->ShowFlags.GetSingleFlag(FEngineShowFlags::SF_Game));
	EXPECT_TRUE(Defaults->ShowFlags.GetSingleFlag(FEngineShowFlags::SF_Bloom));
}

TEST(ShowFlagTable, SingleFlagsAreSetByIndex)
{
	FEngineShowFlags Flags(ESFIM_Game);
	Flags.SetSingleFlag(FEngineShowFlags::SF_Bloom, false);
	EXPECT_FALSE(Flags.GetSingleFlag(FEngineShowFlags::SF_Bloom));
	EXPECT_FALSE(Flags.Bloom);
	EXPECT_TRUE(Flags.GetSingleFlag(FEngineShowFlags::SF_LocalExposure));
}

TEST(ShowFlagTableDeathTest, UnknownNamesAndIndicesAreFatal)
{
	EXPECT_DEATH(FEngineShowFlags::FindShowFlagGroup(TEXT("NoSuchFlag")), "should never be called");
	EXPECT_DEATH(FEngineShowFlags(ESFIM_Game).GetSingleFlag(FEngineShowFlags::SF_FirstCustom), "should never be called");
	FText Text;
	EXPECT_DEATH(FEngineShowFlags::FindShowFlagDisplayName(FString(), Text), "InName.Len\\(\\) > 0");
}
