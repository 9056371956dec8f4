#include "DetailCustomisations/CaptureComponentDetailsCustomisation.h"
#include "DetailsViewDriver.h"
#include "HeadlessPropertyEditor.h"
#include "HeadlessShowFlags.h"
#include "HeadlessEditorSession.h"
#include "Kyro360CaptureComponent.h"
#include "KyroCGCaptureComponent.h"
#include "KyroCaptureComponent.h"
#include "LevelDriver.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "ScopedTransaction.h"
#include "ShowFlags.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "WidgetDriver.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
	const TCHAR* CategoryName = TEXT("Nimbrel Capture Settings");

	class CaptureComponentShowFlag : public ::testing::Test
	{
	protected:
		virtual void SetUp() override { Session = MakeUnique<FHeadlessEditorSession>(Options); }

		virtual void TearDown() override
		{
			View.Reset();
			Session = nullptr;
			UE::Headless::SetShowFlagsMissingFromBuild({});
		}

		template <typename ComponentType>
		ComponentType* MakeComponent(UObject* Template = nullptr)
		{
			return NewObject<ComponentType>(GetTransientPackage(), ComponentType::StaticClass(), NAME_None, RF_NoFlags, Template);
		}

		void Show(const TArray<UObject*>& Objects)
		{
			View = MakeShared<FHeadlessDetailsView>();
			View->SetObjects(Objects);
		}

		const FHeadlessDetailCategory& GetCategory() const
		{
			for (const TSharedRef<FHeadlessDetailCategory>& Category : View->GetCategories())
			{
				if (Category->Name == FName(CategoryName))
				{
					return *Category;
				}
			}
			checkf(false, TEXT("No capture settings category"));
			return *View->GetCategories()[0];
		}

		TArray<TSharedRef<FHeadlessDetailRow>> GetGroups() const
		{
			TArray<TSharedRef<FHeadlessDetailRow>> Groups;
			for (const TSharedRef<FHeadlessDetailRow>& Row : GetCategory().Rows)
			{
				if (Row->Kind == FHeadlessDetailRow::EKind::Group)
				{
					Groups.Add(Row);
				}
			}
			return Groups;
		}

		static FString GetFlagLabel(FHeadlessDetailRow& Row) { return FWidgetDriver::GetDisplayedText(Row.Widgets.NameContent().Widget).Get(FString()); }

		TArray<FString> GetGroupLabels(int32 GroupIndex) const
		{
			TArray<FString> Labels;
			for (const TSharedRef<FHeadlessDetailRow>& Row : GetGroups()[GroupIndex]->Children)
			{
				Labels.Add(GetFlagLabel(*Row));
			}
			return Labels;
		}

		TSharedRef<SCheckBox> FindBox(const FString& DisplayName) const
		{
			for (const TSharedRef<FHeadlessDetailRow>& Group : GetGroups())
			{
				for (const TSharedRef<FHeadlessDetailRow>& Row : Group->Children)
				{
					if (GetFlagLabel(*Row).Equals(DisplayName))
					{
						return StaticCastSharedRef<SCheckBox>(Row->Widgets.ValueContent().Widget);
					}
				}
			}
			checkf(false, TEXT("No box for %s"), *DisplayName);
			return SNew(SCheckBox);
		}

		static const FEngineShowFlagsSetting* FindSetting(const USceneCaptureComponent* Component, const FString& Name)
		{
			return Component->ShowFlagSettings.FindByPredicate([&Name](const FEngineShowFlagsSetting& Setting)
				{ return Setting.ShowFlagName.Equals(Name); });
		}

		static void AddSetting(USceneCaptureComponent* Component, const FString& Name, bool bEnabled)
		{
			FEngineShowFlagsSetting& Setting = Component->ShowFlagSettings.AddDefaulted_GetRef();
			Setting.ShowFlagName = Name;
			Setting.Enabled = bEnabled;
		}

		FHeadlessEditorOptions Options;
		TUniquePtr<FHeadlessEditorSession> Session;
		TSharedPtr<FHeadlessDetailsView> View;
	};
}

