#include "Misc/AssertionMacros.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "Containers/UnrealStringFormat.h"
#include "Logging/LogMacros.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

void FDebug::AssertFailed(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...)
{
	va_list Args;
	va_start(Args, Format);
	const FString Message = UE::Core::Private::FormatV(Format, Args);
	va_end(Args);
	std::fprintf(stderr, "Assertion failed: %s [File:%s] [Line: %d] %s\n", Expr, File, Line, TCHAR_TO_UTF8(*Message));
	std::fflush(stderr);
	std::abort();
}

void FDebug::EnsureFailed(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...)
{
	va_list Args;
	va_start(Args, Format);
	const FString Message = UE::Core::Private::FormatV(Format, Args);
	va_end(Args);
	// The message of ensureMsgf follows on its own line.
	const FString Report = FString::Printf(TEXT("Ensure condition failed: %s [File:%s] [Line: %i]"), *FString(Expr), *FString(File), Line) + (Message.IsEmpty() ? FString() : TEXT("\n") + Message);
	UE_LOG(LogOutputDevice, Error, TEXT("%s"), *Report);
	std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(*Report));
}
