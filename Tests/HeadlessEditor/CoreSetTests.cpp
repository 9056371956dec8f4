#include "Containers/Set.h"
#include "Containers/UnrealString.h"
#include "Misc/Crc.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace
{
	struct FIntKeyFuncs : DefaultKeyFuncs<int32>
	{
		static uint32 GetKeyHash(int32 Key) { return static_cast<uint32>(Key) * 2654435761u; }
	};

	/** Few hashes for many keys, so that removals happen inside long runs of occupied buckets. */
	struct FCollidingKeyFuncs : DefaultKeyFuncs<int32>
	{
		static uint32 GetKeyHash(int32 Key) { return static_cast<uint32>(Key % 5); }
	};
}

TEST(CoreSet, RemovesOnlyTheMatchingElementAndCountsIt)
{
	TSet<int32, FIntKeyFuncs> Set;
	Set.Add(1);
	Set.Add(2);
	Set.Add(3);
	EXPECT_EQ(Set.Remove(2), 1);
	EXPECT_EQ(Set.Remove(2), 0);
	EXPECT_EQ(Set.Remove(7), 0);
	EXPECT_EQ(Set.Num(), 2);
	EXPECT_TRUE(Set.Contains(1));
	EXPECT_FALSE(Set.Contains(2));
	EXPECT_TRUE(Set.Contains(3));
}

TEST(CoreSet, EveryOtherElementStaysFindableAfterRandomAddsAndRemovals)
{
	std::mt19937 Random(7);
	TSet<int32, FCollidingKeyFuncs> Set;
	std::set<int32> Expected;
	for (int32 Step = 0; Step < 20000; ++Step)
	{
		const int32 Key = static_cast<int32>(Random() % 200);
		if (Random() % 2 == 0)
		{
			Set.Add(Key);
			Expected.insert(Key);
		}
		else
		{
			ASSERT_EQ(Set.Remove(Key), static_cast<int32>(Expected.erase(Key))) << "step " << Step;
		}
		ASSERT_EQ(Set.Num(), static_cast<int32>(Expected.size()));
		if (Step % 100 == 0)
		{
			for (int32 Probe = 0; Probe < 200; ++Probe)
			{
				ASSERT_EQ(Set.Contains(Probe), Expected.count(Probe) == 1) << "step " << Step << " key " << Probe;
			}
		}
	}
}

TEST(CoreSet, FindGivesTheElementOfTheKeyAfterTheLastElementFilledAHole)
{
	TSet<FString> Set;
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Set.Add(FString::Printf(TEXT("Name %d"), Index));
	}
	Set.Remove(TEXT("Name 3"));
	for (int32 Index = 0; Index < 50; ++Index)
	{
		const FString Key = FString::Printf(TEXT("Name %d"), Index);
		const FString* Found = Set.Find(Key);
		if (Index == 3)
		{
			EXPECT_EQ(Found, nullptr);
			continue;
		}
		ASSERT_NE(Found, nullptr) << Index;
		EXPECT_EQ(*Found, Key);
	}
}

TEST(CoreSet, MemCrc32DependsOnEveryByteAndSpreadsNamesOverTheLowBits)
{
	const FString Name = TEXT("Studio sender 12");
	const uint32 Hash = FCrc::MemCrc32(*Name, Name.Len() * sizeof(TCHAR));
	EXPECT_EQ(Hash, FCrc::MemCrc32(*Name, Name.Len() * sizeof(TCHAR)));
	EXPECT_NE(Hash, FCrc::MemCrc32(*Name, Name.Len() * sizeof(TCHAR), 1));
	const FString Other = TEXT("Studio sender 13");
	EXPECT_NE(Hash, FCrc::MemCrc32(*Other, Other.Len() * sizeof(TCHAR)));
	const FString Upper = TEXT("STUDIO sender 12");
	EXPECT_NE(Hash, FCrc::MemCrc32(*Upper, Upper.Len() * sizeof(TCHAR)));

	// Numbered names, the usual way senders differ, land in distinct low-bit buckets almost always.
	std::set<uint32> Buckets;
	std::set<uint32> Hashes;
	for (int32 Index = 0; Index < 1000; ++Index)
	{
		const FString Numbered = FString::Printf(TEXT("Studio sender %d"), Index);
		const uint32 NumberedHash = FCrc::MemCrc32(*Numbered, Numbered.Len() * sizeof(TCHAR));
		Hashes.insert(NumberedHash);
		Buckets.insert(NumberedHash & 4095);
	}
	EXPECT_EQ(Hashes.size(), 1000u);
	EXPECT_GT(Buckets.size(), 850u);
}

TEST(CoreSet, AddReturnsTheElementsIdAndTellsWhetherItWasAlreadyThere)
{
	TSet<int32, FIntKeyFuncs> Set;
	bool bWasThere = true;

	const FSetElementId First = Set.Add(4, &bWasThere);
	EXPECT_TRUE(First.IsValidId());
	EXPECT_FALSE(bWasThere);
	const FSetElementId Second = Set.Add(9, &bWasThere);
	EXPECT_FALSE(bWasThere);
	EXPECT_FALSE(Second == First);

	EXPECT_TRUE(Set.Add(4, &bWasThere) == First);
	EXPECT_TRUE(bWasThere);
	EXPECT_EQ(Set.Num(), 2);
	EXPECT_FALSE(FSetElementId().IsValidId());
}

TEST(CoreSet, AddingAnElementEqualToAStoredOneReplacesIt)
{
	TSet<FString> Names;
	Names.Add(FString(TEXT("Stage")));

	Names.Add(FString(TEXT("STAGE")));

	EXPECT_EQ(Names.Num(), 1);
	ASSERT_NE(Names.Find(FString(TEXT("stage"))), nullptr);
	EXPECT_TRUE(Names.Find(FString(TEXT("stage")))->Equals(TEXT("STAGE"), ESearchCase::CaseSensitive)) << "The engine keeps the element added last";
}
