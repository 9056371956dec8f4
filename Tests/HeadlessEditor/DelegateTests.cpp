#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "Templates/SharedPointer.h"

#include <gtest/gtest.h>

DECLARE_DELEGATE_RetVal_OneParam(FString, FDescribeDelegate, int32);
DECLARE_DELEGATE_OneParam(FNoteDelegate, const FString&);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnNote, const FString&);

namespace
{
	FString DescribeStatic(int32 Value, FString Prefix)
	{
		return Prefix + FString::FromInt(Value);
	}

	class FListener : public TSharedFromThis<FListener>
	{
	public:
		explicit FListener(FString InName)
			: Name(MoveTemp(InName))
		{
		}
		FString Describe(int32 Value, int32 Payload) const { return Name + FString::Printf(TEXT(":%d:%d"), Value, Payload); }
		void Note(const FString& Text, FString* Log) { *Log += Name + TEXT("(") + Text + TEXT(")"); }

		FString Name;
	};

	/** Records which bindings a broadcast reached, in call order. */
	struct FCallLog
	{
		FString Calls;
		void Record(const TCHAR* Name) { Calls += Name; }
	};
}

TEST(Delegate, SinglePayloadsFollowTheCallArguments)
{
	const FDescribeDelegate Static = FDescribeDelegate::CreateStatic(&DescribeStatic, FString(TEXT("n=")));
	EXPECT_TRUE(Static.Execute(4).Equals(TEXT("n=4")));

	const FDescribeDelegate Lambda = FDescribeDelegate::CreateLambda([](int32 Value, int32 Scale, const FString& Unit)
		{ return FString::FromInt(Value * Scale) + Unit; },
		3, FString(TEXT("px")));
	EXPECT_TRUE(Lambda.Execute(5).Equals(TEXT("15px")));

	FListener Raw(TEXT("raw"));
	const FDescribeDelegate RawBound = FDescribeDelegate::CreateRaw(&Raw, &FListener::Describe, 7);
	EXPECT_TRUE(RawBound.Execute(1).Equals(TEXT("raw:1:7")));

	const TSharedRef<FListener> Shared = MakeShared<FListener>(TEXT("sp"));
	const FDescribeDelegate SharedBound = FDescribeDelegate::CreateSP(Shared, &FListener::Describe, 8);
	EXPECT_TRUE(SharedBound.Execute(2).Equals(TEXT("sp:2:8")));
	EXPECT_TRUE(SharedBound.IsBoundToObject(&Shared.Get()));
	EXPECT_FALSE(SharedBound.IsBoundToObject(&Raw));
}

TEST(Delegate, SinglePayloadsAreCopiedWhenBound)
{
	FString Prefix(TEXT("before:"));
	const FDescribeDelegate Bound = FDescribeDelegate::CreateStatic(&DescribeStatic, Prefix);
	Prefix = TEXT("after:");
	EXPECT_TRUE(Bound.Execute(1).Equals(TEXT("before:1")));
}

TEST(Delegate, SingleSharedBindingsUnbindWhenTheirObjectDies)
{
	TSharedPtr<FListener> Listener = MakeShared<FListener>(TEXT("gone"));
	FString Log;
	FNoteDelegate Delegate;
	Delegate.BindSP(Listener.ToSharedRef(), &FListener::Note, &Log);
	EXPECT_TRUE(Delegate.IsBound());
	EXPECT_EQ(Listener.GetSharedReferenceCount(), 1);
	EXPECT_TRUE(Delegate.ExecuteIfBound(TEXT("a")));
	Listener.Reset();
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.ExecuteIfBound(TEXT("b")));
	EXPECT_TRUE(Log.Equals(TEXT("gone(a)")));
}

TEST(Delegate, SingleUnbindAndExecuteIfBound)
{
	FNoteDelegate Delegate;
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.ExecuteIfBound(TEXT("x")));
	int32 Calls = 0;
	Delegate.BindLambda([&Calls](const FString&)
		{ ++Calls; });
	EXPECT_TRUE(Delegate.ExecuteIfBound(TEXT("x")));
	Delegate.Unbind();
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.ExecuteIfBound(TEXT("x")));
	EXPECT_EQ(Calls, 1);
}

