#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

#include <string>

/** Converts TCHARs to UTF-8 for the lifetime of the object. */
class FTCHARToUTF8
{
public:
	explicit FTCHARToUTF8(const TCHAR* Source)
		: Converted(FString(Source).ToUtf8())
	{
	}
	const ANSICHAR* Get() const { return Converted.c_str(); }
	int32 Length() const { return static_cast<int32>(Converted.size()); }

private:
	std::string Converted;
};

#define TCHAR_TO_UTF8(str) (FTCHARToUTF8((const TCHAR*)(str)).Get())
#define UTF8_TO_TCHAR(str) (*FString::FromUtf8(str))
