#include "PrintableText.h"

bool FPrintableText::IsControlCharacter(TCHAR Char)
{
	const bool bAsciiControl = Char < 0x20 || Char == 0x7F;
	const bool bLatinControl = Char >= 0x80 && Char <= 0x9F;
	const bool bSeparator = Char == 0x2028 || Char == 0x2029;
	const bool bBidirectional = (Char >= 0x200E && Char <= 0x200F) || (Char >= 0x202A && Char <= 0x202E) || (Char >= 0x2066 && Char <= 0x2069);
	return bAsciiControl || bLatinControl || bSeparator || bBidirectional;
}

FString FPrintableText::Escape(const FString& Text)
{
	FString Escaped;
	Escaped.Reserve(Text.Len());
	for (const TCHAR Char : Text)
	{
		if (Char == TEXT('\\'))
		{
			Escaped += TEXT("\\\\");
		}
		else if (Char == TEXT('\t'))
		{
			Escaped += TEXT("\\t");
		}
		else if (Char == TEXT('\n'))
		{
			Escaped += TEXT("\\n");
		}
		else if (Char == TEXT('\r'))
		{
			Escaped += TEXT("\\r");
		}
		else if (IsControlCharacter(Char))
		{
			Escaped += Char < 0x80 ? FString::Printf(TEXT("\\x%02X"), static_cast<int32>(Char)) : FString::Printf(TEXT("\\u%04X"), static_cast<int32>(Char));
		}
		else
		{
			Escaped.AppendChar(Char);
		}
	}
	return Escaped;
}
