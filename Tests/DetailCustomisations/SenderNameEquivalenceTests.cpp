#include "DetailCustomisations/SpoutActiveSenderNamesCustomisation.h"
#include "SourceListControls.h"
#include "Support/SenderNameModel.h"

#include <gtest/gtest.h>

#include <random>

namespace
{
	TArray<FString> ToStrings(const TArray<TSharedPtr<FString>>& Options)
	{
		TArray<FString> Strings;
		for (const TSharedPtr<FString>& Option : Options)
		{
			Strings.Add(*Option);
		}
		return Strings;
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

	/** The first option equal to Name, searched from the start. */
	int32 FindLinearly(const TArray<TSharedPtr<FString>>& Options, const FString& Name)
	{
		for (int32 Index = 0; Index < Options.Num(); ++Index)
		{
			if (Options[Index]->Equals(Name))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
}

// Many random evaluations with duplicates, case variants, the first-available text as a live
// name and a stored name that comes and goes: the module's update must match the model exactly.
TEST(SenderNameEquivalenceTests, FastUpdateMatchesTheStepByStepRulesOnRandomInputs)
{
	const TArray<FString> Pool = {TEXT("Cam A"), TEXT("cam a"), TEXT("CAM A"), TEXT("Cam B"), TEXT("Studio"), TEXT("Use first available sender"), TEXT("use first available sender"), TEXT(""), TEXT("Desk"), TEXT("desk")};
	std::mt19937 Random(20240511);
	FSpoutActiveSenderNameList& List = FSpoutActiveSenderNameList::Get();
	bool bLost = false;
	List.OnCurrentSenderLost.AddLambda([&bLost](bool bInLost)
		{ bLost = bInLost; });

	for (int32 Run = 0; Run < 200; ++Run)
	{
		List.SenderNameOptions.Empty();
		FSenderNameModel Model;
		for (int32 Step = 0; Step < 40; ++Step)
		{
			TArray<FString> Live;
			const int32 Count = static_cast<int32>(Random() % 8);
			for (int32 Index = 0; Index < Count; ++Index)
			{
				Live.Add(Pool[static_cast<int32>(Random() % Pool.Num())]);
			}
			const FString Current = Pool[static_cast<int32>(Random() % Pool.Num())];
			const bool bUseFirst = Random() % 4 == 0;
			HeadlessSourceLists::SetSpoutSenderNames(Live);

			const TArray<TSharedPtr<FString>> Fast = List.UpdateSenderNameOptions(Current, bUseFirst);
			const TArray<TSharedPtr<FString>> Expected = Model.Update(Live, Current, bUseFirst);
			ASSERT_EQ(ToStrings(Fast), ToStrings(Expected)) << "run " << Run << " step " << Step;
			ASSERT_EQ(bLost, Model.bLost) << "run " << Run << " step " << Step;
			ASSERT_EQ(ToStrings(List.SenderNameOptions), ToStrings(Fast));
		}
	}
	List.OnCurrentSenderLost.Clear();
	HeadlessSourceLists::Reset();
}

// Live lists that drift a few senders at a time, grow past the index's first sizes and shrink
// again, while two receivers with their own stored names and flags take turns, as two pickers in
// view do. Any entry the index kept wrongly from an earlier update shows as a different list, a
// different lost flag, another object for a kept entry or another found option.
TEST(SenderNameEquivalenceTests, FastUpdateMatchesTheStepByStepRulesAcrossDriftingListsAndAlternatingReceivers)
{
	TArray<FString> Pool = {TEXT("Use first available sender"), TEXT(""), TEXT("Cam A"), TEXT("cam a")};
	for (int32 Index = 0; Index < 60; ++Index)
	{
		Pool.Add(FString::Printf(TEXT("Sender %d"), Index));
		Pool.Add(FString::Printf(TEXT("SENDER %d"), Index));
	}
	std::mt19937 Random(8675309);
	FSpoutActiveSenderNameList& List = FSpoutActiveSenderNameList::Get();
	bool bLost = false;
	int32 Broadcasts = 0;
	List.OnCurrentSenderLost.AddLambda([&bLost, &Broadcasts](bool bInLost)
		{
			bLost = bInLost;
			++Broadcasts; });
	auto PickName = [&Pool, &Random]()
	{ return Pool[static_cast<int32>(Random() % Pool.Num())]; };

	for (int32 Run = 0; Run < 40; ++Run)
	{
		List.SenderNameOptions.Empty();
		FSenderNameModel Model;
		TArray<FString> Live;
		FString StoredNames[2] = {PickName(), PickName()};
		bool bUseFirst[2] = {false, Random() % 3 == 0};
		TArray<TSharedPtr<FString>> PreviousFast;
		TArray<TSharedPtr<FString>> PreviousModel;
		const int32 Target = static_cast<int32>(Random() % 80);
		for (int32 Step = 0; Step < 150; ++Step)
		{
			// Senders come up and go away a few at a time, towards a size that changes mid-run.
			const int32 Size = Step < 75 ? Target : Target / 4;
			for (int32 Change = static_cast<int32>(Random() % 4); Change > 0; --Change)
			{
				if (!Live.IsEmpty() && (Live.Num() > Size || Random() % 3 == 0))
				{
					Live.RemoveAt(static_cast<int32>(Random() % Live.Num()));
				}
				else
				{
					Live.Insert(PickName(), static_cast<int32>(Random() % (Live.Num() + 1)));
				}
			}
			const int32 Receiver = Step % 2;
			if (Random() % 10 == 0)
			{
				// The receiver's user picks another sender, or one that is live right now.
				StoredNames[Receiver] = !Live.IsEmpty() && Random() % 2 == 0 ? Live[static_cast<int32>(Random() % Live.Num())] : PickName();
				bUseFirst[Receiver] = Random() % 4 == 0;
			}
			if (Random() % 50 == 0)
			{
				// A list emptied from outside starts again, as at the start of a run.
				List.SenderNameOptions.Empty();
				Model.Options.Empty();
				PreviousFast.Empty();
				PreviousModel.Empty();
			}
			else if (Random() % 50 == 0)
			{
				// Options replaced from outside by equal ones are indexed again, not found by stale keys.
				TArray<TSharedPtr<FString>> Replaced;
				for (const TSharedPtr<FString>& Option : List.SenderNameOptions)
				{
					Replaced.Add(MakeShared<FString>(*Option));
				}
				List.SenderNameOptions = Replaced;
				Model.Options = Replaced;
				PreviousFast = Replaced;
				PreviousModel = Replaced;
			}
			HeadlessSourceLists::SetSpoutSenderNames(Live);
			Broadcasts = 0;

			const TArray<TSharedPtr<FString>> Fast = List.UpdateSenderNameOptions(StoredNames[Receiver], bUseFirst[Receiver]);
			const TArray<TSharedPtr<FString>> Expected = Model.Update(Live, StoredNames[Receiver], bUseFirst[Receiver]);
			ASSERT_EQ(ToStrings(Fast), ToStrings(Expected)) << "run " << Run << " step " << Step;
			ASSERT_EQ(bLost, Model.bLost) << "run " << Run << " step " << Step;
			ASSERT_EQ(Broadcasts, 1);
			ASSERT_EQ(ToStrings(List.SenderNameOptions), ToStrings(Fast));
			ASSERT_EQ(Carried(PreviousFast, Fast), Carried(PreviousModel, Expected)) << "run " << Run << " step " << Step;
			for (const FString& Name : {StoredNames[0], StoredNames[1], PickName()})
			{
				ASSERT_EQ(List.FindOption(Name), FindLinearly(Fast, Name)) << "run " << Run << " step " << Step;
			}
			PreviousFast = Fast;
			PreviousModel = Expected;
		}
	}
	List.OnCurrentSenderLost.Clear();
	HeadlessSourceLists::Reset();
}
