#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"

#include <memory>
#include <type_traits>
#include <utility>

// The engine's reference-counted pointers, implemented over the standard library's.

enum class ESPMode : uint8
{
	NotThreadSafe = 0,
	ThreadSafe = 1,
};

template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedRef;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedPtr;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TWeakPtr;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedFromThis;

namespace SharedPointerInternals
{
	/** What MakeShareable returns: a raw pointer on its way into a shared pointer. */
	template <class ObjectType>
	struct TRawPtrProxy
	{
		ObjectType* Object;
		explicit TRawPtrProxy(ObjectType* InObject)
			: Object(InObject)
		{
		}
	};

	template <class ObjectType, ESPMode Mode>
	const std::shared_ptr<ObjectType>& GetStd(const TSharedRef<ObjectType, Mode>& Ref);
	template <class ObjectType, ESPMode Mode>
	const std::shared_ptr<ObjectType>& GetStd(const TSharedPtr<ObjectType, Mode>& Ptr);
}

template <class ObjectType, ESPMode Mode>
class TSharedRef
{
public:
	using ElementType = ObjectType;

	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	explicit TSharedRef(OtherType* InObject)
		: Object(InObject)
	{
		check(InObject);
	}
	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other)
		: Object(SharedPointerInternals::GetStd(Other))
	{
	}
	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TSharedRef(SharedPointerInternals::TRawPtrProxy<OtherType> const& InRawPtrProxy)
		: Object(InRawPtrProxy.Object)
	{
		check(InRawPtrProxy.Object);
	}
	TSharedRef(const TSharedRef&) = default;
	TSharedRef& operator=(const TSharedRef&) = default;

	/** Wraps an existing standard pointer; it must not be null. */
	explicit TSharedRef(std::shared_ptr<ObjectType> InObject)
		: Object(std::move(InObject))
	{
		check(Object);
	}

	ObjectType& Get() const { return *Object; }
	ObjectType& operator*() const { return *Object; }
	ObjectType* operator->() const { return Object.get(); }
	int32 GetSharedReferenceCount() const { return static_cast<int32>(Object.use_count()); }
	bool IsUnique() const { return Object.use_count() == 1; }
	bool IsValid() const { return true; }

private:
	template <class OtherType, ESPMode OtherMode>
	friend const std::shared_ptr<OtherType>& SharedPointerInternals::GetStd(const TSharedRef<OtherType, OtherMode>& Ref);

	std::shared_ptr<ObjectType> Object;
};

template <class ObjectType, ESPMode Mode>
class TSharedPtr
{
public:
	using ElementType = ObjectType;

	TSharedPtr() = default;
	TSharedPtr(TYPE_OF_NULLPTR)
	{
	}
	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	explicit TSharedPtr(OtherType* InObject)
		: Object(InObject)
	{
	}
	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TSharedPtr(SharedPointerInternals::TRawPtrProxy<OtherType> const& InRawPtrProxy)
		: Object(InRawPtrProxy.Object)
	{
	}
	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other)
		: Object(SharedPointerInternals::GetStd(Other))
	{
	}
	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TSharedPtr(const TSharedRef<OtherType, Mode>& Other)
		: Object(SharedPointerInternals::GetStd(Other))
	{
	}
	TSharedPtr(const TSharedPtr&) = default;
	TSharedPtr(TSharedPtr&&) = default;
	TSharedPtr& operator=(const TSharedPtr&) = default;
	TSharedPtr& operator=(TSharedPtr&&) = default;
	TSharedPtr& operator=(TYPE_OF_NULLPTR)
	{
		Object.reset();
		return *this;
	}

	explicit TSharedPtr(std::shared_ptr<ObjectType> InObject)
		: Object(std::move(InObject))
	{
	}

	TSharedRef<ObjectType, Mode> ToSharedRef() const
	{
		check(IsValid());
		return TSharedRef<ObjectType, Mode>(Object);
	}
	ObjectType* Get() const { return Object.get(); }
	explicit operator bool() const { return Object != nullptr; }
	bool IsValid() const { return Object != nullptr; }
	ObjectType& operator*() const
	{
		check(IsValid());
		return *Object;
	}
	ObjectType* operator->() const
	{
		check(IsValid());
		return Object.get();
	}
	void Reset() { Object.reset(); }
	int32 GetSharedReferenceCount() const { return static_cast<int32>(Object.use_count()); }
	bool IsUnique() const { return Object.use_count() == 1; }