TEST_F(CaptureComponentShowFlag, FlagsAreGroupedAsTheEngineGroupsThemBelowTheCategorysOwnProperties)
{
	Show({MakeComponent<UKyroCaptureComponent>()});

	EXPECT_TRUE(View->GetHiddenPropertyNames().Contains(FName(TEXT("ShowFlagSettings"))));
	const FHeadlessDetailCategory& Category = GetCategory();
	ASSERT_GE(Category.Rows.Num(), 2);
	EXPECT_EQ(Category.Rows[0]->Name, FName(TEXT("CaptureFrameRate")));
	EXPECT_EQ(Category.Rows[1]->Name, FName(TEXT("bCaptureAlpha")));

	const TArray<TSharedRef<FHeadlessDetailRow>> Groups = GetGroups();
	const TCHAR* ExpectedLabels[] = {TEXT("General Show Flags"), TEXT("Advanced Show Flags"), TEXT("Post Processing Show Flags"), TEXT("Light Types Show Flags"), TEXT("Lighting Components Show Flags"), TEXT("Lighting Features Show Flags"), TEXT("Hidden Show Flags")};
	const TCHAR* ExpectedKeys[] = {TEXT("CommonShowFlagHeader"), TEXT("AdvancedShowFlagsMenu"), TEXT("PostProcessShowFlagsMenu"), TEXT("LightTypesShowFlagsMenu"), TEXT("LightingComponentsShowFlagsMenu"), TEXT("LightingFeaturesShowFlagsMenu"), TEXT("HiddenShowFlagsMenu")};
	const int32 ExpectedCounts[] = {11, 8, 5, 1, 2, 8, 4};
	ASSERT_EQ(Groups.Num(), 7);
	for (int32 Index = 0; Index < Groups.Num(); ++Index)
	{
		EXPECT_TRUE(Groups[Index]->DisplayName.ToString().Equals(ExpectedLabels[Index])) << Index;
		EXPECT_TRUE(FTextInspector::GetNamespace(Groups[Index]->DisplayName).Get(FString()).Equals(TEXT("CaptureComponentDetailsCustomisation"))) << Index;
		EXPECT_TRUE(FTextInspector::GetKey(Groups[Index]->DisplayName).Get(FString()).Equals(ExpectedKeys[Index])) << Index;
		EXPECT_EQ(Groups[Index]->Name, FName(ExpectedLabels[Index]));
		EXPECT_EQ(Groups[Index]->Children.Num(), ExpectedCounts[Index]) << Index;
		EXPECT_TRUE(Groups[Index]->bAdvanced);
		EXPECT_FALSE(Groups[Index]->bExpanded);
	}
}

TEST_F(CaptureComponentShowFlag, TheThirtyNineOfferedFlagsKeepTheirGroupsAndOrder)
{
	Show({MakeComponent<UKyroCaptureComponent>()});

	const TArray<TArray<FString>> Expected = {
		{TEXT("Anti-aliasing"), TEXT("Atmosphere"), TEXT("BSP"), TEXT("Cloud"), TEXT("Decals"), TEXT("Fog"), TEXT("Landscape"), TEXT("Particle Sprites"), TEXT("Skeletal Meshes"), TEXT("Static Meshes"), TEXT("Translucency")},
		{TEXT("DeferredLighting"), TEXT("Foliage"), TEXT("Grass"), TEXT("Instanced Static Meshes"), TEXT("Nanite Meshes"), TEXT("Paper 2D Sprites"), TEXT("Render (3D) Text"), TEXT("Temporal AA (instead FXAA)")},
		{TEXT("Bloom"), TEXT("Eye Adaptation"), TEXT("Local Exposure"), TEXT("Motion Blur"), TEXT("Tone Curve")},
		{TEXT("Sky Lighting")},
		{TEXT("Ambient Occlusion"), TEXT("Dynamic Shadows")},
		{TEXT("Ambient Cubemap"), TEXT("Distance Field Ambient Occlusion"), TEXT("Light Functions"), TEXT("Light Shafts"), TEXT("Reflection Environment"), TEXT("Screen Space Reflections"), TEXT("Textured Light Profiles (IES Texture)"), TEXT("Volumetric Fog")},
		{TEXT("Game"), TEXT("Lighting"), TEXT("Path tracing"), TEXT("Post-processing")},
	};
	ASSERT_EQ(GetGroups().Num(), Expected.Num());
	for (int32 Group = 0; Group < Expected.Num(); ++Group)
	{
		EXPECT_EQ(GetGroupLabels(Group), Expected[Group]) << *GetGroups()[Group]->DisplayName.ToString();
	}
}

