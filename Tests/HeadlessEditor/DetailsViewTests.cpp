#include "CoreGlobals.h"
#include "DetailCategoryBuilder.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "DetailsViewDriver.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "HeadlessEditorSession.h"
#include "IDetailChildrenBuilder.h"
#include "IDetailCustomization.h"
#include "IDetailPropertyRow.h"
#include "IPropertyTypeCustomization.h"
#include "KyroScreenCapture.h"
#include "Misc/ITransaction.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"
#include "UObject/Package.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Text/STextBlock.h"
#include "WidgetDriver.h"
#include "Support/RecordingTransaction.h"

#include <gtest/gtest.h>

namespace
{
	/** Shows "MonitorName" only, through a custom row, and counts its instances. */
	class FTestOptionsCustomisation : public IPropertyTypeCustomization
	{
	public:
		static inline int32 LiveInstances = 0;
		FTestOptionsCustomisation() { ++LiveInstances; }
		virtual ~FTestOptionsCustomisation() override { --LiveInstances; }

		virtual void CustomizeHeader(TSharedRef<IPropertyHandle> Handle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils& Utils) override
		{
			HeaderRow.NameContent()[Handle->CreatePropertyNameWidget()];
		}
		virtual void CustomizeChildren(TSharedRef<IPropertyHandle> Handle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& Utils) override
		{
			ChildBuilder.AddCustomRow(FText::FromString(TEXT("Picker"))).Visibility(EVisibility::Collapsed);
			ChildBuilder.AddProperty(Handle->GetChildHandle(TEXT("MonitorName")).ToSharedRef());
		}
	};

	/** Moves "Options" into its own category and hides nothing else. */
	class FTestActorCustomisation : public IDetailCustomization
	{
	public:
		using IDetailCustomization::CustomizeDetails;
		virtual void CustomizeDetails(IDetailLayoutBuilder& DetailBuilder) override
		{
			DetailBuilder.EditCategory(TEXT("Custom"), FText::FromString(TEXT("Custom Category"))).AddProperty(DetailBuilder.GetProperty(TEXT("Options")));
		}
	};

	class DetailsView : public ::testing::Test
	{
	protected:
		DetailsView()
			: Session(MakeOptions())
		{
		}

		static FHeadlessEditorOptions MakeOptions()
		{
			FHeadlessEditorOptions Options;
			Options.bStartEditorModule = false;
			return Options;
		}

		virtual void TearDown() override { GUndo = nullptr; }

		AKyroScreenCapture* Spawn()
		{
			return GEditor->GetEditorWorldContext().World()->SpawnActor<AKyroScreenCapture>();
		}

		FPropertyEditorModule& PropertyModule() { return FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor")); }

		FHeadlessEditorSession Session;
	};
}

TEST_F(DetailsView, DefaultRowsFollowTheCategoryMetadataAndExpandStructMembers)
{
	FDetailsViewDriver Driver({Spawn()});
	const TSharedPtr<FHeadlessDetailCategory> Category = Driver.FindCategory(TEXT("Screen Capture"));
	ASSERT_TRUE(Category.IsValid());
	ASSERT_EQ(Category->Rows.Num(), 1);
	EXPECT_EQ(Category->Rows[0]->Name, FName(TEXT("Options")));
	EXPECT_EQ(FDetailsViewDriver::GetRowLabels(Category->Rows[0]->Children),
		TArray<FString>({TEXT("Active"), TEXT("Render Target"), TEXT("Hide Render Target"), TEXT("Screen Capture Type"), TEXT("Monitor Name"), TEXT("Window Name"), TEXT("Capture Cursor")}));
	const TSharedPtr<FHeadlessDetailRow> Active = Driver.FindPropertyRow(TEXT("Active"));
	ASSERT_TRUE(Active.IsValid());
	EXPECT_TRUE(FDetailsViewDriver::FindValueWidget(*Active, TEXT("SCheckBox")).IsValid());
	EXPECT_EQ(FWidgetDriver::GetFont(*StaticCastSharedRef<STextBlock>(Active->Widgets.NameWidget.Widget)), IDetailLayoutBuilder::GetDetailFont());
}

TEST_F(DetailsView, HandlesReadChildrenAndAnswerMultipleValuesWhenObjectsDisagree)
{
	AKyroScreenCapture* First = Spawn();
	AKyroScreenCapture* Second = Spawn();
	First->Options.MonitorName = TEXT("Left");
	Second->Options.MonitorName = TEXT("Right");
	FDetailsViewDriver Driver({First, Second});
	const TSharedRef<IPropertyHandle> Options = Driver.GetView().GetPropertyHandle(TEXT("Options"));
	uint32 NumChildren = 0;
	EXPECT_EQ(Options->GetNumChildren(NumChildren), FPropertyAccess::Success);
	EXPECT_EQ(NumChildren, 7u);
	const TSharedPtr<IPropertyHandle> Monitor = Options->GetChildHandle(TEXT("MonitorName"));
	ASSERT_TRUE(Monitor.IsValid());
	FString Value = TEXT("unchanged");
	EXPECT_EQ(Monitor->GetValue(Value), FPropertyAccess::MultipleValues);
	EXPECT_EQ(Value, TEXT("unchanged"));
	bool bActive = false;
	EXPECT_EQ(Options->GetChildHandle(TEXT("Active"))->GetValue(bActive), FPropertyAccess::Success);
	EXPECT_TRUE(bActive);
	int32 WrongType = 0;
	EXPECT_EQ(Monitor->GetValue(WrongType), FPropertyAccess::Fail);
	EXPECT_FALSE(Options->GetChildHandle(TEXT("Missing")).IsValid());
	EXPECT_FALSE(Driver.GetView().GetPropertyHandle(TEXT("Missing"))->IsValidHandle());
	EXPECT_EQ(Options->GetChildHandle(4u)->GetProperty()->GetFName(), FName(TEXT("MonitorName")));
	TArray<void*> RawData;
	Monitor->AccessRawData(RawData);
	EXPECT_EQ(RawData, TArray<void*>({&First->Options.MonitorName, &Second->Options.MonitorName}));
}

TEST_F(DetailsView, SetValueWritesEveryObjectWithNotificationsOnlyWhenTheValueChanges)
{
	AKyroScreenCapture* First = Spawn();
	AKyroScreenCapture* Second = Spawn();
	First->GetOutermost()->SetDirtyFlag(false);
	FDetailsViewDriver Driver({First, Second});
	const TSharedPtr<IPropertyHandle> Monitor = Driver.GetView().GetPropertyHandle(TEXT("Options"))->GetChildHandle(TEXT("MonitorName"));
	int32 Changes = 0;
	Monitor->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&Changes]()
		{ ++Changes; }));
	FRecordingTransaction Transaction;
	GUndo = &Transaction;

	EXPECT_EQ(Monitor->SetValue(FString(TEXT("Centre"))), FPropertyAccess::Success);
	EXPECT_EQ(First->Options.MonitorName, TEXT("Centre"));
	EXPECT_EQ(Second->Options.MonitorName, TEXT("Centre"));
	EXPECT_EQ(Changes, 1);
	EXPECT_TRUE(Transaction.Saved.Contains(First));
	EXPECT_TRUE(Transaction.Saved.Contains(Second));
	EXPECT_TRUE(First->GetOutermost()->IsDirty());
	EXPECT_EQ(Driver.GetView().GetFinishedChangingCount(), 1);

	EXPECT_EQ(Monitor->SetValue(FString(TEXT("Centre"))), FPropertyAccess::Success);
	EXPECT_EQ(Changes, 1);
	EXPECT_EQ(Monitor->SetValueFromFormattedString(TEXT("Side")), FPropertyAccess::Success);
	EXPECT_EQ(Second->Options.MonitorName, TEXT("Side"));
	EXPECT_EQ(Changes, 2);
	EXPECT_EQ(Monitor->SetValue(true), FPropertyAccess::Fail);
}

