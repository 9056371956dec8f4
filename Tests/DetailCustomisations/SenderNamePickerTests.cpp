#include "DetailCustomisations/NDIActiveSenderNamesCustomisation.h"
#include "DetailCustomisations/SpoutActiveSenderNamesCustomisation.h"
#include "DetailsViewDriver.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "HeadlessEditorSession.h"
#include "Internationalization/Text.h"
#include "KyroNDIReceiverManager.h"
#include "KyroScreenCapture.h"
#include "KyroSpoutReceiverManager.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "SourceListControls.h"
#include "WidgetDriver.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
	typedef SComboBox<TSharedPtr<FString>> FStringCombo;

	/** Strings as one readable line, so that a failed comparison shows them. */
	std::string Describe(const TArray<FString>& Strings)
	{
		return TCHAR_TO_UTF8(*FString::Join(Strings, TEXT(" | ")));
	}

	/** The Spout picker: Spout's live senders, a Spout receiver, and its gamma row last. */
	struct FSpoutPicker
	{
		typedef AKyroSpoutReceiverManager FReceiverActor;
		static FActiveSenderNameList& GetList() { return FSpoutActiveSenderNameList::Get(); }
		static void SetLiveNames(const TArray<FString>& Names) { HeadlessSourceLists::SetSpoutSenderNames(Names); }
		static FString GetLastRowLabel() { return TEXT("Fix Gamma"); }
	};

	/** The NDI picker: the sources the NDI finder sees, an NDI receiver, and its sound-wave row last. */
	struct FNDIPicker
	{
		typedef AKyroNDIReceiverManager FReceiverActor;
		static FActiveSenderNameList& GetList() { return FNDIActiveSenderNameList::Get(); }
		static void SetLiveNames(const TArray<FString>& Names) { HeadlessSourceLists::SetNDISourceNames(Names); }
		static FString GetLastRowLabel() { return TEXT("NDI Sound Wave"); }
	};

	template <typename PickerType>
	class SenderNamePicker : public ::testing::Test
	{
	protected:
		typedef typename PickerType::FReceiverActor FReceiverActor;

		virtual void TearDown() override { HeadlessSourceLists::Reset(); }

		FReceiverActor* SpawnReceiver(const FString& Name, bool bUseFirst)
		{
			FReceiverActor* Receiver = GEditor->GetEditorWorldContext().World()->SpawnActor<FReceiverActor>();
			Receiver->Receiver.Name = Name;
			Receiver->Receiver.UseFirstAvailableSender = bUseFirst;
			return Receiver;
		}

		static TSharedPtr<FStringCombo> FindCombo(const FDetailsViewDriver& Driver)
		{
			const TSharedPtr<FHeadlessDetailRow> Row = Driver.FindCustomRow(TEXT("Name"));
			return Row.IsValid() ? FDetailsViewDriver::FindValueWidget<FStringCombo>(*Row, TEXT("SComboBox")) : nullptr;
		}

		/** The closed combo box's text, evaluated as the panel's poll does. */
		static FString Label(const TSharedPtr<FStringCombo>& Combo) { return FWidgetDriver::GetDisplayedText(Combo.ToSharedRef()).Get(FString()); }

		static TArray<FString> Options(const TSharedPtr<FStringCombo>& Combo)
		{
			TArray<FString> Strings;
			for (const TSharedPtr<FString>& Option : FWidgetDriver::GetComboOptions(Combo.ToSharedRef()))
			{
				Strings.Add(*Option);
			}
			return Strings;
		}

		FHeadlessEditorSession Session;
	};

	class FPickerNames
	{
	public:
		template <typename PickerType>
		static std::string GetName(int)
		{
			return std::is_same<PickerType, FSpoutPicker>::value ? "Spout" : "NDI";
		}
	};

	typedef ::testing::Types<FSpoutPicker, FNDIPicker> FPickerTypes;
}

TYPED_TEST_SUITE(SenderNamePicker, FPickerTypes, FPickerNames);

