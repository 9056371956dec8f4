#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericPlatformMisc.h"
#include "Input/Reply.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/**
 * The content of the editor's message box: a warning sign beside the message, a link that copies the
 * message, and the buttons of the box's type, the first one primary.
 */
class SChoiceDialog : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SChoiceDialog)
	{
	}
	SLATE_ATTRIBUTE(FText, Message)
	SLATE_ATTRIBUTE(float, WrapMessageAt)
	SLATE_ATTRIBUTE(EAppMsgType::Type, MessageType)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** The button the box was closed with; Cancel until one is clicked. */
	EAppReturnType::Type GetResponse() const { return Response; }

	/** The label of a message box button. */
	static FText EAppReturnTypeToText(EAppReturnType::Type ReturnType);

private:
	/** The buttons of a type of box, in the order they show. */
	static TArray<EAppReturnType::Type> GetButtons(EAppMsgType::Type MessageType);

	FReply HandleButtonClicked(EAppReturnType::Type InResponse);

	EAppReturnType::Type Response = EAppReturnType::Cancel;
	TAttribute<FText> MyMessage;
};
