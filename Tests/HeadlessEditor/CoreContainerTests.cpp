#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

#include <gtest/gtest.h>

namespace
{
	struct FOutput
	{
		FString Name;
		int32 Priority = 0;
		bool operator<(const FOutput& Other) const { return Priority < Other.Priority; }
	};

	TArray<int32> MakeSequence(int32 Count)
	{
		TArray<int32> Result;
		for (int32 Value = 0; Value < Count; ++Value)
		{
			Result.Add(Value);
		}
		return Result;
	}

	FString Describe(const FString& Value)
	{
		return Value;
	}

	template <typename ValueType>
	FString Describe(const ValueType& Value)
	{
		return LexToString(Value);
	}

	template <typename KeyType, typename ValueType>
	FString DescribeMap(const TMap<KeyType, ValueType>& Map)
	{
		TArray<FString> Parts;
		for (const TPair<KeyType, ValueType>& Pair : Map)
		{
			Parts.Add(Describe(Pair.Key) + TEXT("=") + Describe(Pair.Value));
		}
		return FString::Join(Parts, TEXT(","));
	}

	class FCounter : public TSharedFromThis<FCounter>
	{
	public:
		TSharedRef<FCounter> Self() { return SharedThis(this); }
		int32 Value = 0;
		int32 GetValue() const { return Value; }
	};
}

TEST(CoreContainer, TArrayLastAndTopReadFromTheEnd)
{
	TArray<int32> Values{1, 2, 3};
	EXPECT_EQ(Values.Last(), 3);
	EXPECT_EQ(Values.Last(2), 1);
	EXPECT_EQ(Values.Top(), 3);
	EXPECT_EQ(Values.Pop(), 3);
	EXPECT_EQ(Values.Num(), 2);
}

TEST(CoreContainerDeathTest, TArrayOutOfRangeIndexingIsFatalWithTheEnginesMessage)
{
	TArray<int32> Values{1, 2, 3};
	EXPECT_DEATH((void)Values[3], "Array index out of bounds: 3 from an array of size 3");
	EXPECT_DEATH((void)Values[-1], "Array index out of bounds: -1 from an array of size 3");
	TArray<int32> Empty;
	EXPECT_DEATH((void)Empty.Last(), "Array index out of bounds: -1 from an array of size 0");
	EXPECT_DEATH((void)Empty.Pop(), "Array index out of bounds: 0 from an array of size 0");
}

TEST(CoreContainerDeathTest, TArrayRemoveAtAndInsertOutsideTheArrayAreFatal)
{
	TArray<int32> Values{1, 2, 3};
	EXPECT_DEATH(Values.RemoveAt(2, 2), "Assertion failed");
	EXPECT_DEATH(Values.RemoveAt(-1), "Assertion failed");
	EXPECT_DEATH(Values.Insert(9, 4), "Assertion failed");
	EXPECT_DEATH(Values.Insert(9, -1), "Assertion failed");
}

TEST(CoreContainer, TArrayInsertAtTheEndAndRemoveAtKeepOrder)
{
	TArray<int32> Values{1, 2, 3};
	EXPECT_EQ(Values.Insert(4, 3), 3);
	EXPECT_EQ(Values.Insert(0, 0), 0);
	EXPECT_EQ(Values, (TArray<int32>{0, 1, 2, 3, 4}));
	Values.RemoveAt(1, 2);
	EXPECT_EQ(Values, (TArray<int32>{0, 3, 4}));
	Values.RemoveAt(0, 0);
	EXPECT_EQ(Values.Num(), 3);
}

TEST(CoreContainer, TArrayRemoveAtSwapFillsTheHoleFromTheEnd)
{
	TArray<int32> Values = MakeSequence(7);
	Values.RemoveAtSwap(1);
	EXPECT_EQ(Values, (TArray<int32>{0, 6, 2, 3, 4, 5}));
	Values.RemoveAtSwap(1, 2);
	EXPECT_EQ(Values, (TArray<int32>{0, 4, 5, 3}));
	// Fewer elements after the hole than in it: only those move.
	Values.RemoveAtSwap(1, 2);
	EXPECT_EQ(Values, (TArray<int32>{0, 3}));
	Values.RemoveAtSwap(1);
	EXPECT_EQ(Values, (TArray<int32>{0}));
}