TYPED_TEST(SenderNamePicker, RowsAreHeaderActiveNameRenderTargetAndTheKindRow)
{
	FDetailsViewDriver Driver({this->SpawnReceiver(TEXT("Cam A"), false)});
	const TSharedPtr<FHeadlessDetailRow> Struct = Driver.FindPropertyRow(TEXT("Receiver"));
	ASSERT_TRUE(Struct.IsValid());
	EXPECT_TRUE(Struct->bCustomisedByType);
	EXPECT_EQ(FWidgetDriver::GetDisplayedText(Struct->Widgets.ValueWidget.Widget).Get(FString()), TEXT("5 members"));
	EXPECT_EQ(Struct->Widgets.ValueWidget.MinWidth.Get(0.0f), 130.0f);
	EXPECT_EQ(Struct->Widgets.ValueWidget.MaxWidth.Get(0.0f), 500.0f);
	EXPECT_EQ(Describe(FDetailsViewDriver::GetRowLabels(Struct->Children)), Describe({TEXT("Active"), TEXT("Name"), TEXT("Render Target"), TypeParam::GetLastRowLabel()}));
	EXPECT_EQ(Struct->Children[1]->Widgets.ValueWidget.MinWidth.Get(0.0f), 250.0f);
}

TYPED_TEST(SenderNamePicker, TheNameRowsFilterTextKeepsTheSpoutKey)
{
	FDetailsViewDriver Driver({this->SpawnReceiver(TEXT("Cam A"), false)});
	const TSharedPtr<FHeadlessDetailRow> Row = Driver.FindCustomRow(TEXT("Name"));
	ASSERT_TRUE(Row.IsValid());
	const FText FilterText = Row->Widgets.FilterTextString;
	EXPECT_TRUE(FTextInspector::GetNamespace(FilterText).Get(FString()).Equals(TEXT("ActiveSenderNamesCustomisation")));
	EXPECT_TRUE(FTextInspector::GetKey(FilterText).Get(FString()).Equals(TEXT("SpoutReceiverName")));
}

TYPED_TEST(SenderNamePicker, FirstAvailableModeStoresAndShowsTheFirstAvailableText)
{
	TypeParam::SetLiveNames({TEXT("Studio")});
	typename TestFixture::FReceiverActor* Receiver = this->SpawnReceiver(TEXT("Cam A"), true);
	FDetailsViewDriver Driver({Receiver});
	EXPECT_EQ(Receiver->Receiver.Name, TEXT("Use first available sender"));
	EXPECT_EQ(this->Label(this->FindCombo(Driver)), TEXT("Use first available sender"));
}

TYPED_TEST(SenderNamePicker, TheLiveSendersAreListedByName)
{
	TypeParam::SetLiveNames({TEXT("Studio"), TEXT("Stage"), TEXT("Studio")});
	FDetailsViewDriver Driver({this->SpawnReceiver(TEXT("Stage"), false)});
	const TSharedPtr<FStringCombo> Combo = this->FindCombo(Driver);
	ASSERT_TRUE(Combo.IsValid());
	EXPECT_EQ(this->Label(Combo), TEXT("Stage"));
	EXPECT_EQ(Describe(this->Options(Combo)), Describe({TEXT("Use first available sender"), TEXT("Studio"), TEXT("Stage")}));
}

TYPED_TEST(SenderNamePicker, LostSenderIsKeptLastAndMarkedThenUnmarkedWithoutDuplicate)
{
	TypeParam::SetLiveNames({TEXT("Studio"), TEXT("cam a")});
	FDetailsViewDriver Driver({this->SpawnReceiver(TEXT("Cam A"), false)});
	const TSharedPtr<FStringCombo> Combo = this->FindCombo(Driver);
	ASSERT_TRUE(Combo.IsValid());
	EXPECT_EQ(this->Label(Combo), TEXT("Cam A [lost]"));
	EXPECT_EQ(Describe(this->Options(Combo)), Describe({TEXT("Use first available sender"), TEXT("Studio"), TEXT("cam a"), TEXT("Cam A")}));

	TypeParam::SetLiveNames({TEXT("Cam A"), TEXT("Studio")});
	EXPECT_EQ(this->Label(Combo), TEXT("Cam A"));
	EXPECT_EQ(Describe(this->Options(Combo)), Describe({TEXT("Use first available sender"), TEXT("Studio"), TEXT("Cam A")}));
}

