#include "DetailsViewDriver.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "HeadlessEditorSession.h"
#include "KyroSpoutReceiverManager.h"
#include "SourceListControls.h"
#include "Support/SenderNameModel.h"
#include "WidgetDriver.h"
#include "Widgets/Input/SComboBox.h"

#include <gtest/gtest.h>

#include <random>

namespace
{
	typedef SComboBox<TSharedPtr<FString>> FStringCombo;

	std::string Describe(const TArray<TSharedPtr<FString>>& Options)
	{
		TArray<FString> Strings;
		for (const TSharedPtr<FString>& Option : Options)
		{
			Strings.Add(*Option);
		}
		return TCHAR_TO_UTF8(*FString::Join(Strings, TEXT(" | ")));
	}

	/** For each option, the position of the same object in the previous options, or INDEX_NONE. */
	TArray<int32> Carried(const TArray<TSharedPtr<FString>>& Previous, const TArray<TSharedPtr<FString>>& Options)
	{
		TArray<int32> Positions;
		for (const TSharedPtr<FString>& Option : Options)
		{
			Positions.Add(Previous.Find(Option));
		}
		return Positions;
	}

	/** What the picker's label must read after the model's update for this receiver. */
	FString ExpectedLabel(const FSenderNameModel& Model, const FString& StoredName, bool bUseFirst)
	{
		if (bUseFirst)
		{
			return *Model.Options[0];
		}
		const TSharedPtr<FString>* Item = Model.Options.FindByPredicate([&StoredName](const TSharedPtr<FString>& Option)
			{ return Option->Equals(StoredName, ESearchCase::CaseSensitive); });
		const FString Text = Item ? **Item : FString(TEXT("Error"));
		return Model.bLost ? Text + TEXT(" [lost]") : Text;
	}

	/** A Spout receiver in a details view of its own, as one of two panels open side by side. */
	struct FShownReceiver
	{
		explicit FShownReceiver(const FString& Name)
			: Receiver(GEditor->GetEditorWorldContext().World()->SpawnActor<AKyroSpoutReceiverManager>())
		{
			Receiver->Receiver.Name = Name;
			Driver.SetObjects({Receiver});
			const TSharedPtr<FHeadlessDetailRow> Row = Driver.FindCustomRow(TEXT("Name"));
			check(Row.IsValid());
			Combo = FDetailsViewDriver::FindValueWidget<FStringCombo>(*Row, TEXT("SComboBox"));
			check(Combo.IsValid());
		}

		FString EvaluateLabel() const { return FWidgetDriver::GetDisplayedText(Combo.ToSharedRef()).Get(FString()); }
		const TArray<TSharedPtr<FString>>& GetOptions() const { return FWidgetDriver::GetComboOptions(Combo.ToSharedRef()); }

		AKyroSpoutReceiverManager* Receiver;
		FDetailsViewDriver Driver;
		TSharedPtr<FStringCombo> Combo;
	};

	/**
	 * Two pickers in view take turns while live senders drift, duplicate, differ only in case or
	 * take the first-available text, and the receivers' stored names and flags change. After each
	 * label evaluation the picker must show what the step-by-step rules give: the same options,
	 * the same objects kept, and the same label.
	 */
	void RunAgainstTheModel(uint32 Seed, const TArray<FString>& Pool, int32 Steps, int32 MaxLive)
	{
		std::mt19937 Random(Seed);
		auto PickName = [&Pool, &Random]()
		{ return Pool[static_cast<int32>(Random() % Pool.Num())]; };

		FHeadlessEditorSession Session;
		FShownReceiver Shown[2] = {FShownReceiver(PickName()), FShownReceiver(PickName())};
		FSenderNameModel Model;
		Model.Options = Shown[0].GetOptions();
		TArray<FString> Live;
		for (int32 Step = 0; Step < Steps; ++Step)
		{
			for (int32 Change = static_cast<int32>(Random() % 4); Change > 0; --Change)
			{
				if (!Live.IsEmpty() && (Live.Num() >= MaxLive || Random() % 3 == 0))
				{
					Live.RemoveAt(static_cast<int32>(Random() % Live.Num()));
				}
				else
				{
					Live.Insert(PickName(), static_cast<int32>(Random() % (Live.Num() + 1)));
				}
			}
			FShownReceiver& Picker = Shown[Step % 2];
			if (Random() % 8 == 0)
			{
				// The user picks another sender, sometimes one that is live right now.
				Picker.Receiver->Receiver.Name = !Live.IsEmpty() && Random() % 2 == 0 ? Live[static_cast<int32>(Random() % Live.Num())] : PickName();
				Picker.Receiver->Receiver.UseFirstAvailableSender = Random() % 4 == 0;
			}
			HeadlessSourceLists::SetSpoutSenderNames(Live);
			const TArray<TSharedPtr<FString>> Previous = Picker.GetOptions();
			const TArray<TSharedPtr<FString>> PreviousModel = Model.Options;

			const FString Label = Picker.EvaluateLabel();

			const FString& StoredName = Picker.Receiver->Receiver.Name;
			const bool bUseFirst = Picker.Receiver->Receiver.UseFirstAvailableSender;
			Model.Update(Live, StoredName, bUseFirst);
			ASSERT_EQ(Describe(Picker.GetOptions()), Describe(Model.Options)) << "seed " << Seed << " step " << Step;
			ASSERT_EQ(Carried(Previous, Picker.GetOptions()), Carried(PreviousModel, Model.Options)) << "seed " << Seed << " step " << Step;
			ASSERT_TRUE(Label.Equals(ExpectedLabel(Model, StoredName, bUseFirst), ESearchCase::CaseSensitive)) << "seed " << Seed << " step " << Step << ": " << TCHAR_TO_UTF8(*Label);
		}
		HeadlessSourceLists::Reset();
	}
}

TEST(SenderNameEquivalence, ThePickerFollowsTheRulesWithFewNamesThatCollide)
{
	const TArray<FString> Pool = {TEXT("Cam A"), TEXT("cam a"), TEXT("CAM A"), TEXT("Cam B"), TEXT("Studio"), TEXT("Use first available sender"), TEXT("use first available sender"), TEXT(""), TEXT("Desk"), TEXT("desk")};
	for (uint32 Seed = 1; Seed <= 20; ++Seed)
	{
		RunAgainstTheModel(Seed, Pool, 200, 8);
	}
}

TEST(SenderNameEquivalence, ThePickerFollowsTheRulesWhileManySendersDrift)
{
	TArray<FString> Pool = {TEXT("Use first available sender"), TEXT(""), TEXT("Cam A"), TEXT("cam a")};
	for (int32 Index = 0; Index < 60; ++Index)
	{
		Pool.Add(FString::Printf(TEXT("Sender %d"), Index));
		Pool.Add(FString::Printf(TEXT("SENDER %d"), Index));
	}
	for (uint32 Seed = 100; Seed < 110; ++Seed)
	{
		RunAgainstTheModel(Seed, Pool, 300, 80);
	}
}