TEST(DelegateDeathTest, SingleExecutingAnUnboundDelegateIsFatal)
{
	const FDescribeDelegate Unbound;
	EXPECT_DEATH((void)Unbound.Execute(1), "Assertion failed");
}

TEST(Delegate, MulticastBroadcastCallsTheLatestBindingFirst)
{
	FOnNote OnNote;
	FCallLog Log;
	OnNote.AddLambda([&Log](const FString&)
		{ Log.Record(TEXT("A")); });
	OnNote.AddLambda([&Log](const FString&)
		{ Log.Record(TEXT("B")); });
	OnNote.AddLambda([&Log](const FString&)
		{ Log.Record(TEXT("C")); });
	OnNote.Broadcast(TEXT("go"));
	EXPECT_TRUE(Log.Calls.Equals(TEXT("CBA"), ESearchCase::CaseSensitive));
}

TEST(Delegate, MulticastRemovingMovesTheLastBindingIntoTheHole)
{
	FOnNote OnNote;
	FCallLog Log;
	const FDelegateHandle First = OnNote.AddLambda([&Log](const FString&)
		{ Log.Record(TEXT("A")); });
	OnNote.AddLambda([&Log](const FString&)
		{ Log.Record(TEXT("B")); });
	OnNote.AddLambda([&Log](const FString&)
		{ Log.Record(TEXT("C")); });
	OnNote.AddLambda([&Log](const FString&)
		{ Log.Record(TEXT("D")); });
	EXPECT_TRUE(OnNote.Remove(First));
	EXPECT_FALSE(OnNote.Remove(First));
	OnNote.Broadcast(TEXT("go"));
	EXPECT_TRUE(Log.Calls.Equals(TEXT("CBD"), ESearchCase::CaseSensitive));
}

TEST(Delegate, MulticastHandlesAreDistinctAndOnlyValidWhenAdded)
{
	FOnNote OnNote;
	const FDelegateHandle First = OnNote.AddLambda([](const FString&) {});
	const FDelegateHandle Second = OnNote.AddLambda([](const FString&) {});
	EXPECT_TRUE(First.IsValid());
	EXPECT_NE(First, Second);
	EXPECT_FALSE(OnNote.Add(FOnNote::FDelegate()).IsValid());
	EXPECT_FALSE(OnNote.Remove(FDelegateHandle()));
}

TEST(Delegate, MulticastABindingRemovedDuringBroadcastIsNotCalled)
{
	FOnNote OnNote;
	FCallLog Log;
	FDelegateHandle Victim;
	OnNote.AddLambda([&Log](const FString&)
		{ Log.Record(TEXT("A")); });
	Victim = OnNote.AddLambda([&Log](const FString&)
		{ Log.Record(TEXT("B")); });
	OnNote.AddLambda([&Log](const FString&)
		{ Log.Record(TEXT("C")); });
	OnNote.AddLambda([&](const FString&)
		{
		Log.Record(TEXT("D"));
		OnNote.Remove(Victim); });
	OnNote.Broadcast(TEXT("first"));
	EXPECT_TRUE(Log.Calls.Equals(TEXT("DCA"), ESearchCase::CaseSensitive));
	// The hole left by the removal is compacted after the broadcast, from the end of the list.
	Log.Calls.Empty();
	OnNote.Broadcast(TEXT("second"));
	EXPECT_TRUE(Log.Calls.Equals(TEXT("CDA"), ESearchCase::CaseSensitive));
}

TEST(Delegate, MulticastABindingAddedDuringBroadcastWaitsForTheNextOne)
{
	FOnNote OnNote;
	FCallLog Log;
	bool bAdded = false;
	OnNote.AddLambda([&](const FString&)
		{
		Log.Record(TEXT("A"));
		if (!bAdded)
		{
			bAdded = true;
			OnNote.AddLambda([&Log](const FString&) { Log.Record(TEXT("N")); });
		} });
	OnNote.Broadcast(TEXT("first"));
	EXPECT_TRUE(Log.Calls.Equals(TEXT("A"), ESearchCase::CaseSensitive));
	OnNote.Broadcast(TEXT("second"));
	EXPECT_TRUE(Log.Calls.Equals(TEXT("ANA"), ESearchCase::CaseSensitive));
}

