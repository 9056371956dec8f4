#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"

/** A size that is either a value or unset (the widget then uses its own). */
struct FOptionalSize
{
	FOptionalSize()
		: Size(Unspecified)
	{
	}
	FOptionalSize(const float SpecifiedSize)
		: Size(SpecifiedSize)
	{
	}

	bool IsSet() const { return Size != Unspecified; }
	float Get() const { return Size; }

	bool operator==(const FOptionalSize& Other) const { return Size == Other.Size; }
	bool operator!=(const FOptionalSize& Other) const { return Size != Other.Size; }

private:
	static constexpr float Unspecified = -1.0f;
	float Size;
};

/** How a slot of a box takes up space along the box: as much as its content wants, or a share of what is left. */
struct FSizeParam
{
	enum ESizeRule
	{
		SizeRule_Auto,
		SizeRule_Stretch
	};

	/** The sizing rule to use. */
	ESizeRule SizeRule;

	/** The stretch coefficient, when the rule is to stretch. */
	TAttribute<float> Value;

protected:
	FSizeParam(ESizeRule InTypeOfSize, const TAttribute<float>& InValue)
		: SizeRule(InTypeOfSize)
		, Value(InValue)
	{
	}
};

/** A share of the space left over, in proportion to its coefficient. */
struct FStretch : public FSizeParam
{
	FStretch(const TAttribute<float>& StretchAmount)
		: FSizeParam(SizeRule_Stretch, StretchAmount)
	{
	}

	FStretch()
		: FSizeParam(SizeRule_Stretch, 1.0f)
	{
	}
};

/** As much space as the content wants. */
struct FAuto : public FSizeParam
{
	FAuto()
		: FSizeParam(SizeRule_Auto, 0.0f)
	{
	}
};
