#pragma once

#include "CoreTypes.h"

/** Reports failed assertions the way the engine does: fatal ones stop the process. */
struct CORE_API FDebug
{
	[[noreturn]] static void AssertFailed(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format = TEXT(""), ...);
	static void EnsureFailed(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format = TEXT(""), ...);
};

#define check(expr) \
	do \
	{ \
		if (!(expr)) \
		{ \
			FDebug::AssertFailed(#expr, __FILE__, __LINE__); \
		} \
	} while (false)

#define checkf(expr, format, ...) \
	do \
	{ \
		if (!(expr)) \
		{ \
			FDebug::AssertFailed(#expr, __FILE__, __LINE__, format, ##__VA_ARGS__); \
		} \
	} while (false)

#define checkNoEntry() FDebug::AssertFailed("Enclosing block should never be called", __FILE__, __LINE__)
#define checkSlow(expr) check(expr)
#define verify(expr) check(expr)

// An ensure reports once per call site (ensureAlways every time) and lets execution carry on; it
// yields the condition.
#define UE_ENSURE_IMPL(bAlways, InExpression, Format, ...) \
	(!!(InExpression) || ([&]() -> bool { \
		static bool bExecuted = false; \
		if (bAlways || !bExecuted) \
		{ \
			bExecuted = true; \
			FDebug::EnsureFailed(#InExpression, __FILE__, __LINE__, Format, ##__VA_ARGS__); \
		} \
		return false; }()))

#define ensure(InExpression) UE_ENSURE_IMPL(false, InExpression, TEXT(""))
#define ensureMsgf(InExpression, InFormat, ...) UE_ENSURE_IMPL(false, InExpression, InFormat, ##__VA_ARGS__)
#define ensureAlways(InExpression) UE_ENSURE_IMPL(true, InExpression, TEXT(""))
#define ensureAlwaysMsgf(InExpression, InFormat, ...) UE_ENSURE_IMPL(true, InExpression, InFormat, ##__VA_ARGS__)