private:
	template <class OtherType, ESPMode OtherMode>
	friend const std::shared_ptr<OtherType>& SharedPointerInternals::GetStd(const TSharedPtr<OtherType, OtherMode>& Ptr);

	std::shared_ptr<ObjectType> Object;
};

template <class ObjectType, ESPMode Mode>
class TWeakPtr
{
public:
	using ElementType = ObjectType;

	TWeakPtr() = default;
	TWeakPtr(TYPE_OF_NULLPTR)
	{
	}
	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TWeakPtr(const TSharedRef<OtherType, Mode>& Other)
		: Object(SharedPointerInternals::GetStd(Other))
	{
	}
	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TWeakPtr(const TSharedPtr<OtherType, Mode>& Other)
		: Object(SharedPointerInternals::GetStd(Other))
	{
	}
	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TWeakPtr(const TWeakPtr<OtherType, Mode>& Other)
		: Object(Other.Pin().Object)
	{
	}
	TWeakPtr(const TWeakPtr&) = default;
	TWeakPtr& operator=(const TWeakPtr&) = default;
	TWeakPtr& operator=(TYPE_OF_NULLPTR)
	{
		Object.reset();
		return *this;
	}

	explicit TWeakPtr(const std::weak_ptr<ObjectType>& InObject)
		: Object(InObject)
	{
	}

	TSharedPtr<ObjectType, Mode> Pin() const { return TSharedPtr<ObjectType, Mode>(Object.lock()); }
	bool IsValid() const { return !Object.expired(); }
	void Reset() { Object.reset(); }
	bool HasSameObject(const void* InOtherPtr) const { return Pin().Get() == InOtherPtr; }

	friend bool operator==(const TWeakPtr& A, const TWeakPtr& B) { return !A.Object.owner_before(B.Object) && !B.Object.owner_before(A.Object); }

private:
	template <class, ESPMode>
	friend class TWeakPtr;

	std::weak_ptr<ObjectType> Object;
};

namespace SharedPointerInternals
{
	template <class ObjectType, ESPMode Mode>
	const std::shared_ptr<ObjectType>& GetStd(const TSharedRef<ObjectType, Mode>& Ref)
	{
		return Ref.Object;
	}
	template <class ObjectType, ESPMode Mode>
	const std::shared_ptr<ObjectType>& GetStd(const TSharedPtr<ObjectType, Mode>& Ptr)
	{
		return Ptr.Object;
	}
}

/** Lets an object hand out shared references to itself once a shared pointer owns it. */
template <class ObjectType, ESPMode Mode>
class TSharedFromThis : public std::enable_shared_from_this<ObjectType>
{
public:
	TSharedRef<ObjectType, Mode> AsShared()
	{
		return TSharedRef<ObjectType, Mode>(this->shared_from_this());
	}
	TSharedRef<ObjectType const, Mode> AsShared() const
	{
		return TSharedRef<ObjectType const, Mode>(std::shared_ptr<ObjectType const>(this->shared_from_this()));
	}
	TWeakPtr<ObjectType, Mode> AsWeak() { return TWeakPtr<ObjectType, Mode>(this->weak_from_this()); }
	bool DoesSharedInstanceExist() const { return !this->weak_from_this().expired(); }

protected:
	template <class OtherType>
	static TSharedRef<OtherType, Mode> SharedThis(OtherType* ThisPtr)
	{
		return TSharedRef<OtherType, Mode>(std::static_pointer_cast<OtherType>(ThisPtr->shared_from_this()));
	}
	template <class OtherType>
	static TSharedRef<OtherType const, Mode> SharedThis(const OtherType* ThisPtr)
	{
		return TSharedRef<OtherType const, Mode>(std::static_pointer_cast<OtherType const>(ThisPtr->shared_from_this()));
	}
};

