#pragma once

#include "CoreMinimal.h"

class SWidget;

/** The base of replies to input events: whether the event was handled. */
class FReplyBase
{
public:
	/** True if this reply indicates that the event was handled. */
	bool IsEventHandled() const { return bIsHandled; }

protected:
	FReplyBase(bool InIsHandled)
		: bIsHandled(InIsHandled)
	{
	}

	bool bIsHandled;
};

/** A reply of a given type, built up by chained calls. */
template <typename ReplyType>
class TReplyBase : public FReplyBase
{
public:
	TReplyBase(bool bIsHandled)
		: FReplyBase(bIsHandled)
	{
	}

protected:
	ReplyType& Me() { return static_cast<ReplyType&>(*this); }
};