TEST(CoreContainer, TArrayAddUniqueFindsEqualElementsWithTheirOwnEquality)
{
	TArray<FString> Names;
	EXPECT_EQ(Names.AddUnique(TEXT("Spout")), 0);
	EXPECT_EQ(Names.AddUnique(TEXT("NDI")), 1);
	// FString equality ignores case, so this is already there.
	EXPECT_EQ(Names.AddUnique(TEXT("spout")), 0);
	EXPECT_EQ(Names.Num(), 2);
	EXPECT_TRUE(Names[0].Equals(TEXT("Spout"), ESearchCase::CaseSensitive));
}

TEST(CoreContainer, TArrayRemoveCountsEveryEqualElementAndRemoveSingleOnlyTheFirst)
{
	TArray<int32> Values{1, 2, 1, 3, 1};
	EXPECT_EQ(Values.RemoveSingle(1), 1);
	EXPECT_EQ(Values, (TArray<int32>{2, 1, 3, 1}));
	EXPECT_EQ(Values.Remove(1), 2);
	EXPECT_EQ(Values, (TArray<int32>{2, 3}));
	EXPECT_EQ(Values.Remove(7), 0);
}

TEST(CoreContainer, TArrayFindReturnsTheFirstIndexOrIndexNone)
{
	const TArray<FName> Names{FName(TEXT("A")), FName(TEXT("B")), FName(TEXT("a"))};
	EXPECT_EQ(Names.Find(FName(TEXT("a"))), 0);
	EXPECT_EQ(Names.Find(FName(TEXT("C"))), INDEX_NONE);
	int32 Index = 42;
	EXPECT_TRUE(Names.Find(FName(TEXT("b")), Index));
	EXPECT_EQ(Index, 1);
	EXPECT_FALSE(Names.Find(FName(TEXT("Z")), Index));
	EXPECT_EQ(Index, INDEX_NONE);
	EXPECT_EQ(Names.IndexOfByPredicate([](const FName& Name)
				  { return Name == FName(TEXT("B")); }),
		1);
	EXPECT_TRUE(Names.ContainsByPredicate([](const FName& Name)
		{ return Name.ToString().Equals(TEXT("a"), ESearchCase::CaseSensitive); }));
}

TEST(CoreContainer, TArraySortOfPointersComparesWhatTheyPointAt)
{
	FOutput High{TEXT("High"), 3};
	FOutput Low{TEXT("Low"), 1};
	FOutput Mid{TEXT("Mid"), 2};
	TArray<FOutput*> Outputs{&High, &Low, &Mid};
	Outputs.Sort();
	EXPECT_EQ(Outputs[0], &Low);
	EXPECT_EQ(Outputs[1], &Mid);
	EXPECT_EQ(Outputs[2], &High);
	Outputs.Sort([](const FOutput& A, const FOutput& B)
		{ return A.Name.Len() > B.Name.Len(); });
	EXPECT_EQ(Outputs[0], &High);
}

TEST(CoreContainer, TArrayStableSortKeepsTheOrderOfEqualElements)
{
	TArray<FOutput> Outputs{{TEXT("b"), 1}, {TEXT("a"), 0}, {TEXT("c"), 1}, {TEXT("d"), 0}, {TEXT("e"), 1}};
	Outputs.StableSort();
	FString Order;
	for (const FOutput& Output : Outputs)
	{
		Order += Output.Name;
	}
	EXPECT_TRUE(Order.Equals(TEXT("adbce"), ESearchCase::CaseSensitive));
}

TEST(CoreContainer, TArraySortOfFStringsIgnoresCase)
{
	TArray<FString> Names{TEXT("beta"), TEXT("Alpha"), TEXT("alpha2"), TEXT("Gamma")};
	Names.Sort();
	EXPECT_TRUE(FString::Join(Names, TEXT(" ")).Equals(TEXT("Alpha alpha2 beta Gamma"), ESearchCase::CaseSensitive));
}

