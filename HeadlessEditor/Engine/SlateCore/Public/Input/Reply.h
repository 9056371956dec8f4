#pragma once

#include "CoreMinimal.h"

/** The base of replies to input events: whether the event was handled. */
template <typename ReplyType>
class TReplyBase
{
public:
	TReplyBase(bool bIsHandled)
		: bIsHandled(bIsHandled)
	{
	}

	/** True if this reply indicates that the event was handled. */
	bool IsEventHandled() const { return bIsHandled; }

protected:
	bool bIsHandled;
};

/** What a widget answers to an input event; an unhandled event bubbles up to the widget's parent. */
class SLATECORE_API FReply : public TReplyBase<FReply>
{
public:
	/** An event should return FReply::Handled() to stop it bubbling further up. */
	static FReply Handled() { return FReply(true); }

	/** An event should return FReply::Unhandled() to let its parent see it. */
	static FReply Unhandled() { return FReply(false); }

private:
	FReply(bool bIsHandled)
		: TReplyBase<FReply>(bIsHandled)
	{
	}
};
