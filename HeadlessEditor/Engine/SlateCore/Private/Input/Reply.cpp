#include "Input/Reply.h"

#include "Widgets/SWidget.h"

FReply& FReply::SetUserFocus(TSharedRef<SWidget> GiveMeFocus, EFocusCause ReasonFocusIsChanging, bool bInAllUsers)
{
	bSetUserFocus = true;
	bReleaseUserFocus = false;
	FocusRecipient = GiveMeFocus;
	FocusChangeReason = ReasonFocusIsChanging;
	bAllUsers = bInAllUsers;
	return Me();
}

FReply& FReply::ClearUserFocus(EFocusCause ReasonFocusIsChanging, bool bInAllUsers)
{
	bSetUserFocus = false;
	bReleaseUserFocus = true;
	FocusRecipient.Reset();
	FocusChangeReason = ReasonFocusIsChanging;
	bAllUsers = bInAllUsers;
	return Me();
}
