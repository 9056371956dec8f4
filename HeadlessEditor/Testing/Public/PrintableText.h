#pragma once

#include "CoreMinimal.h"

/**
 * Text from the editor made safe to print: names and labels may hold characters that would act on
 * a terminal, or break a one-line-per-item listing, instead of showing.
 */
class HEADLESSTESTING_API FPrintableText
{
public:
	/** Whether Char acts instead of showing: C0 and C1 controls, DEL, line and paragraph separators, bidirectional controls. */
	static bool IsControlCharacter(TCHAR Char);

	/** Text with each backslash doubled and each control character escaped: \t, \n, \r, \xHH below 0x80, \uHHHH above. */
	static FString Escape(const FString& Text);
};
