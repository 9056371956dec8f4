#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Logging/LogCategory.h"
#include "Misc/OutputDeviceRedirector.h"

#include <cstdlib>
#include <type_traits>

#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	extern struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FORCEINLINE FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{ \
		} \
	} CategoryName;

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName;

#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	static struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FORCEINLINE FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{ \
		} \
	} CategoryName;

#define UE_LOG(CategoryName, Verbosity, Format, ...) \
	do \
	{ \
		if constexpr ((ELogVerbosity::Verbosity & ELogVerbosity::VerbosityMask) <= std::remove_reference_t<decltype(CategoryName)>::CompileTimeVerbosity) \
		{ \
			if (!CategoryName.IsSuppressed(ELogVerbosity::Verbosity)) \
			{ \
				GLog->Serialize(*FString::Printf(Format, ##__VA_ARGS__), ELogVerbosity::Verbosity, CategoryName.GetCategoryName()); \
				if constexpr ((ELogVerbosity::Verbosity & ELogVerbosity::VerbosityMask) == ELogVerbosity::Fatal) \
				{ \
					std::abort(); \
				} \
			} \
		} \
	} while (false)

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogOutputDevice, Log, All);