TEST(CoreContainer, TMapKeysCompareAsTheirTypeDoes)
{
	TMap<FString, int32> ByName;
	ByName.Add(TEXT("Spout"), 1);
	EXPECT_TRUE(ByName.Contains(TEXT("SPOUT")));
	EXPECT_EQ(ByName.FindChecked(TEXT("spout")), 1);
	EXPECT_EQ(ByName.Find(TEXT("NDI")), nullptr);
	EXPECT_EQ(ByName.FindOrAdd(TEXT("NDI")), 0);
	EXPECT_EQ(ByName.Num(), 2);
}

TEST(CoreContainer, TMapAddingAnEqualKeyReplacesKeyAndValueInPlace)
{
	TMap<FString, int32> ByName;
	ByName.Add(TEXT("first"), 1);
	ByName.Add(TEXT("second"), 2);
	ByName.Add(TEXT("FIRST"), 10);
	EXPECT_EQ(ByName.Num(), 2);
	EXPECT_TRUE(DescribeMap(ByName).Equals(TEXT("FIRST=10,second=2"), ESearchCase::CaseSensitive));
}

TEST(CoreContainer, TMapAnAdditionAfterARemovalTakesTheFreedPlace)
{
	TMap<FName, int32> Map;
	Map.Add(TEXT("A"), 1);
	Map.Add(TEXT("B"), 2);
	Map.Add(TEXT("C"), 3);
	Map.Add(TEXT("D"), 4);
	EXPECT_EQ(Map.Remove(TEXT("B")), 1);
	EXPECT_EQ(Map.Remove(TEXT("B")), 0);
	EXPECT_EQ(Map.Remove(TEXT("D")), 1);
	EXPECT_TRUE(DescribeMap(Map).Equals(TEXT("A=1,C=3"), ESearchCase::CaseSensitive));
	// The most recently freed place is reused first.
	Map.Add(TEXT("E"), 5);
	Map.Add(TEXT("F"), 6);
	Map.Add(TEXT("G"), 7);
	EXPECT_TRUE(DescribeMap(Map).Equals(TEXT("A=1,F=6,C=3,E=5,G=7"), ESearchCase::CaseSensitive));
	TArray<FName> Keys;
	EXPECT_EQ(Map.GetKeys(Keys), 5);
	EXPECT_EQ(Keys[1], FName(TEXT("F")));
}

TEST(CoreContainer, TMapEmptyForgetsFreedPlaces)
{
	TMap<int32, int32> Map;
	Map.Add(1, 1);
	Map.Add(2, 2);
	Map.Remove(1);
	Map.Empty();
	EXPECT_TRUE(Map.IsEmpty());
	Map.Add(3, 3);
	Map.Add(4, 4);
	EXPECT_TRUE(DescribeMap(Map).Equals(TEXT("3=3,4=4")));
}

TEST(CoreContainerDeathTest, TMapFindCheckedOfAMissingKeyIsFatal)
{
	TMap<FName, int32> Map;
	EXPECT_DEATH((void)Map.FindChecked(TEXT("Missing")), "Assertion failed");
}

TEST(CoreContainer, TOptionalSetUnsetAndDefaults)
{
	TOptional<int32> Value;
	EXPECT_FALSE(Value.IsSet());
	EXPECT_EQ(Value.Get(7), 7);
	Value = 3;
	EXPECT_TRUE(Value.IsSet());
	EXPECT_EQ(Value.Get(7), 3);
	EXPECT_EQ(Value, TOptional<int32>(3));
	EXPECT_NE(Value, TOptional<int32>());
	EXPECT_EQ(TOptional<int32>(), TOptional<int32>());
	Value.Reset();
	EXPECT_FALSE(Value.IsSet());
	EXPECT_EQ(Value.Emplace(5), 5);
}

TEST(CoreContainerDeathTest, TOptionalGetValueOfAnUnsetOptionalIsFatal)
{
	const TOptional<int32> Unset;
	EXPECT_DEATH((void)Unset.GetValue(), "It is an error to call GetValue\\(\\) on an unset TOptional");
}

