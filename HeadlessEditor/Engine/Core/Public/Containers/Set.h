#pragma once

#include "CoreTypes.h"

#include <unordered_set>

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

/**
 * A hashed set. The headless editor keeps it in a standard unordered set driven by the key
 * functions; iteration order is not the engine's and nothing here relies on it.
 */
template <typename InElementType, typename KeyFuncs = DefaultKeyFuncs<InElementType>>
class TSet
{
public:
	typedef InElementType ElementType;

	void Add(const InElementType& Element) { Elements.insert(Element); }
	bool Contains(typename KeyFuncs::KeyInitType Key) const { return Elements.find(Key) != Elements.end(); }
	int32 Num() const { return static_cast<int32>(Elements.size()); }
	void Reserve(int32 Number) { Elements.reserve(static_cast<size_t>(Number)); }
	void Empty(int32 ExpectedNumElements = 0)
	{
		Elements.clear();
		Reserve(ExpectedNumElements);
	}

private:
	struct FHasher
	{
		size_t operator()(const InElementType& Element) const { return KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(Element)); }
	};
	struct FEqual
	{
		bool operator()(const InElementType& A, const InElementType& B) const { return KeyFuncs::Matches(KeyFuncs::GetSetKey(A), KeyFuncs::GetSetKey(B)); }
	};

	std::unordered_set<InElementType, FHasher, FEqual> Elements;
};
