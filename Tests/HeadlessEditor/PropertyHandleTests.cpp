#include "Components/SceneCaptureComponent.h"
#include "DetailsViewDriver.h"
#include "HeadlessEditorSession.h"
#include "Interfaces/IPluginManager.h"
#include "KyroCGCaptureComponent.h"
#include "KyroCaptureComponent.h"
#include "Misc/Paths.h"
#include "PropertyHandle.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace
{
	class PropertyHandle : public ::testing::Test
	{
	protected:
		PropertyHandle()
			: Session(MakeOptions())
		{
		}

		static FHeadlessEditorOptions MakeOptions()
		{
			FHeadlessEditorOptions Options;
			Options.bStartEditorModule = false;
			return Options;
		}

		static UKyroCaptureComponent* MakeCapture() { return NewObject<UKyroCaptureComponent>(GetTransientPackage()); }

		FHeadlessEditorSession Session;
	};

	TEST_F(PropertyHandle, FindPluginMatchesTheNameIgnoringCase)
	{
		IPluginManager& PluginManager = IPluginManager::Get();

		const TSharedPtr<IPlugin> Plugin = PluginManager.FindPlugin(TEXT("KyroCastellan"));
		ASSERT_TRUE(Plugin.IsValid());
		EXPECT_TRUE(Plugin->GetName().Equals(TEXT("KyroCastellan")));
		EXPECT_EQ(PluginManager.FindPlugin(TEXT("kyrocastellan")), Plugin);
		EXPECT_EQ(PluginManager.FindPlugin("KyroCastellan"), Plugin);
		EXPECT_FALSE(PluginManager.FindPlugin(TEXT("KyroCastellanX")).IsValid());
		EXPECT_FALSE(PluginManager.FindPlugin(TEXT("")).IsValid());
		EXPECT_TRUE(Plugin->GetContentDir().Equals(Plugin->GetBaseDir() / TEXT("Content")));
	}

	TEST_F(PropertyHandle, BoolTextImportsLikeTheEngineIgnoringCase)
	{
		UKyroCaptureComponent* Capture = MakeCapture();
		FDetailsViewDriver Driver({Capture});
		const TSharedRef<IPropertyHandle> Alpha = Driver.GetView().GetPropertyHandle(TEXT("bCaptureAlpha"));
		ASSERT_TRUE(Alpha->IsValidHandle());

		for (const TCHAR* TrueText : {TEXT("True"), TEXT("true"), TEXT("TRUE"), TEXT("1"), TEXT("Yes"), TEXT("yes")})
		{
			Capture->bCaptureAlpha = false;
			EXPECT_EQ(Alpha->SetValueFromFormattedString(TrueText), FPropertyAccess::Success) << *FString(TrueText);
			EXPECT_TRUE(Capture->bCaptureAlpha) << *FString(TrueText);
		}
		for (const TCHAR* FalseText : {TEXT("False"), TEXT("false"), TEXT("0"), TEXT("No"), TEXT("no")})
		{
			Capture->bCaptureAlpha = true;
			EXPECT_EQ(Alpha->SetValueFromFormattedString(FalseText), FPropertyAccess::Success) << *FString(FalseText);
			EXPECT_FALSE(Capture->bCaptureAlpha) << *FString(FalseText);
		}
	}

	TEST_F(PropertyHandle, TextThatDoesNotImportLeavesTheValueAndStillSucceeds)
	{
		UKyroCaptureComponent* Capture = MakeCapture();
		Capture->bCaptureAlpha = true;
		Capture->CaptureFrameRate = 24;
		FDetailsViewDriver Driver({Capture});

		EXPECT_EQ(Driver.GetView().GetPropertyHandle(TEXT("bCaptureAlpha"))->SetValueFromFormattedString(TEXT("maybe")), FPropertyAccess::Success);
		EXPECT_TRUE(Capture->bCaptureAlpha);
		EXPECT_EQ(Driver.GetView().GetPropertyHandle(TEXT("CaptureFrameRate"))->SetValueFromFormattedString(TEXT("fast")), FPropertyAccess::Success);
		EXPECT_EQ(Capture->CaptureFrameRate, 24);
		EXPECT_EQ(Driver.GetView().GetPropertyHandle(TEXT("CaptureFrameRate"))->SetValueFromFormattedString(TEXT("")), FPropertyAccess::Success);
		EXPECT_EQ(Capture->CaptureFrameRate, 24);
	}

	TEST_F(PropertyHandle, TypedTextNotifiesWhenItDiffersFromTheValuesTextEvenIfTheValueStays)
	{
		UKyroCaptureComponent* Capture = NewObject<UKyroCaptureComponent>(CreatePackage(TEXT("/Game/PropertyHandleProbe")));
		Capture->bCaptureAlpha = true;
		Capture->CaptureFrameRate = 30;
		Capture->GetOutermost()->SetDirtyFlag(false);
		FDetailsViewDriver Driver({Capture});
		const TSharedRef<IPropertyHandle> Alpha = Driver.GetView().GetPropertyHandle(TEXT("bCaptureAlpha"));
		const TSharedRef<IPropertyHandle> FrameRate = Driver.GetView().GetPropertyHandle(TEXT("CaptureFrameRate"));
		int32 Changes = 0;
		Alpha->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&Changes]()
			{ ++Changes; }));
		FrameRate->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&Changes]()
			{ ++Changes; }));

		Alpha->SetValueFromFormattedString(TEXT("True"));
		EXPECT_EQ(Changes, 0) << "The same text as the value's is no change";
		FrameRate->SetValueFromFormattedString(TEXT("\"30\""));
		EXPECT_EQ(Changes, 0) << "Quotes around the text are ignored";
		EXPECT_FALSE(Capture->GetOutermost()->IsDirty());

		Alpha->SetValueFromFormattedString(TEXT("true"));
		EXPECT_EQ(Changes, 1);
		FrameRate->SetValueFromFormattedString(TEXT("030"));
		EXPECT_EQ(Changes, 2);
		EXPECT_TRUE(Capture->bCaptureAlpha);
		EXPECT_EQ(Capture->CaptureFrameRate, 30);
		EXPECT_TRUE(Capture->GetOutermost()->IsDirty()) << "Announcing a change modifies the object before the edit";

		Alpha->SetValue(true);
		EXPECT_EQ(Changes, 2) << "Typed values notify only on a change";
		FrameRate->SetValueFromFormattedString(TEXT("31"));
		EXPECT_EQ(Changes, 3);
	}

	TEST_F(PropertyHandle, IntegerTextReadsTheLeadingDecimalNumber)
	{
		UKyroCaptureComponent* Capture = MakeCapture();
		FDetailsViewDriver Driver({Capture});
		const TSharedRef<IPropertyHandle> FrameRate = Driver.GetView().GetPropertyHandle(TEXT("CaptureFrameRate"));

		const TPair<const TCHAR*, int32> Cases[] = {
			{TEXT("60"), 60},
			{TEXT("-5"), -5},
			{TEXT("+7"), 7},
			{TEXT("12abc"), 12},
			{TEXT("25.9"), 25},
			{TEXT("010"), 10},
			{TEXT("0x1F"), 0},
		};
		for (const TPair<const TCHAR*, int32>& Case : Cases)
		{
			Capture->CaptureFrameRate = 99;
			EXPECT_EQ(FrameRate->SetValueFromFormattedString(Case.Key), FPropertyAccess::Success) << *FString(Case.Key);
			EXPECT_EQ(Capture->CaptureFrameRate, Case.Value) << *FString(Case.Key);
		}
	}

	TEST_F(PropertyHandle, FloatTextReadsTheLeadingNumberAndIsNotClampedByMetadata)
	{
		UKyroCaptureComponent* Capture = MakeCapture();
		FDetailsViewDriver Driver({Capture});
		const TSharedRef<IPropertyHandle> FieldOfView = Driver.GetView().GetPropertyHandle(TEXT("FOVAngle"));

		EXPECT_EQ(FieldOfView->SetValueFromFormattedString(TEXT("72.5")), FPropertyAccess::Success);
		EXPECT_FLOAT_EQ(Capture->FOVAngle, 72.5f);
		EXPECT_EQ(FieldOfView->SetValueFromFormattedString(TEXT("45f")), FPropertyAccess::Success);
		EXPECT_FLOAT_EQ(Capture->FOVAngle, 45.0f);
		EXPECT_EQ(FieldOfView->SetValueFromFormattedString(TEXT("500")), FPropertyAccess::Success);
		EXPECT_FLOAT_EQ(Capture->FOVAngle, 500.0f) << "Clamping is the numeric widget's job, not the handle's";
		EXPECT_EQ(FieldOfView->SetValueFromFormattedString(TEXT("wide")), FPropertyAccess::Success);
		EXPECT_FLOAT_EQ(Capture->FOVAngle, 0.0f) << "A float reads 0 from text without a number";
	}

	TEST_F(PropertyHandle, StringAndNameTextIsTakenWhole)
	{
		UKyroCaptureComponent* Capture = MakeCapture();
		UKyroCGCaptureComponent* Layered = NewObject<UKyroCGCaptureComponent>(GetTransientPackage());
		FDetailsViewDriver StringDriver({Capture});
		FDetailsViewDriver NameDriver({Layered});

		const TSharedRef<IPropertyHandle> EventName = StringDriver.GetView().GetPropertyHandle(TEXT("ProfilingEventName"));
		EXPECT_EQ(EventName->SetValueFromFormattedString(TEXT("  Stream, \"main\" (1)")), FPropertyAccess::Success);
		EXPECT_TRUE(Capture->ProfilingEventName.Equals(TEXT("  Stream, \"main\" (1)")));

		const TSharedRef<IPropertyHandle> Layer = NameDriver.GetView().GetPropertyHandle(TEXT("CompositeLayer"));
		EXPECT_EQ(Layer->SetValueFromFormattedString(TEXT("Fore Ground")), FPropertyAccess::Success);
		EXPECT_TRUE(Layered->CompositeLayer.ToString().Equals(TEXT("Fore Ground")));
		EXPECT_EQ(Layer->SetValueFromFormattedString(TEXT("None")), FPropertyAccess::Success);
		EXPECT_TRUE(Layered->CompositeLayer.IsNone());

		EXPECT_EQ(Layer->SetValueFromFormattedString(FString::ChrN(NAME_SIZE, TEXT('n'))), FPropertyAccess::Fail);
		EXPECT_TRUE(Layered->CompositeLayer.IsNone());
	}

	TEST_F(PropertyHandle, FormattedValuesOfDisagreeingObjectsReadMultipleValues)
	{
		UKyroCaptureComponent* First = MakeCapture();
		UKyroCaptureComponent* Second = MakeCapture();
		First->CaptureFrameRate = 30;
		Second->CaptureFrameRate = 60;
		FDetailsViewDriver Driver({First, Second});
		const TSharedRef<IPropertyHandle> FrameRate = Driver.GetView().GetPropertyHandle(TEXT("CaptureFrameRate"));

		FString Text;
		EXPECT_EQ(FrameRate->GetValueAsFormattedString(Text), FPropertyAccess::MultipleValues);
		EXPECT_TRUE(Text.Equals(TEXT("Multiple Values")));
		EXPECT_EQ(FrameRate->GetNumOuterObjects(), 2u);

		EXPECT_EQ(FrameRate->SetValueFromFormattedString(TEXT("50")), FPropertyAccess::Success);
		EXPECT_EQ(First->CaptureFrameRate, 50);
		EXPECT_EQ(Second->CaptureFrameRate, 50);
		EXPECT_EQ(FrameRate->GetValueAsFormattedString(Text), FPropertyAccess::Success);
		EXPECT_TRUE(Text.Equals(TEXT("50")));
	}

	TEST_F(PropertyHandle, ArrayElementsAreChildHandlesWithTheirIndexAndMembers)
	{
		UKyroCaptureComponent* Capture = MakeCapture();
		Capture->ShowFlagSettings = {FEngineShowFlagsSetting{TEXT("Bloom"), false}, FEngineShowFlagsSetting{TEXT("Fog"), true}};
		FDetailsViewDriver Driver({Capture});
		const TSharedRef<IPropertyHandle> Settings = Driver.GetView().GetPropertyHandle(TEXT("ShowFlagSettings"));

		uint32 NumElements = 0;
		EXPECT_EQ(Settings->GetNumChildren(NumElements), FPropertyAccess::Success);
		EXPECT_EQ(NumElements, 2u);
		EXPECT_EQ(Settings->GetIndexInArray(), INDEX_NONE);

		const TSharedPtr<IPropertyHandle> Second = Settings->GetChildHandle(1u);
		ASSERT_TRUE(Second.IsValid());
		EXPECT_EQ(Second->GetIndexInArray(), 1);
		EXPECT_FALSE(Settings->GetChildHandle(2u).IsValid());

		uint32 NumMembers = 0;
		EXPECT_EQ(Second->GetNumChildren(NumMembers), FPropertyAccess::Success);
		EXPECT_EQ(NumMembers, 2u);
		const TSharedPtr<IPropertyHandle> Name = Second->GetChildHandle(TEXT("ShowFlagName"));
		ASSERT_TRUE(Name.IsValid());
		FString Value;
		EXPECT_EQ(Name->GetValue(Value), FPropertyAccess::Success);
		EXPECT_TRUE(Value.Equals(TEXT("Fog")));

		EXPECT_EQ(Second->GetChildHandle(TEXT("Enabled"))->SetValueFromFormattedString(TEXT("false")), FPropertyAccess::Success);
		EXPECT_FALSE(Capture->ShowFlagSettings[1].Enabled);
		EXPECT_FALSE(Capture->ShowFlagSettings[0].Enabled);
		EXPECT_TRUE(Capture->ShowFlagSettings[0].ShowFlagName.Equals(TEXT("Bloom")));
	}

	TEST_F(PropertyHandle, ChildHandlesKnowTheirParentAndLeafPropertiesHaveNoChildren)
	{
		UKyroCaptureComponent* Capture = MakeCapture();
		Capture->ShowFlagSettings = {FEngineShowFlagsSetting{TEXT("Bloom"), true}};
		FDetailsViewDriver Driver({Capture});
		const TSharedRef<IPropertyHandle> Settings = Driver.GetView().GetPropertyHandle(TEXT("ShowFlagSettings"));

		const TSharedPtr<IPropertyHandle> Element = Settings->GetChildHandle(0u);
		ASSERT_TRUE(Element.IsValid());
		const TSharedPtr<IPropertyHandle> Parent = Element->GetParentHandle();
		ASSERT_TRUE(Parent.IsValid());
		EXPECT_EQ(Parent->GetProperty(), Settings->GetProperty());

		uint32 NumChildren = 99;
		EXPECT_EQ(Driver.GetView().GetPropertyHandle(TEXT("CaptureFrameRate"))->GetNumChildren(NumChildren), FPropertyAccess::Success);
		EXPECT_EQ(NumChildren, 0u);
	}
}
