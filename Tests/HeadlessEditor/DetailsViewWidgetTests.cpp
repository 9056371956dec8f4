#include "DetailCategoryBuilder.h"
#include "DetailLayoutBuilder.h"
#include "DetailsViewDriver.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "HeadlessEditorSession.h"
#include "IDetailCustomization.h"
#include "IDetailsView.h"
#include "IPropertyUtilities.h"
#include "KyroScreenCapture.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "UObject/UnrealType.h"
#include "WidgetDriver.h"
#include "WidgetRenderer.h"
#include "Widgets/Input/SCheckBox.h"

#include <gtest/gtest.h>

namespace
{
	/** Adds one category; asks its view for a refresh when told to. */
	class FRefreshingCustomisation : public IDetailCustomization
	{
	public:
		static inline bool bRequestRefresh = false;

		using IDetailCustomization::CustomizeDetails;
		virtual void CustomizeDetails(IDetailLayoutBuilder& DetailBuilder) override
		{
			DetailBuilder.EditCategory(TEXT("Added"));
			if (bRequestRefresh)
			{
				bRequestRefresh = false;
				DetailBuilder.GetPropertyUtilities()->RequestRefresh();
			}
		}
	};

	class DetailsViewWidget : public ::testing::Test
	{
	protected:
		DetailsViewWidget()
			: Session(MakeOptions())
		{
		}

		static FHeadlessEditorOptions MakeOptions()
		{
			FHeadlessEditorOptions Options;
			Options.bStartEditorModule = false;
			return Options;
		}

		static FPropertyEditorModule& PropertyModule() { return FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor")); }

		AKyroScreenCapture* Spawn() { return GEditor->GetEditorWorldContext().World()->SpawnActor<AKyroScreenCapture>(); }

		static void RegisterAddedCategory()
		{
			PropertyModule().RegisterCustomClassLayout(TEXT("KyroScreenCapture"), FOnGetDetailCustomizationInstance::CreateLambda([]()
																					  { return TSharedRef<IDetailCustomization>(MakeShared<FRefreshingCustomisation>()); }));
		}

		FHeadlessEditorSession Session;
	};
}

TEST_F(DetailsViewWidget, AViewMadeByTheModuleShowsTheObjectsItIsGiven)
{
	FDetailsViewArgs Args;
	Args.ViewIdentifier = TEXT("Inspector");
	const TSharedRef<IDetailsView> View = PropertyModule().CreateDetailView(Args);
	EXPECT_EQ(View->GetIdentifier(), FName(TEXT("Inspector")));
	AKyroScreenCapture* Capture = Spawn();
	View->SetObject(Capture);
	ASSERT_EQ(View->GetSelectedObjects().Num(), 1);
	EXPECT_EQ(View->GetSelectedObjects()[0].Get(), Capture);
	EXPECT_FALSE(View->HasClassDefaultObject());
	EXPECT_EQ(UE::Headless::GetDetailsViewModel(*View).GetCategories()[0]->Name, FName(TEXT("Screen Capture")));
}

TEST_F(DetailsViewWidget, TheSameObjectsAgainKeepTheLayoutUnlessARefreshIsForced)
{
	const TSharedRef<IDetailsView> View = PropertyModule().CreateDetailView(FDetailsViewArgs());
	const TArray<UObject*> Captures({Spawn()});
	View->SetObjects(Captures);
	FHeadlessDetailsView& Layout = UE::Headless::GetDetailsViewModel(*View);
	EXPECT_EQ(Layout.GetBuildCount(), 1);
	View->SetObjects(Captures);
	EXPECT_EQ(Layout.GetBuildCount(), 1);
	View->SetObjects(Captures, true);
	EXPECT_EQ(Layout.GetBuildCount(), 2);
	View->ForceRefresh();
	EXPECT_EQ(Layout.GetBuildCount(), 3);
	View->SetObjects(TArray<UObject*>({Captures[0], Spawn()}));
	EXPECT_EQ(Layout.GetBuildCount(), 4);
}

TEST_F(DetailsViewWidget, OpenViewsLayThemselvesOutAgainWhenCustomisationModulesChange)
{
	FDetailsViewDriver Driver({Spawn()});
	EXPECT_FALSE(Driver.FindCategory(TEXT("Added")).IsValid());
	RegisterAddedCategory();
	PropertyModule().NotifyCustomizationModuleChanged();
	EXPECT_TRUE(Driver.FindCategory(TEXT("Added")).IsValid());
	PropertyModule().UnregisterCustomClassLayout(TEXT("KyroScreenCapture"));
	PropertyModule().NotifyCustomizationModuleChanged();
	EXPECT_FALSE(Driver.FindCategory(TEXT("Added")).IsValid());
}

TEST_F(DetailsViewWidget, ARequestedRefreshRunsWhenTheViewIsNextDrawn)
{
	RegisterAddedCategory();
	FRefreshingCustomisation::bRequestRefresh = true;
	FDetailsViewDriver Driver({Spawn()});
	EXPECT_EQ(Driver.GetView().GetBuildCount(), 1);
	FWidgetRenderer::RenderWidget(Driver.GetDetailsView(), 480, 200);
	EXPECT_EQ(Driver.GetView().GetBuildCount(), 2);
	PropertyModule().UnregisterCustomClassLayout(TEXT("KyroScreenCapture"));
}

TEST_F(DetailsViewWidget, EditsThroughTheViewAreAnnouncedOnceApplied)
{
	AKyroScreenCapture* Capture = Spawn();
	FDetailsViewDriver Driver({Capture});
	TArray<FName> Changed;
	Driver.GetDetailsView()->OnFinishedChangingProperties().AddLambda([&Changed](const FPropertyChangedEvent& Event)
		{ Changed.Add(Event.GetPropertyName()); });
	const TSharedPtr<SCheckBox> Cursor = FDetailsViewDriver::FindValueWidget<SCheckBox>(*Driver.FindPropertyRow(TEXT("CaptureCursor")), TEXT("SCheckBox"));
	ASSERT_TRUE(Cursor.IsValid());
	FWidgetDriver::ToggleCheckBox(Cursor.ToSharedRef());
	EXPECT_FALSE(Capture->Options.CaptureCursor);
	EXPECT_EQ(Changed, TArray<FName>({TEXT("CaptureCursor")}));
}

TEST_F(DetailsViewWidget, WhatIsOpenStaysOpenWhenTheLayoutIsBuiltAgain)
{
	FDetailsViewDriver Driver({Spawn()});
	EXPECT_FALSE(Driver.FindPropertyRow(TEXT("Options"))->bExpanded);
	Driver.SetRowExpanded(*Driver.FindPropertyRow(TEXT("Options")));
	Driver.SetCategoryExpanded(TEXT("Screen Capture"), false);
	Driver.Rebuild();
	EXPECT_TRUE(Driver.FindPropertyRow(TEXT("Options"))->bExpanded);
	EXPECT_FALSE(Driver.FindCategory(TEXT("Screen Capture"))->bExpanded);
}
