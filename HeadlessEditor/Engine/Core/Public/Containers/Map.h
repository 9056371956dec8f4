#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Templates/Tuple.h"

#include <optional>
#include <vector>

/**
 * A map keyed with the engine's equality (so FString and FName keys ignore case). Elements live in
 * slots as in the engine's sparse array: they iterate in slot order, a removal leaves a hole, and
 * the next addition fills the most recently freed hole.
 */
template <typename InKeyType, typename InValueType>
class TMap
{
public:
	typedef InKeyType KeyType;
	typedef InValueType ValueType;
	typedef TPair<InKeyType, InValueType> ElementType;

private:
	using FSlots = std::vector<std::optional<ElementType>>;

	template <typename SlotIteratorType, typename PairType>
	class TSlotIterator
	{
	public:
		TSlotIterator(SlotIteratorType InCurrent, SlotIteratorType InEnd)
			: Current(InCurrent)
			, End(InEnd)
		{
			SkipHoles();
		}
		PairType& operator*() const { return **Current; }
		PairType* operator->() const { return &**Current; }
		TSlotIterator& operator++()
		{
			++Current;
			SkipHoles();
			return *this;
		}
		bool operator==(const TSlotIterator& Other) const { return Current == Other.Current; }
		bool operator!=(const TSlotIterator& Other) const { return Current != Other.Current; }

	private:
		void SkipHoles()
		{
			while (Current != End && !Current->has_value())
			{
				++Current;
			}
		}
		SlotIteratorType Current;
		SlotIteratorType End;
	};

public:
	int32 Num() const { return static_cast<int32>(Slots.size() - FreeSlots.size()); }
	bool IsEmpty() const { return Num() == 0; }
	/** An existing equal key is replaced together with its value, keeping its place. */
	InValueType& Add(const InKeyType& InKey, const InValueType& InValue)
	{
		if (ElementType* Existing = FindPair(InKey))
		{
			Existing->Key = InKey;
			Existing->Value = InValue;
			return Existing->Value;
		}
		std::optional<ElementType>* Slot = nullptr;
		if (FreeSlots.empty())
		{
			Slot = &Slots.emplace_back();
		}
		else
		{
			Slot = &Slots[FreeSlots.back()];
			FreeSlots.pop_back();
		}
		Slot->emplace(InKey, InValue);
		return (*Slot)->Value;
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
		ElementType* Pair = FindPair(InKey);
		return Pair ? &Pair->Value : nullptr;
	}
	const InValueType* Find(const InKeyType& InKey) const
	{
		const ElementType* Pair = const_cast<TMap*>(this)->FindPair(InKey);
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
		for (SIZE_T Index = 0; Index < Slots.size(); ++Index)
		{
			if (Slots[Index].has_value() && Slots[Index]->Key == InKey)
			{
				Slots[Index].reset();
				FreeSlots.push_back(Index);
				return 1;
			}
		}
		return 0;
	}
	void Empty()
	{
		Slots.clear();
		FreeSlots.clear();
	}
	void Reset() { Empty(); }
	template <typename Allocator>
	int32 GetKeys(TArray<InKeyType, Allocator>& OutKeys) const
	{
		OutKeys.Reset();
		for (const ElementType& Pair : *this)
		{
			OutKeys.Add(Pair.Key);
		}
		return OutKeys.Num();
	}

	auto begin() { return TSlotIterator<typename FSlots::iterator, ElementType>(Slots.begin(), Slots.end()); }
	auto end() { return TSlotIterator<typename FSlots::iterator, ElementType>(Slots.end(), Slots.end()); }
	auto begin() const { return TSlotIterator<typename FSlots::const_iterator, const ElementType>(Slots.begin(), Slots.end()); }
	auto end() const { return TSlotIterator<typename FSlots::const_iterator, const ElementType>(Slots.end(), Slots.end()); }

private:
	ElementType* FindPair(const InKeyType& InKey)
	{
		for (std::optional<ElementType>& Slot : Slots)
		{
			if (Slot.has_value() && Slot->Key == InKey)
			{
				return &*Slot;
			}
		}
		return nullptr;
	}

	FSlots Slots;
	/** Freed slot indices; the last one freed is reused first. */
	std::vector<SIZE_T> FreeSlots;
};
