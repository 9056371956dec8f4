#pragma once

#include "Containers/Array.h"
#include "CoreTypes.h"
#include "Templates/UnrealTemplate.h"

/** How a set finds the key of an element, hashes it and compares keys. */
template <typename ElementType, typename InKeyType, bool bInAllowDuplicateKeys = false>
struct BaseKeyFuncs
{
	typedef InKeyType KeyType;
	typedef const InKeyType& KeyInitType;
	typedef const ElementType& ElementInitType;

	enum
	{
		bAllowDuplicateKeys = bInAllowDuplicateKeys
	};
};

/** Elements are their own keys, compared with == and hashed with GetTypeHash. */
template <typename ElementType, bool bInAllowDuplicateKeys = false>
struct DefaultKeyFuncs : BaseKeyFuncs<ElementType, ElementType, bInAllowDuplicateKeys>
{
	typedef typename BaseKeyFuncs<ElementType, ElementType, bInAllowDuplicateKeys>::KeyInitType KeyInitType;
	typedef typename BaseKeyFuncs<ElementType, ElementType, bInAllowDuplicateKeys>::ElementInitType ElementInitType;

	static KeyInitType GetSetKey(ElementInitType Element) { return Element; }
	static bool Matches(KeyInitType A, KeyInitType B) { return A == B; }
	static uint32 GetKeyHash(KeyInitType Key) { return GetTypeHash(Key); }
};

/** Identifies an element of a set. */
class FSetElementId
{
public:
	FSetElementId()
		: Index(INDEX_NONE)
	{
	}

	bool IsValidId() const { return Index != INDEX_NONE; }

	friend bool operator==(const FSetElementId& A, const FSetElementId& B) { return A.Index == B.Index; }

	int32 AsInteger() const { return Index; }

	static FSetElementId FromInteger(int32 Integer) { return FSetElementId(Integer); }

private:
	explicit FSetElementId(int32 InIndex)
		: Index(InIndex)
	{
	}

	int32 Index;
};

/**
 * A hashed set: elements in an array and open-addressed buckets of indices, so adding an element
 * allocates nothing per element, as the engine's set does. Only what the editor uses is here.
 */
template <typename InElementType, typename KeyFuncs = DefaultKeyFuncs<InElementType>>
class TSet
{
public:
	typedef InElementType ElementType;

	/**
	 * Adds the element, or replaces the element with the same key, as the engine does.
	 * @return the element's id (valid until an element is removed)
	 */
	FSetElementId Add(const InElementType& InElement, bool* bIsAlreadyInSetPtr = nullptr) { return Emplace(InElement, bIsAlreadyInSetPtr); }
	FSetElementId Add(InElementType&& InElement, bool* bIsAlreadyInSetPtr = nullptr) { return Emplace(MoveTemp(InElement), bIsAlreadyInSetPtr); }

	bool Contains(typename KeyFuncs::KeyInitType Key) const { return FindIndex(Key) != INDEX_NONE; }

	/** The element whose key matches, or null. */
	InElementType* Find(typename KeyFuncs::KeyInitType Key)
	{
		const int32 Index = FindIndex(Key);
		return Index != INDEX_NONE ? &Elements[Index] : nullptr;
	}
	const InElementType* Find(typename KeyFuncs::KeyInitType Key) const
	{
		const int32 Index = FindIndex(Key);
		return Index != INDEX_NONE ? &Elements[Index] : nullptr;
	}

	/** Removes the element whose key matches. @return the number of elements removed (0 or 1). */
	int32 Remove(typename KeyFuncs::KeyInitType Key)
	{
		const int32 Bucket = FindBucket(Key);
		if (Bucket == INDEX_NONE)
		{
			return 0;
		}
		const int32 Index = Buckets[Bucket];
		ClearBucket(Bucket);
		// The last element fills the hole, so that elements stay contiguous.
		const int32 LastIndex = Elements.Num() - 1;
		if (Index != LastIndex)
		{
			Buckets[FindBucketOfIndex(LastIndex)] = Index;
			Elements[Index] = MoveTemp(Elements[LastIndex]);
		}
		Elements.RemoveAt(LastIndex, 1, false);
		return 1;
	}

	int32 Num() const { return Elements.Num(); }

	void Reserve(int32 Number)
	{
		Elements.Reserve(Number);
		int32 Wanted = 16;
		while (Wanted < Number * 2)
		{
			Wanted *= 2;
		}
		if (Wanted > Buckets.Num())
		{
			Rehash(Wanted);
		}
	}