TEST_F(CaptureComponentShowFlag, FlagsAreSortedByDisplayName)
{
	Show({MakeComponent<UKyroCaptureComponent>()});

	const TArray<FString> Advanced = GetGroupLabels(1);
	const TCHAR* Expected[] = {TEXT("DeferredLighting"), TEXT("Foliage"), TEXT("Grass"), TEXT("Instanced Static Meshes"), TEXT("Nanite Meshes"), TEXT("Paper 2D Sprites"), TEXT("Render (3D) Text"), TEXT("Temporal AA (instead FXAA)")};
	ASSERT_EQ(Advanced.Num(), 8);
	for (int32 Index = 0; Index < 8; ++Index)
	{
		EXPECT_TRUE(Advanced[Index].Equals(Expected[Index])) << Index;
	}
	const TArray<FString> Hidden = GetGroupLabels(6);
	ASSERT_EQ(Hidden.Num(), 4);
	EXPECT_TRUE(Hidden[0].Equals(TEXT("Game")));
	EXPECT_TRUE(Hidden[3].Equals(TEXT("Post-processing")));
	const TSharedPtr<STextBlock> Label = FWidgetDriver::Find<STextBlock>(GetGroups()[0]->Children[0]->Widgets.NameContent().Widget, TEXT("STextBlock"));
	EXPECT_EQ(FWidgetDriver::GetFont(*Label).Size, 8.0f);
}

TEST_F(CaptureComponentShowFlag, FlagsMissingFromTheBuildAreSkippedAndEmptyGroupsLeftOut)
{
	UE::Headless::SetShowFlagsMissingFromBuild({FEngineShowFlags::SF_SkyLighting, FEngineShowFlags::SF_Bloom});
	Show({MakeComponent<UKyroCaptureComponent>()});

	const TArray<TSharedRef<FHeadlessDetailRow>> Groups = GetGroups();
	ASSERT_EQ(Groups.Num(), 6);
	EXPECT_EQ(Groups[2]->Children.Num(), 4);
	EXPECT_TRUE(Groups[3]->DisplayName.ToString().Equals(TEXT("Lighting Components Show Flags")));
}

TEST_F(CaptureComponentShowFlag, BoxesShowOverridesOrElseTheArchetypesFlags)
{
	UKyroCaptureComponent* Component = MakeComponent<UKyroCaptureComponent>();
	AddSetting(Component, TEXT("fog"), false);
	Show({Component});

	EXPECT_EQ(FindBox(TEXT("Bloom"))->GetCheckedState(), ECheckBoxState::Checked);
	// Scene captures start without motion blur and path tracing.
	EXPECT_EQ(FindBox(TEXT("Motion Blur"))->GetCheckedState(), ECheckBoxState::Unchecked);
	EXPECT_EQ(FindBox(TEXT("Path tracing"))->GetCheckedState(), ECheckBoxState::Unchecked);
	// Override names match ignoring case.
	EXPECT_EQ(FindBox(TEXT("Fog"))->GetCheckedState(), ECheckBoxState::Unchecked);

	Component->ShowFlagSettings.Reset();
	EXPECT_EQ(FindBox(TEXT("Fog"))->GetCheckedState(), ECheckBoxState::Checked);
}

