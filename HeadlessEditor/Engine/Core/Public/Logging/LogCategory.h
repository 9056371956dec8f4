#pragma once

#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/** A named log category with its run-time verbosity. */
struct CORE_API FLogCategoryBase
{
	FLogCategoryBase(const TCHAR* CategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity);

	const FName& GetCategoryName() const { return CategoryName; }
	ELogVerbosity::Type GetVerbosity() const { return Verbosity; }
	bool IsSuppressed(ELogVerbosity::Type VerbosityLevel) const { return (VerbosityLevel & ELogVerbosity::VerbosityMask) > Verbosity; }

private:
	ELogVerbosity::Type Verbosity;
	FName CategoryName;
};

template <ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity>
struct FLogCategory : public FLogCategoryBase
{
	static constexpr ELogVerbosity::Type CompileTimeVerbosity = InCompileTimeVerbosity;

	explicit FLogCategory(const TCHAR* InCategoryName)
		: FLogCategoryBase(InCategoryName, InDefaultVerbosity, InCompileTimeVerbosity)
	{
	}
};