TEST(CoreContainer, SharedPointersCountsFollowCopiesAndResets)
{
	TSharedPtr<FCounter> First = MakeShared<FCounter>();
	EXPECT_TRUE(First.IsUnique());
	TSharedPtr<FCounter> Second = First;
	EXPECT_EQ(First.GetSharedReferenceCount(), 2);
	EXPECT_FALSE(First.IsUnique());
	Second.Reset();
	EXPECT_EQ(First.GetSharedReferenceCount(), 1);
	EXPECT_FALSE(Second.IsValid());
}

TEST(CoreContainer, SharedPointersWeakPointersGoStaleWhenTheLastOwnerLetsGo)
{
	TSharedPtr<FCounter> Owner = MakeShared<FCounter>();
	const TWeakPtr<FCounter> Weak = Owner;
	EXPECT_TRUE(Weak.IsValid());
	EXPECT_EQ(Weak.Pin(), Owner);
	{
		const TSharedPtr<FCounter> Pinned = Weak.Pin();
		Owner.Reset();
		EXPECT_TRUE(Weak.IsValid());
	}
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Weak.Pin().IsValid());
}

TEST(CoreContainer, SharedPointersSharedThisSharesTheOwningCount)
{
	const TSharedRef<FCounter> Owner = MakeShared<FCounter>();
	const TSharedRef<FCounter> Again = Owner->Self();
	EXPECT_EQ(&Again.Get(), &Owner.Get());
	EXPECT_EQ(Owner.GetSharedReferenceCount(), 2);
	const TSharedRef<FCounter> FromShareable = MakeShareable(new FCounter());
	EXPECT_EQ(FromShareable->AsShared().GetSharedReferenceCount(), 2);
}

TEST(CoreContainerDeathTest, ToSharedRefOfANullPointerIsFatal)
{
	const TSharedPtr<FCounter> Null;
	EXPECT_DEATH((void)Null.ToSharedRef(), "Assertion failed: IsValid\\(\\)");
}

TEST(CoreContainer, TAttributeUnsetAttributesYieldTheDefault)
{
	const TAttribute<int32> Unset;
	EXPECT_FALSE(Unset.IsSet());
	EXPECT_FALSE(Unset.IsBound());
	EXPECT_EQ(Unset.Get(4), 4);
	EXPECT_EQ(Unset.Get(), 0);
	const TAttribute<int32> Constant(9);
	EXPECT_TRUE(Constant.IsSet());
	EXPECT_FALSE(Constant.IsBound());
	EXPECT_EQ(Constant.Get(4), 9);
}

TEST(CoreContainer, TAttributeBoundGettersRunOnEveryRead)
{
	int32 Calls = 0;
	const TAttribute<int32> Bound = TAttribute<int32>::CreateLambda([&Calls]()
		{ return ++Calls * 10; });
	EXPECT_TRUE(Bound.IsSet());
	EXPECT_TRUE(Bound.IsBound());
	EXPECT_EQ(Bound.Get(), 10);
	EXPECT_EQ(Bound.Get(), 20);
	EXPECT_EQ(Bound.Get(-1), 30);
	EXPECT_EQ(Calls, 3);
}

TEST(CoreContainer, TAttributeSettingAValueDropsTheBinding)
{
	TAttribute<int32> Attribute = TAttribute<int32>::CreateLambda([]()
		{ return 1; });
	Attribute.Set(5);
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_EQ(Attribute.Get(), 5);
}

TEST(CoreContainer, TAttributePayloadsFollowTheGettersArguments)
{
	const TAttribute<int32> Sum = TAttribute<int32>::CreateLambda([](int32 A, int32 B)
		{ return A * 10 + B; },
		4, 2);
	EXPECT_EQ(Sum.Get(), 42);
}

TEST(CoreContainer, TAttributeAGetterWhoseObjectIsGoneKeepsTheLastValue)
{
	TSharedPtr<FCounter> Counter = MakeShared<FCounter>();
	Counter->Value = 12;
	const TAttribute<int32> Attribute = TAttribute<int32>::CreateSP(Counter.Get(), &FCounter::GetValue);
	EXPECT_EQ(Attribute.Get(), 12);
	Counter.Reset();
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_EQ(Attribute.Get(), 12);
}
