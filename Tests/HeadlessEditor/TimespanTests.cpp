#include "Misc/Timespan.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Timespan, DefaultFormIsSignedHoursMinutesSecondsAndMilliseconds)
{
	EXPECT_TRUE(FTimespan::FromMilliseconds(0).ToString().Equals(TEXT("+00:00:00.000")));
	EXPECT_TRUE(FTimespan::FromMilliseconds(61001).ToString().Equals(TEXT("+00:01:01.001")));
	EXPECT_TRUE(FTimespan::FromMilliseconds(93784005).ToString().Equals(TEXT("+1.02:03:04.005")));
	EXPECT_TRUE(FTimespan::FromMilliseconds(-1).ToString().Equals(TEXT("-00:00:00.001")));
}

TEST(Timespan, MillisecondsRoundToTheNearestTick)
{
	EXPECT_EQ(FTimespan::FromMilliseconds(0.00003).GetTicks(), 0);
	EXPECT_EQ(FTimespan::FromMilliseconds(0.00007).GetTicks(), 1);
	EXPECT_EQ(FTimespan::FromMilliseconds(1.5).GetTicks(), 15000);
}

TEST(Timespan, SpansBeyondTheTickRangeBecomeTheLowestSpan)
{
	const double Huge = (double)std::numeric_limits<uint64>::max();
	EXPECT_EQ(FTimespan::FromMilliseconds(Huge).GetTicks(), ETimespan::MinTicks);
	EXPECT_TRUE(FTimespan::FromMilliseconds(Huge).ToString().Equals(TEXT("-10675199.02:48:05.477")));
}
