#pragma once

#include <tuple>
#include <utility>

template <typename KeyType, typename ValueType>
struct TPair
{
	KeyType Key;
	ValueType Value;

	TPair() = default;
	TPair(const KeyType& InKey, const ValueType& InValue)
		: Key(InKey)
		, Value(InValue)
	{
	}

	bool operator==(const TPair& Other) const { return Key == Other.Key && Value == Other.Value; }
};

template <typename... Types>
using TTuple = std::tuple<Types...>;
