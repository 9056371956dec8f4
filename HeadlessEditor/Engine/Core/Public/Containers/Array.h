#pragma once

#include "CoreTypes.h"
#include "Containers/ContainerAllocationPolicies.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Less.h"
#include "Templates/UnrealTemplate.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <type_traits>
#include <vector>

namespace UE::Core::Private
{
	// The engine sorts arrays of pointers by what they point at (TDereferenceWrapper).
	template <typename T, typename PredicateType>
	struct TDereferencingPredicate
	{
		const PredicateType& Predicate;
		bool operator()(const T& A, const T& B) const { return Predicate(A, B); }
	};

	template <typename T, typename PredicateType>
	struct TDereferencingPredicate<T*, PredicateType>
	{
		const PredicateType& Predicate;
		bool operator()(T* A, T* B) const { return Predicate(*A, *B); }
	};

	[[noreturn]] CORE_API void OnInvalidArrayIndex(int32 Index, int32 ArrayNum);
}

/** The engine's dynamic array: contiguous, indexed by int32, with fatal range checks. */
template <typename InElementType, typename InAllocatorType = FDefaultAllocator>
class TArray
{
public:
	typedef InElementType ElementType;
	typedef int32 SizeType;

	TArray() = default;
	TArray(std::initializer_list<InElementType> InitList)
		: Data(InitList.begin(), InitList.end())
	{
	}
	TArray(const InElementType* Ptr, int32 Count)
		: Data(Ptr, Ptr + Count)
	{
	}
	template <typename OtherElementType, typename OtherAllocator, typename = std::enable_if_t<!std::is_same_v<OtherElementType, InElementType> && std::is_constructible_v<InElementType, const OtherElementType&>>>
	explicit TArray(const TArray<OtherElementType, OtherAllocator>& Other)
	{
		Data.reserve(Other.Num());
		for (const OtherElementType& Element : Other)
		{
			Data.emplace_back(Element);
		}
	}

	int32 Num() const { return static_cast<int32>(Data.size()); }
	bool IsEmpty() const { return Data.empty(); }
	int32 Max() const { return static_cast<int32>(Data.capacity()); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }

	InElementType* GetData() { return Data.data(); }
	const InElementType* GetData() const { return Data.data(); }
	SIZE_T GetTypeSize() const { return sizeof(InElementType); }

	void RangeCheck(int32 Index) const
	{
		if (!IsValidIndex(Index))
		{
			UE::Core::Private::OnInvalidArrayIndex(Index, Num());
		}
	}

	InElementType& operator[](int32 Index)
	{
		RangeCheck(Index);
		return Data[static_cast<SIZE_T>(Index)];
	}
	const InElementType& operator[](int32 Index) const
	{
		RangeCheck(Index);
		return Data[static_cast<SIZE_T>(Index)];
	}

	InElementType& Last(int32 IndexFromTheEnd = 0) { return (*this)[Num() - IndexFromTheEnd - 1]; }
	const InElementType& Last(int32 IndexFromTheEnd = 0) const { return (*this)[Num() - IndexFromTheEnd - 1]; }
	InElementType& Top() { return Last(); }

	InElementType Pop(bool bAllowShrinking = true)
	{
		RangeCheck(0);
		InElementType Result = MoveTemp(Data.back());
		Data.pop_back();
		return Result;
	}

	int32 Add(const InElementType& Item)
	{
		Data.push_back(Item);
		return Num() - 1;
	}
	int32 Add(InElementType&& Item)
	{
		Data.push_back(MoveTemp(Item));
		return Num() - 1;
	}
	template <typename... ArgsType>
	int32 Emplace(ArgsType&&... Args)
	{
		Data.emplace_back(Forward<ArgsType>(Args)...);
		return Num() - 1;
	}
	template <typename... ArgsType>
	InElementType& Emplace_GetRef(ArgsType&&... Args)
	{
		Data.emplace_back(Forward<ArgsType>(Args)...);
		return Data.back();
	}
	InElementType& Add_GetRef(const InElementType& Item)
	{
		Data.push_back(Item);
		return Data.back();
	}
	int32 AddDefaulted(int32 Count = 1)
	{
		const int32 Index = Num();
		Data.resize(Data.size() + static_cast<SIZE_T>(Count));
		return Index;
	}
	InElementType& AddDefaulted_GetRef()
	{
		Data.emplace_back();
		return Data.back();
	}
	int32 AddUnique(const InElementType& Item)
	{
		const int32 Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(Item);
	}
	int32 Insert(const InElementType& Item, int32 Index)
	{
		check(Index >= 0 && Index <= Num());
		Data.insert(Data.begin() + Index, Item);
		return Index;
	}
	int32 Insert(InElementType&& Item, int32 Index)
	{
		check(Index >= 0 && Index <= Num());
		Data.insert(Data.begin() + Index, MoveTemp(Item));
		return Index;
	}
	template <typename OtherAllocator>
	void Append(const TArray<InElementType, OtherAllocator>& Source)
	{
		Data.insert(Data.end(), Source.begin(), Source.end());
	}
	void Append(std::initializer_list<InElementType> InitList) { Data.insert(Data.end(), InitList.begin(), InitList.end()); }
	TArray& operator+=(const TArray& Other)
	{
		Append(Other);
		return *this;
	}

