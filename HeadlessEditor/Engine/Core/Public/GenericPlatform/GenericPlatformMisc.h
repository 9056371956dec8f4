#pragma once

#include "CoreTypes.h"

/** The buttons a message box offers. */
namespace EAppMsgType
{
	enum Type
	{
		Ok,
		YesNo,
		OkCancel,
		YesNoCancel,
		CancelRetryContinue,
		YesNoYesAllNoAll,
		YesNoYesAllNoAllCancel,
		YesNoYesAll,
	};
}

/** The button a message box was closed with. */
namespace EAppReturnType
{
	enum Type
	{
		No,
		Yes,
		YesAll,
		NoAll,
		Cancel,
		Ok,
		Retry,
		Continue,
	};
}