template <class ObjectType>
SharedPointerInternals::TRawPtrProxy<ObjectType> MakeShareable(ObjectType* InObject)
{
	return SharedPointerInternals::TRawPtrProxy<ObjectType>(InObject);
}

template <typename InObjectType, ESPMode InMode = ESPMode::ThreadSafe, typename... InArgTypes>
TSharedRef<InObjectType, InMode> MakeShared(InArgTypes&&... Args)
{
	return TSharedRef<InObjectType, InMode>(std::make_shared<InObjectType>(std::forward<InArgTypes>(Args)...));
}

template <class CastToType, class CastFromType, ESPMode Mode>
TSharedRef<CastToType, Mode> StaticCastSharedRef(TSharedRef<CastFromType, Mode> const& InSharedRef)
{
	return TSharedRef<CastToType, Mode>(std::static_pointer_cast<CastToType>(SharedPointerInternals::GetStd(InSharedRef)));
}

template <class CastToType, class CastFromType, ESPMode Mode>
TSharedPtr<CastToType, Mode> StaticCastSharedPtr(TSharedPtr<CastFromType, Mode> const& InSharedPtr)
{
	return TSharedPtr<CastToType, Mode>(std::static_pointer_cast<CastToType>(SharedPointerInternals::GetStd(InSharedPtr)));
}

template <class CastToType, class CastFromType, ESPMode Mode>
TSharedRef<CastToType, Mode> ConstCastSharedRef(TSharedRef<CastFromType, Mode> const& InSharedRef)
{
	return TSharedRef<CastToType, Mode>(std::const_pointer_cast<CastToType>(SharedPointerInternals::GetStd(InSharedRef)));
}

template <class A, class B, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Lhs, const TSharedPtr<B, Mode>& Rhs)
{
	return Lhs.Get() == Rhs.Get();
}
template <class A, class B, ESPMode Mode>
bool operator!=(const TSharedPtr<A, Mode>& Lhs, const TSharedPtr<B, Mode>& Rhs)
{
	return Lhs.Get() != Rhs.Get();
}
template <class A, class B, ESPMode Mode>
bool operator==(const TSharedRef<A, Mode>& Lhs, const TSharedRef<B, Mode>& Rhs)
{
	return &Lhs.Get() == &Rhs.Get();
}
template <class A, class B, ESPMode Mode>
bool operator!=(const TSharedRef<A, Mode>& Lhs, const TSharedRef<B, Mode>& Rhs)
{
	return &Lhs.Get() != &Rhs.Get();
}
template <class A, class B, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Lhs, const TSharedRef<B, Mode>& Rhs)
{
	return Lhs.Get() == &Rhs.Get();
}
template <class A, class B, ESPMode Mode>
bool operator==(const TSharedRef<A, Mode>& Lhs, const TSharedPtr<B, Mode>& Rhs)
{
	return &Lhs.Get() == Rhs.Get();
}
template <class A, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Lhs, TYPE_OF_NULLPTR)
{
	return !Lhs.IsValid();
}
template <class A, ESPMode Mode>
bool operator!=(const TSharedPtr<A, Mode>& Lhs, TYPE_OF_NULLPTR)
{
	return Lhs.IsValid();
}
template <class A, ESPMode Mode>
uint32 GetTypeHash(const TSharedPtr<A, Mode>& Ptr)
{
	return static_cast<uint32>(std::hash<const void*>()(Ptr.Get()));
}
