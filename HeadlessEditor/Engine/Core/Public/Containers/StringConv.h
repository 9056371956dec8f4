#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

#include <string>

/** Converts TCHARs to UTF-8 for the lifetime of the object; unpaired surrogates become '?', as in the engine. */
class CORE_API FTCHARToUTF8
{
public:
	explicit FTCHARToUTF8(const TCHAR* Source);
	FTCHARToUTF8(const TCHAR* Source, int32 SourceLen);
	FTCHARToUTF8(FTCHARToUTF8&& Other) = default;
	FTCHARToUTF8(const FTCHARToUTF8&) = delete;
	FTCHARToUTF8& operator=(const FTCHARToUTF8&) = delete;

	const ANSICHAR* Get() const { return Converted.c_str(); }
	int32 Length() const { return static_cast<int32>(Converted.size()); }

private:
	std::string Converted;
};

/** Converts UTF-8 to TCHARs for the lifetime of the object; each malformed sequence becomes one '?', as in the engine. */
class CORE_API FUTF8ToTCHAR
{
public:
	explicit FUTF8ToTCHAR(const ANSICHAR* Source);
	FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen);
	FUTF8ToTCHAR(FUTF8ToTCHAR&& Other) = default;
	FUTF8ToTCHAR(const FUTF8ToTCHAR&) = delete;
	FUTF8ToTCHAR& operator=(const FUTF8ToTCHAR&) = delete;

	const TCHAR* Get() const { return Converted.c_str(); }
	int32 Length() const { return static_cast<int32>(Converted.size()); }

private:
	std::u16string Converted;
};

#define TCHAR_TO_UTF8(str) (ANSICHAR*)FTCHARToUTF8((const TCHAR*)str).Get()
#define UTF8_TO_TCHAR(str) (TCHAR*)FUTF8ToTCHAR((const ANSICHAR*)str).Get()
