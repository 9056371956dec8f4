#pragma once

#include "Misc/AssertionMacros.h"

#include <optional>
#include <utility>

/** An optional value, as the engine's TOptional. */
template <typename OptionalType>
class TOptional
{
public:
	TOptional() = default;
	TOptional(const OptionalType& InValue)
		: Value(InValue)
	{
	}
	TOptional(OptionalType&& InValue)
		: Value(std::move(InValue))
	{
	}

	bool IsSet() const { return Value.has_value(); }
	explicit operator bool() const { return IsSet(); }
	const OptionalType& GetValue() const
	{
		checkf(IsSet(), TEXT("It is an error to call GetValue() on an unset TOptional. Please either check IsSet() or use Get(DefaultValue) instead."));
		return *Value;
	}
	OptionalType& GetValue()
	{
		checkf(IsSet(), TEXT("It is an error to call GetValue() on an unset TOptional. Please either check IsSet() or use Get(DefaultValue) instead."));
		return *Value;
	}
	const OptionalType& Get(const OptionalType& DefaultValue) const { return IsSet() ? *Value : DefaultValue; }
	/** The value, or null when it is not set. */
	OptionalType* GetPtrOrNull() { return IsSet() ? &*Value : nullptr; }
	const OptionalType* GetPtrOrNull() const { return IsSet() ? &*Value : nullptr; }
	const OptionalType* operator->() const { return &GetValue(); }
	void Reset() { Value.reset(); }
	template <typename... ArgsType>
	OptionalType& Emplace(ArgsType&&... Args)
	{
		return Value.emplace(std::forward<ArgsType>(Args)...);
	}

	friend bool operator==(const TOptional& A, const TOptional& B) { return A.Value == B.Value; }
	friend bool operator!=(const TOptional& A, const TOptional& B) { return !(A == B); }

private:
	std::optional<OptionalType> Value;
};