	void Empty(int32 ExpectedNumElements = 0)
	{
		Elements.Empty();
		Buckets.Empty();
		Reserve(ExpectedNumElements);
	}

private:
	template <typename ArgType>
	FSetElementId Emplace(ArgType&& Element, bool* bIsAlreadyInSetPtr)
	{
		if ((Elements.Num() + 1) * 2 > Buckets.Num())
		{
			Rehash(Buckets.Num() > 0 ? Buckets.Num() * 2 : 16);
		}
		// One hash: the probe ends at the matching element or at the free bucket it takes.
		const int32 Mask = Buckets.Num() - 1;
		int32 Bucket = static_cast<int32>(KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(Element))) & Mask;
		for (; Buckets[Bucket] != INDEX_NONE; Bucket = (Bucket + 1) & Mask)
		{
			const int32 Index = Buckets[Bucket];
			if (KeyFuncs::Matches(KeyFuncs::GetSetKey(Elements[Index]), KeyFuncs::GetSetKey(Element)))
			{
				Elements[Index] = Forward<ArgType>(Element);
				if (bIsAlreadyInSetPtr)
				{
					*bIsAlreadyInSetPtr = true;
				}
				return FSetElementId::FromInteger(Index);
			}
		}
		Elements.Add(Forward<ArgType>(Element));
		Buckets[Bucket] = Elements.Num() - 1;
		if (bIsAlreadyInSetPtr)
		{
			*bIsAlreadyInSetPtr = false;
		}
		return FSetElementId::FromInteger(Elements.Num() - 1);
	}

	int32 FindIndex(typename KeyFuncs::KeyInitType Key) const
	{
		const int32 Bucket = FindBucket(Key);
		return Bucket != INDEX_NONE ? Buckets[Bucket] : INDEX_NONE;
	}

	/** The bucket holding the element whose key matches, or INDEX_NONE. */
	int32 FindBucket(typename KeyFuncs::KeyInitType Key) const
	{
		if (Buckets.Num() == 0)
		{
			return INDEX_NONE;
		}
		const int32 Mask = Buckets.Num() - 1;
		for (int32 Bucket = static_cast<int32>(KeyFuncs::GetKeyHash(Key)) & Mask;; Bucket = (Bucket + 1) & Mask)
		{
			const int32 Index = Buckets[Bucket];
			if (Index == INDEX_NONE)
			{
				return INDEX_NONE;
			}
			if (KeyFuncs::Matches(KeyFuncs::GetSetKey(Elements[Index]), Key))
			{
				return Bucket;
			}
		}
	}

	int32 HomeBucket(int32 Index) const { return static_cast<int32>(KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(Elements[Index]))) & (Buckets.Num() - 1); }

	int32 FindBucketOfIndex(int32 Index) const
	{
		const int32 Mask = Buckets.Num() - 1;
		int32 Bucket = HomeBucket(Index);
		while (Buckets[Bucket] != Index)
		{
			Bucket = (Bucket + 1) & Mask;
		}
		return Bucket;
	}

	/** Empties a bucket and moves later elements of its run back, so that every probe still reaches its element. */
	void ClearBucket(int32 Bucket)
	{
		const int32 Mask = Buckets.Num() - 1;
		int32 Hole = Bucket;
		Buckets[Hole] = INDEX_NONE;
		for (int32 Next = (Hole + 1) & Mask; Buckets[Next] != INDEX_NONE; Next = (Next + 1) & Mask)
		{
			// An element may fill the hole only if its probe passes the hole on the way to Next.
			if (((Next - HomeBucket(Buckets[Next])) & Mask) >= ((Next - Hole) & Mask))
			{
				Buckets[Hole] = Buckets[Next];
				Buckets[Next] = INDEX_NONE;
				Hole = Next;
			}
		}
	}

	void Rehash(int32 NumBuckets)
	{
		Buckets.Empty(NumBuckets);
		for (int32 Bucket = 0; Bucket < NumBuckets; ++Bucket)
		{
			Buckets.Add(INDEX_NONE);
		}
		for (int32 Index = 0; Index < Elements.Num(); ++Index)
		{
			Insert(Index);
		}
	}

	void Insert(int32 Index)
	{
		const int32 Mask = Buckets.Num() - 1;
		int32 Bucket = static_cast<int32>(KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(Elements[Index]))) & Mask;
		while (Buckets[Bucket] != INDEX_NONE)
		{
			Bucket = (Bucket + 1) & Mask;
		}
		Buckets[Bucket] = Index;
	}

	TArray<InElementType> Elements;
	TArray<int32> Buckets;
};