TYPED_TEST(SenderNamePicker, ChoosingEntriesWritesTheFlagAndTheName)
{
	TypeParam::SetLiveNames({TEXT("Studio")});
	typename TestFixture::FReceiverActor* Receiver = this->SpawnReceiver(TEXT("Cam A"), false);
	FDetailsViewDriver Driver({Receiver});
	const TSharedPtr<FStringCombo> Combo = this->FindCombo(Driver);
	const TArray<TSharedPtr<FString>> Items = FWidgetDriver::GetComboOptions(Combo.ToSharedRef());
	FWidgetDriver::PickComboItem(Combo.ToSharedRef(), Items[1]);
	EXPECT_EQ(Receiver->Receiver.Name, TEXT("Studio"));
	EXPECT_FALSE(Receiver->Receiver.UseFirstAvailableSender);
	FWidgetDriver::PickComboItem(Combo.ToSharedRef(), Items[0]);
	EXPECT_TRUE(Receiver->Receiver.UseFirstAvailableSender);
	EXPECT_EQ(Receiver->Receiver.Name, TEXT("Use first available sender"));
	FWidgetDriver::PickComboItem(Combo.ToSharedRef(), Items[1]);
	EXPECT_FALSE(Receiver->Receiver.UseFirstAvailableSender);
	EXPECT_TRUE(Receiver->Receiver.Name.Equals(TEXT("Studio"), ESearchCase::CaseSensitive));
}

TYPED_TEST(SenderNamePicker, TwoReceiversShareOneOptionList)
{
	FDetailsViewDriver First({this->SpawnReceiver(TEXT("Cam A"), false)});
	FDetailsViewDriver Second({this->SpawnReceiver(TEXT("Cam B"), false)});
	EXPECT_EQ(&FWidgetDriver::GetComboOptions(this->FindCombo(First).ToSharedRef()), &FWidgetDriver::GetComboOptions(this->FindCombo(Second).ToSharedRef()));
}

TYPED_TEST(SenderNamePicker, AClosedPickerIsToldNothingMore)
{
	FDetailsViewDriver Closed({this->SpawnReceiver(TEXT("Cam A"), false)});
	FDetailsViewDriver Open({this->SpawnReceiver(TEXT("Cam B"), false)});
	const TSharedPtr<FStringCombo> Combo = this->FindCombo(Open);

	Closed.Close();
	// The open picker's update tells every picker of its kind; the closed one must be gone from the list's event.
	EXPECT_EQ(this->Label(Combo), TEXT("Cam B [lost]"));
	Open.Close();
	EXPECT_FALSE(TypeParam::GetList().OnCurrentSenderLost.IsBound());
}

TEST(SenderNamePickerDeathTest, AStructWithoutANameIsFatal)
{
	EXPECT_DEATH(
		{
			FHeadlessEditorSession Session;
			FPropertyEditorModule& PropertyEditor = FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor"));
			PropertyEditor.RegisterCustomPropertyTypeLayout(TEXT("KyroScreenCaptureOptions"), FOnGetPropertyTypeCustomizationInstance::CreateStatic(&FSpoutActiveSenderNamesCustomisation::MakeInstance));
			FDetailsViewDriver Driver({GEditor->GetEditorWorldContext().World()->SpawnActor<AKyroScreenCapture>()});
		},
		"Assertion failed: NameProperty.IsValid\\(\\)");
}

TEST(SenderNamePicker, WithoutTheNDIModuleTheNDIReceiverKeepsTheDefaultLayout)
{
	FHeadlessEditorOptions Options;
	Options.bKyroNDILoaded = false;
	FHeadlessEditorSession Session(Options);
	FDetailsViewDriver Driver({GEditor->GetEditorWorldContext().World()->SpawnActor<AKyroNDIReceiverManager>()});
	const TSharedPtr<FHeadlessDetailRow> Struct = Driver.FindPropertyRow(TEXT("Receiver"));
	ASSERT_TRUE(Struct.IsValid());
	EXPECT_FALSE(Struct->bCustomisedByType);
	EXPECT_EQ(Struct->Children.Num(), 5);
}
