#pragma once

#include <cstddef>
#include <cstdint>

// Unreal's fixed-size integer and character types. TCHAR is a wide character type distinct from
// char, as on Unreal's Linux target (char16_t) and on Windows (wchar_t), so that a narrow literal
// passed where the engine takes const TCHAR* fails here as it fails in the engine.
typedef std::uint8_t uint8;
typedef std::uint16_t uint16;
typedef std::uint32_t uint32;
typedef unsigned long long uint64;
typedef std::int8_t int8;
typedef std::int16_t int16;
typedef std::int32_t int32;
typedef signed long long int64;
typedef char ANSICHAR;
typedef char16_t WIDECHAR;
typedef char16_t UCS2CHAR;
typedef WIDECHAR TCHAR;
typedef std::size_t SIZE_T;
typedef decltype(nullptr) TYPE_OF_NULLPTR;

#define TEXT_PASTE(x) u##x
#define TEXT(x) TEXT_PASTE(x)

#define FORCEINLINE inline
#define FORCENOINLINE __attribute__((noinline))
#define UE_NODISCARD [[nodiscard]]
#define UE_DEPRECATED(Version, Message) [[deprecated(Message)]]
#define PURE_VIRTUAL(Func, ...) = 0

enum
{
	INDEX_NONE = -1
};

enum EForceInit
{
	ForceInit,
	ForceInitToZero
};

enum ENoInit
{
	NoInit
};

#ifndef CORE_API
#define CORE_API
#endif
