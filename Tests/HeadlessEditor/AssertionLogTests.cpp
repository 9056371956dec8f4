#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"
#include "Misc/AssertionMacros.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"

#include <gtest/gtest.h>

DEFINE_LOG_CATEGORY_STATIC(LogQuietTest, Warning, All);
DEFINE_LOG_CATEGORY_STATIC(LogChattyTest, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogCappedTest, Log, Display);

namespace
{
	struct FCapturedLine
	{
		FString Text;
		ELogVerbosity::Type Verbosity;
		FName Category;
	};

	/** Captures every log line for as long as it lives. */
	class FLogCapture : public FOutputDevice
	{
	public:
		FLogCapture() { GLog->AddOutputDevice(this); }
		~FLogCapture() { GLog->RemoveOutputDevice(this); }
		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override { Lines.Add({FString(V), Verbosity, Category}); }

		TArray<FCapturedLine> Lines;
	};

	bool FailEnsureAtOneSite()
	{
		return ensure(1 + 1 == 3);
	}

	bool FailEnsureAlwaysAtOneSite()
	{
		return ensureAlways(2 + 2 == 5);
	}
}

TEST(AssertionLog, LinesBeyondTheCategoryVerbosityAreDropped)
{
	FLogCapture Capture;
	UE_LOG(LogQuietTest, Log, TEXT("hidden %d"), 1);
	UE_LOG(LogQuietTest, Warning, TEXT("shown %d"), 2);
	UE_LOG(LogQuietTest, Error, TEXT("shown %d"), 3);
	UE_LOG(LogChattyTest, Display, TEXT("display"));
	UE_LOG(LogChattyTest, Log, TEXT("log"));
	UE_LOG(LogChattyTest, Verbose, TEXT("verbose"));
	ASSERT_EQ(Capture.Lines.Num(), 4);
	EXPECT_TRUE(Capture.Lines[0].Text.Equals(TEXT("shown 2")));
	EXPECT_EQ(Capture.Lines[0].Verbosity, ELogVerbosity::Warning);
	EXPECT_EQ(Capture.Lines[0].Category, FName(TEXT("LogQuietTest")));
	EXPECT_EQ(Capture.Lines[1].Verbosity, ELogVerbosity::Error);
	EXPECT_TRUE(Capture.Lines[3].Text.Equals(TEXT("log")));
	EXPECT_EQ(LogQuietTest.GetVerbosity(), ELogVerbosity::Warning);
}

TEST(AssertionLog, CompileTimeVerbosityCapsTheCategory)
{
	FLogCapture Capture;
	UE_LOG(LogCappedTest, Display, TEXT("kept"));
	UE_LOG(LogCappedTest, Log, TEXT("compiled out"));
	ASSERT_EQ(Capture.Lines.Num(), 1);
	EXPECT_TRUE(Capture.Lines[0].Text.Equals(TEXT("kept")));
}

TEST(AssertionLog, RemovedOutputDevicesHearNothingMore)
{
	FLogCapture Kept;
	{
		FLogCapture Removed;
		UE_LOG(LogChattyTest, Log, TEXT("both"));
		EXPECT_EQ(Removed.Lines.Num(), 1);
	}
	UE_LOG(LogChattyTest, Log, TEXT("one"));
	EXPECT_EQ(Kept.Lines.Num(), 2);
}

TEST(AssertionLog, VerbosityNamesMatchTheEngine)
{
	EXPECT_TRUE(FString(ToString(ELogVerbosity::Warning)).Equals(TEXT("Warning"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(FString(ToString(ELogVerbosity::VeryVerbose)).Equals(TEXT("VeryVerbose"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(FString(ToString(ELogVerbosity::Type(ELogVerbosity::Error | ELogVerbosity::BreakOnLog))).Equals(TEXT("Error")));
}

TEST(AssertionLog, AFailedEnsureReportsOncePerSiteAndYieldsFalse)
{
	FLogCapture Capture;
	EXPECT_FALSE(FailEnsureAtOneSite());
	EXPECT_FALSE(FailEnsureAtOneSite());
	ASSERT_EQ(Capture.Lines.Num(), 1);
	EXPECT_TRUE(Capture.Lines[0].Text.StartsWith(TEXT("Ensure condition failed: 1 + 1 == 3"), ESearchCase::CaseSensitive));
	EXPECT_EQ(Capture.Lines[0].Category, FName(TEXT("LogOutputDevice")));
	EXPECT_EQ(Capture.Lines[0].Verbosity, ELogVerbosity::Error);
}

TEST(AssertionLog, EnsureAlwaysReportsEveryTime)
{
	FLogCapture Capture;
	EXPECT_FALSE(FailEnsureAlwaysAtOneSite());
	EXPECT_FALSE(FailEnsureAlwaysAtOneSite());
	EXPECT_EQ(Capture.Lines.Num(), 2);
}

TEST(AssertionLog, APassingEnsureYieldsTrueAndReportsNothing)
{
	FLogCapture Capture;
	int32 Evaluations = 0;
	EXPECT_TRUE(ensure(++Evaluations == 1));
	EXPECT_TRUE(ensureMsgf(Evaluations == 1, TEXT("never shown")));
	EXPECT_EQ(Evaluations, 1);
	EXPECT_TRUE(Capture.Lines.IsEmpty());
}

TEST(AssertionLog, EnsureMsgfReportsItsMessageAfterTheCondition)
{
	FLogCapture Capture;
	const int32 Count = 7;
	EXPECT_FALSE(ensureMsgf(Count < 3, TEXT("Too many outputs: %d"), Count));
	ASSERT_EQ(Capture.Lines.Num(), 1);
	EXPECT_TRUE(Capture.Lines[0].Text.StartsWith(TEXT("Ensure condition failed: Count < 3")));
	EXPECT_TRUE(Capture.Lines[0].Text.EndsWith(TEXT("\nToo many outputs: 7"), ESearchCase::CaseSensitive));
}

TEST(AssertionLogDeathTest, CheckNamesTheFailedExpression)
{
	const int32 Outputs = 2;
	EXPECT_DEATH(check(Outputs > 3), "Assertion failed: Outputs > 3");
}

TEST(AssertionLogDeathTest, CheckfAddsItsFormattedMessage)
{
	const int32 Outputs = 2;
	EXPECT_DEATH(checkf(Outputs > 3, TEXT("Need %d more outputs for %s"), 4 - Outputs, TEXT("NDI")), "Assertion failed: Outputs > 3.*Need 2 more outputs for NDI");
}

TEST(AssertionLogDeathTest, CheckNoEntryAndFatalLogsStopTheProcess)
{
	EXPECT_DEATH(checkNoEntry(), "Assertion failed");
	EXPECT_DEATH(UE_LOG(LogChattyTest, Fatal, TEXT("fatal line")), "");
}

TEST(AssertionLog, APassingCheckEvaluatesItsExpressionOnce)
{
	int32 Evaluations = 0;
	check(++Evaluations == 1);
	verify(++Evaluations == 2);
	EXPECT_EQ(Evaluations, 2);
}