TEST(Delegate, MulticastABindingMayRemoveItselfWhileRunning)
{
	FOnNote OnNote;
	int32 Calls = 0;
	FDelegateHandle Self;
	Self = OnNote.AddLambda([&](const FString&)
		{
		++Calls;
		OnNote.Remove(Self); });
	OnNote.Broadcast(TEXT("a"));
	OnNote.Broadcast(TEXT("b"));
	EXPECT_EQ(Calls, 1);
	EXPECT_FALSE(OnNote.IsBound());
}

TEST(Delegate, MulticastRemoveAllTakesOnlyThatObjectsBindings)
{
	FOnNote OnNote;
	FString Log;
	FListener First(TEXT("first"));
	FListener Second(TEXT("second"));
	OnNote.AddRaw(&First, &FListener::Note, &Log);
	OnNote.AddRaw(&Second, &FListener::Note, &Log);
	OnNote.AddRaw(&First, &FListener::Note, &Log);
	OnNote.AddLambda([&Log](const FString&)
		{ Log += TEXT("lambda"); });
	EXPECT_TRUE(OnNote.IsBoundToObject(&First));
	EXPECT_EQ(OnNote.RemoveAll(&First), 2);
	EXPECT_FALSE(OnNote.IsBoundToObject(&First));
	EXPECT_TRUE(OnNote.IsBoundToObject(&Second));
	OnNote.Broadcast(TEXT("x"));
	EXPECT_TRUE(Log.Contains(TEXT("second(x)")));
	EXPECT_TRUE(Log.Contains(TEXT("lambda")));
	EXPECT_FALSE(Log.Contains(TEXT("first")));
}

TEST(Delegate, MulticastRemoveAllDuringBroadcastSkipsTheRemovedBindings)
{
	FOnNote OnNote;
	FString Log;
	FListener Doomed(TEXT("doomed"));
	OnNote.AddRaw(&Doomed, &FListener::Note, &Log);
	OnNote.AddLambda([&](const FString&)
		{ EXPECT_EQ(OnNote.RemoveAll(&Doomed), 1); });
	OnNote.Broadcast(TEXT("x"));
	EXPECT_TRUE(Log.IsEmpty());
	EXPECT_FALSE(OnNote.IsBoundToObject(&Doomed));
}

TEST(Delegate, MulticastDeadSharedBindingsCountAsBoundUntilABroadcastSkipsThem)
{
	FOnNote OnNote;
	FString Log;
	TSharedPtr<FListener> Listener = MakeShared<FListener>(TEXT("sp"));
	OnNote.AddSP(Listener.ToSharedRef(), &FListener::Note, &Log);
	Listener.Reset();
	EXPECT_TRUE(OnNote.IsBound());
	OnNote.Broadcast(TEXT("x"));
	EXPECT_TRUE(Log.IsEmpty());
	EXPECT_FALSE(OnNote.IsBound());
}

TEST(Delegate, MulticastClearUnbindsEverything)
{
	FOnNote OnNote;
	int32 Calls = 0;
	OnNote.AddLambda([&Calls](const FString&)
		{ ++Calls; });
	OnNote.AddLambda([&Calls](const FString&)
		{ ++Calls; });
	OnNote.Clear();
	EXPECT_FALSE(OnNote.IsBound());
	OnNote.Broadcast(TEXT("x"));
	EXPECT_EQ(Calls, 0);
}

TEST(Delegate, MulticastClearDuringBroadcastStopsTheRemainingCalls)
{
	FOnNote OnNote;
	FCallLog Log;
	OnNote.AddLambda([&Log](const FString&)
		{ Log.Record(TEXT("A")); });
	OnNote.AddLambda([&](const FString&)
		{
		Log.Record(TEXT("B"));
		OnNote.Clear(); });
	OnNote.Broadcast(TEXT("x"));
	EXPECT_TRUE(Log.Calls.Equals(TEXT("B"), ESearchCase::CaseSensitive));
	EXPECT_FALSE(OnNote.IsBound());
}
