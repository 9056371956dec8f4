#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Templates/Tuple.h"

/**
 * A map keyed with the engine's equality (so FString and FName keys ignore case). The headless
 * editor keeps insertion order, which is what the engine's map shows while nothing is removed.
 */
template <typename InKeyType, typename InValueType>
class TMap
{
public:
	typedef InKeyType KeyType;
	typedef InValueType ValueType;
	typedef TPair<InKeyType, InValueType> ElementType;

	int32 Num() const { return Pairs.Num(); }
	bool IsEmpty() const { return Pairs.IsEmpty(); }

	InValueType& Add(const InKeyType& InKey, const InValueType& InValue)
	{
		if (InValueType* Existing = Find(InKey))
		{
			*Existing = InValue;
			return *Existing;
		}
		return Pairs[Pairs.Emplace(InKey, InValue)].Value;
	}
	InValueType& Add(const InKeyType& InKey) { return Add(InKey, InValueType()); }
	InValueType& FindOrAdd(const InKeyType& InKey)
	{
		if (InValueType* Existing = Find(InKey))
		{
			return *Existing;
		}
		return Add(InKey);
	}
	InValueType* Find(const InKeyType& InKey)
	{
		ElementType* Pair = Pairs.FindByPredicate([&InKey](const ElementType& Element) { return Element.Key == InKey; });
		return Pair ? &Pair->Value : nullptr;
	}
	const InValueType* Find(const InKeyType& InKey) const
	{
		const ElementType* Pair = Pairs.FindByPredicate([&InKey](const ElementType& Element) { return Element.Key == InKey; });
		return Pair ? &Pair->Value : nullptr;
	}
	InValueType& FindChecked(const InKeyType& InKey)
	{
		InValueType* Value = Find(InKey);
		check(Value);
		return *Value;
	}
	const InValueType& FindChecked(const InKeyType& InKey) const
	{
		const InValueType* Value = Find(InKey);
		check(Value);
		return *Value;
	}
	bool Contains(const InKeyType& InKey) const { return Find(InKey) != nullptr; }
	int32 Remove(const InKeyType& InKey)
	{
		return Pairs.RemoveAll([&InKey](const ElementType& Element) { return Element.Key == InKey; });
	}
	void Empty() { Pairs.Empty(); }
	void Reset() { Pairs.Reset(); }

	template <typename Allocator>
	int32 GetKeys(TArray<InKeyType, Allocator>& OutKeys) const
	{
		OutKeys.Reset();
		for (const ElementType& Pair : Pairs)
		{
			OutKeys.Add(Pair.Key);
		}
		return OutKeys.Num();
	}

	auto begin() { return Pairs.begin(); }
	auto end() { return Pairs.end(); }
	auto begin() const { return Pairs.begin(); }
	auto end() const { return Pairs.end(); }

private:
	TArray<ElementType> Pairs;
};
