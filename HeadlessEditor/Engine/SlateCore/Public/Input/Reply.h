#pragma once

#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Input/ReplyBase.h"

class SWidget;

/**
 * What a widget answers to an input event; an unhandled event bubbles up to the widget's parent. A
 * reply may also ask the application to move the user's focus.
 */
class SLATECORE_API FReply : public TReplyBase<FReply>
{
public:
	/** An event should return FReply::Handled().SetUserFocus( SomeWidget ) as a means of asking the system to set users focus to the provided widget*/
	FReply& SetUserFocus(TSharedRef<SWidget> GiveMeFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly, bool bInAllUsers = false);

	/** An event should return a FReply::Handled().ClearUserFocus() to ask the system to clear user focus*/
	FReply& ClearUserFocus(bool bInAllUsers = false) { return ClearUserFocus(EFocusCause::SetDirectly, bInAllUsers); }
	FReply& ClearUserFocus(EFocusCause ReasonFocusIsChanging, bool bInAllUsers = false);

	/** true if this reply requested a focus change */
	bool ShouldSetUserFocus() const { return bSetUserFocus; }
	/** true if this reply requested that the focus be cleared */
	bool ShouldReleaseUserFocus() const { return bReleaseUserFocus; }
	/** Whether the focus change applies to every user */
	bool AffectsAllUsers() const { return bAllUsers; }

	/** When not nullptr, user focus has been requested to be set on the FocusRecipient. */
	TSharedPtr<SWidget> GetUserFocusRecepient() const { return FocusRecipient.Pin(); }
	/** Why the focus is changing */
	EFocusCause GetFocusCause() const { return FocusChangeReason; }

	/** An event should return FReply::Handled() to stop it bubbling further up. */
	static FReply Handled() { return FReply(true); }

	/** An event should return FReply::Unhandled() to let its parent see it. */
	static FReply Unhandled() { return FReply(false); }

private:
	FReply(bool bIsHandled)
		: TReplyBase<FReply>(bIsHandled)
		, FocusChangeReason(EFocusCause::SetDirectly)
		, bSetUserFocus(false)
		, bReleaseUserFocus(false)
		, bAllUsers(false)
	{
	}

	TWeakPtr<SWidget> FocusRecipient;
	EFocusCause FocusChangeReason;
	bool bSetUserFocus;
	bool bReleaseUserFocus;
	bool bAllUsers;
};