TEST_F(DetailsView, DefaultWidgetsEditThroughTheHandle)
{
	AKyroScreenCapture* Capture = Spawn();
	FDetailsViewDriver Driver({Capture});
	const TSharedPtr<SCheckBox> CursorBox = FDetailsViewDriver::FindValueWidget<SCheckBox>(*Driver.FindPropertyRow(TEXT("CaptureCursor")), TEXT("SCheckBox"));
	ASSERT_TRUE(CursorBox.IsValid());
	EXPECT_TRUE(CursorBox->IsChecked());
	FWidgetDriver::ToggleCheckBox(CursorBox.ToSharedRef());
	EXPECT_FALSE(Capture->Options.CaptureCursor);
	EXPECT_FALSE(CursorBox->IsChecked());
}

TEST_F(DetailsView, TypeCustomisationReplacesTheStructRowsAndLivesAsLongAsTheLayout)
{
	PropertyModule().RegisterCustomPropertyTypeLayout(TEXT("KyroScreenCaptureOptions"), FOnGetPropertyTypeCustomizationInstance::CreateLambda([]()
																							{ return TSharedRef<IPropertyTypeCustomization>(MakeShared<FTestOptionsCustomisation>()); }));
	{
		FDetailsViewDriver Driver({Spawn()});
		const TSharedPtr<FHeadlessDetailRow> Options = Driver.FindPropertyRow(TEXT("Options"));
		ASSERT_TRUE(Options.IsValid());
		EXPECT_TRUE(Options->bCustomisedByType);
		ASSERT_EQ(Options->Children.Num(), 2);
		EXPECT_EQ(Options->Children[0]->Widgets.FilterTextString.ToString(), TEXT("Picker"));
		EXPECT_EQ(Options->Children[0]->GetVisibility(), EVisibility::Collapsed);
		EXPECT_EQ(Options->Children[1]->Name, FName(TEXT("MonitorName")));
		EXPECT_EQ(FTestOptionsCustomisation::LiveInstances, 1);
		Driver.Rebuild();
		EXPECT_EQ(FTestOptionsCustomisation::LiveInstances, 1);
	}
	EXPECT_EQ(FTestOptionsCustomisation::LiveInstances, 0);
	PropertyModule().UnregisterCustomPropertyTypeLayout(TEXT("KyroScreenCaptureOptions"));
}

TEST_F(DetailsView, ClassCustomisationAppliesToSubclassesAndAddsCategoriesAfterTheDefaultOnes)
{
	PropertyModule().RegisterCustomClassLayout(TEXT("Actor"), FOnGetDetailCustomizationInstance::CreateLambda([]()
																  { return TSharedRef<IDetailCustomization>(MakeShared<FTestActorCustomisation>()); }));
	FDetailsViewDriver Driver({Spawn()});
	const TArray<TSharedRef<FHeadlessDetailCategory>>& Categories = Driver.GetCategories();
	ASSERT_GE(Categories.Num(), 2);
	EXPECT_EQ(Categories.Last()->Name, FName(TEXT("Custom")));
	EXPECT_EQ(Categories.Last()->DisplayName.ToString(), TEXT("Custom Category"));
	ASSERT_EQ(Categories.Last()->Rows.Num(), 1);
	EXPECT_EQ(Categories.Last()->Rows[0]->Name, FName(TEXT("Options")));
	EXPECT_TRUE(Driver.FindCategory(TEXT("Screen Capture"))->Rows.IsEmpty());
	PropertyModule().UnregisterCustomClassLayout(TEXT("Actor"));
}