	void RemoveAt(int32 Index, int32 Count = 1, bool bAllowShrinking = true)
	{
		check(Count >= 0 && Index >= 0 && Index + Count <= Num());
		Data.erase(Data.begin() + Index, Data.begin() + Index + Count);
	}
	/** Fills the hole with the array's last elements instead of shifting, so order is not kept. */
	void RemoveAtSwap(int32 Index, int32 Count = 1, bool bAllowShrinking = true)
	{
		check(Count >= 0 && Index >= 0 && Index + Count <= Num());
		const int32 NumAfterHole = Num() - (Index + Count);
		const int32 NumToMove = Count < NumAfterHole ? Count : NumAfterHole;
		for (int32 Moved = 0; Moved < NumToMove; ++Moved)
		{
			Data[static_cast<SIZE_T>(Index + Moved)] = MoveTemp(Data[static_cast<SIZE_T>(Num() - NumToMove + Moved)]);
		}
		Data.erase(Data.end() - Count, Data.end());
	}
	template <typename PredicateType>
	int32 RemoveAll(const PredicateType& Predicate)
	{
		const int32 OldNum = Num();
		Data.erase(std::remove_if(Data.begin(), Data.end(), [&Predicate](const InElementType& Element)
					   { return Predicate(Element); }),
			Data.end());
		return OldNum - Num();
	}
	int32 Remove(const InElementType& Item)
	{
		return RemoveAll([&Item](const InElementType& Element)
			{ return Element == Item; });
	}
	int32 RemoveSingle(const InElementType& Item)
	{
		const int32 Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAt(Index);
		return 1;
	}

	void Empty(int32 Slack = 0)
	{
		Data.clear();
		Data.shrink_to_fit();
		Data.reserve(static_cast<SIZE_T>(Slack));
	}
	void Reset(int32 NewSize = 0)
	{
		Data.clear();
		Data.reserve(static_cast<SIZE_T>(NewSize));
	}
	void Reserve(int32 Number) { Data.reserve(static_cast<SIZE_T>(Number)); }
	void SetNum(int32 NewNum, bool bAllowShrinking = true) { Data.resize(static_cast<SIZE_T>(NewNum)); }
	void SetNumZeroed(int32 NewNum, bool bAllowShrinking = true) { Data.resize(static_cast<SIZE_T>(NewNum)); }
	void Shrink() { Data.shrink_to_fit(); }

	int32 Find(const InElementType& Item) const
	{
		for (int32 Index = 0; Index < Num(); ++Index)
		{
			if (Data[static_cast<SIZE_T>(Index)] == Item)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	bool Find(const InElementType& Item, int32& Index) const
	{
		Index = Find(Item);
		return Index != INDEX_NONE;
	}
	template <typename KeyType>
	int32 IndexOfByKey(const KeyType& Key) const
	{
		for (int32 Index = 0; Index < Num(); ++Index)
		{
			if (Data[static_cast<SIZE_T>(Index)] == Key)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	template <typename PredicateType>
	int32 IndexOfByPredicate(const PredicateType& Predicate) const
	{
		for (int32 Index = 0; Index < Num(); ++Index)
		{
			if (Predicate(Data[static_cast<SIZE_T>(Index)]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	template <typename PredicateType>
	InElementType* FindByPredicate(const PredicateType& Predicate)
	{
		const int32 Index = IndexOfByPredicate(Predicate);
		return Index == INDEX_NONE ? nullptr : &Data[static_cast<SIZE_T>(Index)];
	}
	template <typename PredicateType>
	const InElementType* FindByPredicate(const PredicateType& Predicate) const
	{
		const int32 Index = IndexOfByPredicate(Predicate);
		return Index == INDEX_NONE ? nullptr : &Data[static_cast<SIZE_T>(Index)];
	}
	template <typename KeyType>
	InElementType* FindByKey(const KeyType& Key)
	{
		const int32 Index = IndexOfByKey(Key);
		return Index == INDEX_NONE ? nullptr : &Data[static_cast<SIZE_T>(Index)];
	}
	template <typename ComparisonType>
	bool Contains(const ComparisonType& Item) const
	{
		return IndexOfByKey(Item) != INDEX_NONE;
	}
	template <typename PredicateType>
	bool ContainsByPredicate(const PredicateType& Predicate) const
	{
		return IndexOfByPredicate(Predicate) != INDEX_NONE;
	}
	template <typename PredicateType>
	TArray FilterByPredicate(const PredicateType& Predicate) const
	{
		TArray Result;
		for (const InElementType& Element : Data)
		{
			if (Predicate(Element))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	void Sort() { Sort(TLess<>()); }
	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		std::sort(Data.begin(), Data.end(), UE::Core::Private::TDereferencingPredicate<InElementType, PredicateType>{Predicate});
	}
	void StableSort() { StableSort(TLess<>()); }
	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		std::stable_sort(Data.begin(), Data.end(), UE::Core::Private::TDereferencingPredicate<InElementType, PredicateType>{Predicate});
	}

	bool operator==(const TArray& Other) const { return Data == Other.Data; }
	bool operator!=(const TArray& Other) const { return !(*this == Other); }

	auto begin() { return Data.begin(); }
	auto end() { return Data.end(); }
	auto begin() const { return Data.begin(); }
	auto end() const { return Data.end(); }

private:
	std::vector<InElementType> Data;
};

template <typename T, typename Allocator>
SIZE_T GetNum(const TArray<T, Allocator>& Array)
{
	return static_cast<SIZE_T>(Array.Num());
}
