#include "DetailCustomisations/SpoutActiveSenderNamesCustomisation.h"
#include "DetailsViewDriver.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "HeadlessEditorSession.h"
#include "KyroNDIReceiverManager.h"
#include "KyroSpoutReceiverManager.h"
#include "SourceListControls.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Text/STextBlock.h"
#include "WidgetDriver.h"

#include <gtest/gtest.h>

namespace
{
	typedef SComboBox<TSharedPtr<FString>> FStringCombo;

	class SenderNamePickerTests : public ::testing::Test
	{
	protected:
		virtual void TearDown() override { HeadlessSourceLists::Reset(); }

		AKyroSpoutReceiverManager* SpawnReceiver(const FString& Name, bool bUseFirst)
		{
			AKyroSpoutReceiverManager* Receiver = GEditor->GetEditorWorldContext().World()->SpawnActor<AKyroSpoutReceiverManager>();
			Receiver->Receiver.Name = Name;
			Receiver->Receiver.UseFirstAvailableSender = bUseFirst;
			return Receiver;
		}

		static TSharedPtr<FStringCombo> FindCombo(const FDetailsViewDriver& Driver)
		{
			const TSharedPtr<FHeadlessDetailRow> Row = Driver.FindCustomRow(TEXT("Name"));
			return Row.IsValid() ? FDetailsViewDriver::FindValueWidget<FStringCombo>(*Row, TEXT("SComboBox")) : nullptr;
		}

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
}

TEST_F(SenderNamePickerTests, RowsAreHeaderActiveNameRenderTargetAndTheKindRow)
{
	FDetailsViewDriver Driver({SpawnReceiver(TEXT("Cam A"), false)});
	const TSharedPtr<FHeadlessDetailRow> Struct = Driver.FindPropertyRow(TEXT("Receiver"));
	ASSERT_TRUE(Struct.IsValid());
	EXPECT_EQ(FWidgetDriver::GetDisplayedText(Struct->Widgets.ValueWidget.Widget).Get(FString()), TEXT("5 members"));
	EXPECT_EQ(Struct->Widgets.ValueWidget.MinWidth.Get(0.0f), 130.0f);
	EXPECT_EQ(Struct->Widgets.ValueWidget.MaxWidth.Get(0.0f), 500.0f);
	EXPECT_EQ(FDetailsViewDriver::GetRowLabels(Struct->Children), TArray<FString>({TEXT("Active"), TEXT("Name"), TEXT("Render Target"), TEXT("Fix Gamma")}));
	EXPECT_EQ(Struct->Children[1]->Widgets.ValueWidget.MinWidth.Get(0.0f), 250.0f);
}

TEST_F(SenderNamePickerTests, FirstAvailableModeStoresAndShowsTheFirstAvailableText)
{
	HeadlessSourceLists::SetSpoutSenderNames({TEXT("Studio")});
	AKyroSpoutReceiverManager* Receiver = SpawnReceiver(TEXT("Cam A"), true);
	FDetailsViewDriver Driver({Receiver});
	EXPECT_EQ(Receiver->Receiver.Name, TEXT("Use first available sender"));
	EXPECT_EQ(Label(FindCombo(Driver)), TEXT("Use first available sender"));
}

TEST_F(SenderNamePickerTests, LostSenderIsKeptLastAndMarkedThenUnmarkedWithoutDuplicate)
{
	HeadlessSourceLists::SetSpoutSenderNames({TEXT("Studio"), TEXT("cam a")});
	FDetailsViewDriver Driver({SpawnReceiver(TEXT("Cam A"), false)});
	const TSharedPtr<FStringCombo> Combo = FindCombo(Driver);
	ASSERT_TRUE(Combo.IsValid());
	EXPECT_EQ(Label(Combo), TEXT("Cam A [lost]"));
	EXPECT_EQ(Options(Combo), TArray<FString>({TEXT("Use first available sender"), TEXT("Studio"), TEXT("cam a"), TEXT("Cam A")}));

	HeadlessSourceLists::SetSpoutSenderNames({TEXT("Cam A"), TEXT("Studio")});
	EXPECT_EQ(Label(Combo), TEXT("Cam A"));
	EXPECT_EQ(Options(Combo), TArray<FString>({TEXT("Use first available sender"), TEXT("Studio"), TEXT("Cam A")}));
}

TEST_F(SenderNamePickerTests, ChoosingEntriesWritesTheFlagAndTheName)
{
	HeadlessSourceLists::SetSpoutSenderNames({TEXT("Studio")});
	AKyroSpoutReceiverManager* Receiver = SpawnReceiver(TEXT("Cam A"), false);
	FDetailsViewDriver Driver({Receiver});
	const TSharedPtr<FStringCombo> Combo = FindCombo(Driver);
	const TArray<TSharedPtr<FString>> Items = FWidgetDriver::GetComboOptions(Combo.ToSharedRef());
	FWidgetDriver::PickComboItem(Combo.ToSharedRef(), Items[1]);
	EXPECT_EQ(Receiver->Receiver.Name, TEXT("Studio"));
	EXPECT_FALSE(Receiver->Receiver.UseFirstAvailableSender);
	FWidgetDriver::PickComboItem(Combo.ToSharedRef(), Items[0]);
	EXPECT_TRUE(Receiver->Receiver.UseFirstAvailableSender);
	EXPECT_EQ(Receiver->Receiver.Name, TEXT("Use first available sender"));
}

TEST_F(SenderNamePickerTests, TwoReceiversShareOneOptionList)
{
	FDetailsViewDriver First({SpawnReceiver(TEXT("Cam A"), false)});
	FDetailsViewDriver Second({SpawnReceiver(TEXT("Cam B"), false)});
	EXPECT_EQ(&FWidgetDriver::GetComboOptions(FindCombo(First).ToSharedRef()), &FWidgetDriver::GetComboOptions(FindCombo(Second).ToSharedRef()));
}

TEST_F(SenderNamePickerTests, MissingNameChildIsFatal)
{
	EXPECT_DEATH(
		{
			FDetailsViewDriver Driver({SpawnReceiver(TEXT(""), false)});
			TSharedRef<IPropertyTypeCustomization> Customisation = FSpoutActiveSenderNamesCustomisation::MakeInstance();
			StaticCastSharedRef<FSpoutActiveSenderNamesCustomisation>(Customisation)->GetCurrentItem();
		},
		"Assertion failed: NameProperty.IsValid\\(\\)");
}

TEST(SenderNamePickerWithoutNDITests, NDIReceiverKeepsTheDefaultLayout)
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