TEST_F(CaptureComponentShowFlag, AnArchetypesOwnFlagsAreTheDefaults)
{
	UKyro360CaptureComponent* Archetype = MakeComponent<UKyro360CaptureComponent>();
	Archetype->SetFlags(RF_ArchetypeObject);
	Archetype->ShowFlags.SetSingleFlag(FEngineShowFlags::SF_Bloom, false);
	Archetype->ShowFlags.SetSingleFlag(FEngineShowFlags::SF_MotionBlur, true);
	UKyro360CaptureComponent* Component = MakeComponent<UKyro360CaptureComponent>(Archetype);
	ASSERT_EQ(Component->GetArchetype(), Archetype);
	Show({Component});

	EXPECT_EQ(FindBox(TEXT("Motion Blur"))->GetCheckedState(), ECheckBoxState::Checked);
	const TSharedRef<SCheckBox> Bloom = FindBox(TEXT("Bloom"));
	EXPECT_EQ(Bloom->GetCheckedState(), ECheckBoxState::Unchecked);
	ASSERT_TRUE(FWidgetDriver::ToggleCheckBox(Bloom));
	ASSERT_NE(FindSetting(Component, TEXT("Bloom")), nullptr);
	EXPECT_TRUE(FindSetting(Component, TEXT("Bloom"))->Enabled);
}

TEST_F(CaptureComponentShowFlag, ComponentsThatDisagreeShowUndeterminedAndAClickSetsBoth)
{
	UKyroCaptureComponent* First = MakeComponent<UKyroCaptureComponent>();
	UKyroCaptureComponent* Second = MakeComponent<UKyroCaptureComponent>();
	AddSetting(First, TEXT("Bloom"), false);
	AddSetting(First, TEXT("Fog"), false);
	Show({First, Second});

	const TSharedRef<SCheckBox> Bloom = FindBox(TEXT("Bloom"));
	EXPECT_EQ(Bloom->GetCheckedState(), ECheckBoxState::Undetermined);
	EXPECT_EQ(FindBox(TEXT("Decals"))->GetCheckedState(), ECheckBoxState::Checked);

	const int32 FinishedBefore = View->GetFinishedChangingCount();
	ASSERT_TRUE(FWidgetDriver::ToggleCheckBox(Bloom));
	const ECheckBoxState AfterClick = Bloom->GetCheckedState();
	ASSERT_NE(AfterClick, ECheckBoxState::Undetermined);
	EXPECT_EQ(View->GetFinishedChangingCount(), FinishedBefore + 1);

	const bool bValue = AfterClick == ECheckBoxState::Checked;
	for (const UKyroCaptureComponent* Component : {First, Second})
	{
		const FEngineShowFlagsSetting* Setting = FindSetting(Component, TEXT("Bloom"));
		// Bloom is on by default: only an "off" is stored.
		if (bValue)
		{
			EXPECT_EQ(Setting, nullptr);
		}
		else
		{
			ASSERT_NE(Setting, nullptr);
			EXPECT_FALSE(Setting->Enabled);
		}
		EXPECT_EQ(Component->ShowFlags.GetSingleFlag(FEngineShowFlags::SF_Bloom), bValue);
	}
	EXPECT_NE(FindSetting(First, TEXT("Fog")), nullptr);
}

TEST_F(CaptureComponentShowFlag, AToggleNotifiesBeforeTheChangeAfterItAndWhenFinished)
{
	UKyroCaptureComponent* Component = MakeComponent<UKyroCaptureComponent>();
	Component->SetFlags(RF_Transactional);
	Show({Component});
	const TSharedRef<SCheckBox> Bloom = FindBox(TEXT("Bloom"));
	const int32 FinishedBefore = View->GetFinishedChangingCount();
	TArray<FString> PostChanges;
	const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda([&](UObject* Object, FPropertyChangedEvent& Event)
		{
			// After the write, before the view hears that editing finished.
			PostChanges.Add(FString::Printf(TEXT("%s %s type %d, override %s, finished %d"), *Object->GetName(), *Event.GetPropertyName().ToString(), static_cast<int32>(Event.ChangeType),
				FindSetting(Component, TEXT("Bloom")) ? TEXT("stored") : TEXT("absent"), View->GetFinishedChangingCount() - FinishedBefore)); });
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("Toggle Bloom")));
		ASSERT_TRUE(FWidgetDriver::ToggleCheckBox(Bloom));
	}
	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);

	EXPECT_EQ(PostChanges, TArray<FString>{FString::Printf(TEXT("%s ShowFlagSettings type %d, override stored, finished 0"), *Component->GetName(), static_cast<int32>(EPropertyChangeType::ValueSet))});
	EXPECT_EQ(View->GetFinishedChangingCount(), FinishedBefore + 1);
	// The pre-change recorded the component as it was, so an undo takes the override away again.
	ASSERT_TRUE(FLevelDriver::Undo());
	EXPECT_TRUE(Component->ShowFlagSettings.IsEmpty());
}

