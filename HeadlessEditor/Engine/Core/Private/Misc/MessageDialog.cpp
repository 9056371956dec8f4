#include "Misc/MessageDialog.h"

#include "HeadlessDesktop.h"

namespace UE::Headless
{
	TArray<FShownMessageDialog>& GetMutableShownMessageDialogs();
}

namespace
{
	/** The first button of each kind of box: what an unattended editor answers. */
	EAppReturnType::Type GetFirstButton(EAppMsgType::Type MessageType)
	{
		switch (MessageType)
		{
			case EAppMsgType::Ok:
			case EAppMsgType::OkCancel:
				return EAppReturnType::Ok;
			case EAppMsgType::CancelRetryContinue:
				return EAppReturnType::Cancel;
			default:
				return EAppReturnType::Yes;
		}
	}
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgType::Type MessageType, const FText& Message, const FText* OptTitle)
{
	return Open(MessageType, GetFirstButton(MessageType), Message, OptTitle);
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message, const FText* OptTitle)
{
	UE::Headless::FShownMessageDialog& Shown = UE::Headless::GetMutableShownMessageDialogs().AddDefaulted_GetRef();
	Shown.MessageType = MessageType;
	Shown.Message = Message;
	if (OptTitle)
	{
		Shown.Title = *OptTitle;
	}
	return DefaultValue;
}
