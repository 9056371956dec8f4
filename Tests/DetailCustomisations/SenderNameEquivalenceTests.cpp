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