TEST_F(CaptureComponentShowFlag, TickingAFlagBackToItsDefaultRemovesTheOverride)
{
	UKyroCaptureComponent* Component = MakeComponent<UKyroCaptureComponent>();
	AddSetting(Component, TEXT("MotionBlur"), true);
	AddSetting(Component, TEXT("Decals"), false);
	Show({Component});

	const TSharedRef<SCheckBox> MotionBlur = FindBox(TEXT("Motion Blur"));
	ASSERT_EQ(MotionBlur->GetCheckedState(), ECheckBoxState::Checked);
	ASSERT_TRUE(FWidgetDriver::ToggleCheckBox(MotionBlur));
	EXPECT_EQ(MotionBlur->GetCheckedState(), ECheckBoxState::Unchecked);
	EXPECT_EQ(FindSetting(Component, TEXT("MotionBlur")), nullptr);
	ASSERT_EQ(Component->ShowFlagSettings.Num(), 1);
	EXPECT_TRUE(Component->ShowFlagSettings[0].ShowFlagName.Equals(TEXT("Decals")));
}

TEST_F(CaptureComponentShowFlag, AnUnrelatedArchetypeMakesEveryDefaultFalse)
{
	Options.bKyroComposureLoaded = true;
	Session = nullptr;
	Session = MakeUnique<FHeadlessEditorSession>(Options);
	UKyroCGCaptureComponent* Component = MakeComponent<UKyroCGCaptureComponent>();
	AddSetting(Component, TEXT("NotAShowFlag"), true);
	Show({Component});

	const TSharedRef<SCheckBox> Bloom = FindBox(TEXT("Bloom"));
	EXPECT_EQ(Bloom->GetCheckedState(), ECheckBoxState::Unchecked);
	ASSERT_TRUE(FWidgetDriver::ToggleCheckBox(Bloom));
	ASSERT_NE(FindSetting(Component, TEXT("Bloom")), nullptr);
	EXPECT_TRUE(FindSetting(Component, TEXT("Bloom"))->Enabled);
	ASSERT_TRUE(FWidgetDriver::ToggleCheckBox(Bloom));
	EXPECT_EQ(FindSetting(Component, TEXT("Bloom")), nullptr);
	// An override the engine does not know stays, without a box.
	ASSERT_EQ(Component->ShowFlagSettings.Num(), 1);
	EXPECT_TRUE(Component->ShowFlagSettings[0].ShowFlagName.Equals(TEXT("NotAShowFlag")));
}

TEST(CaptureComponentShowFlagDeathTest, AClassWithoutShowFlagSettingsIsFatal)
{
	EXPECT_DEATH(
		{
			FHeadlessEditorSession Session;
			FPropertyEditorModule& PropertyEditor = FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor"));
			PropertyEditor.RegisterCustomClassLayout(TEXT("SceneComponent"), FOnGetDetailCustomizationInstance::CreateStatic(&FCaptureComponentDetailsCustomisation::MakeInstance));
			TSharedRef<FHeadlessDetailsView> View = MakeShared<FHeadlessDetailsView>();
			View->SetObjects({NewObject<USceneComponent>()});
		},
		"ShowFlagSettingsProperty->IsValidHandle\\(\\)");
}
