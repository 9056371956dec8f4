#pragma once

#include "CoreTypes.h"
#include "Delegates/Delegate.h"
#include "Templates/Function.h"

#include <type_traits>
#include <utility>

/** A value that is either set directly or fetched from a getter each time it is read. */
template <typename ObjectType>
class TAttribute
{
public:
	DECLARE_DELEGATE_RetVal(ObjectType, FGetter);

	TAttribute()
		: Value()
		, bIsSet(false)
	{
	}

	template <typename OtherType, typename = std::enable_if_t<std::is_constructible_v<ObjectType, const OtherType&> && !std::is_same_v<std::decay_t<OtherType>, TAttribute>>>
	TAttribute(const OtherType& InInitialValue)
		: Value(InInitialValue)
		, bIsSet(true)
	{
	}

	TAttribute(ObjectType&& InInitialValue)
		: Value(std::move(InInitialValue))
		, bIsSet(true)
	{
	}

	template <class SourceType>
	TAttribute(SourceType* InUserObject, ObjectType (SourceType::*InMethodPtr)() const)
		: Value()
		, bIsSet(true)
		, Getter(FGetter::CreateSP(InUserObject, InMethodPtr))
	{
	}

	static TAttribute Create(const FGetter& InGetter)
	{
		TAttribute Attribute;
		Attribute.bIsSet = true;
		Attribute.Getter = InGetter;
		return Attribute;
	}
	static TAttribute Create(TFunction<ObjectType()>&& InLambda)
	{
		return Create(FGetter::CreateLambda(std::move(InLambda)));
	}
	template <typename... VarTypes>
	static TAttribute CreateStatic(ObjectType (*InFunc)(std::decay_t<VarTypes>...), VarTypes&&... Vars)
	{
		return Create(FGetter::CreateStatic(InFunc, std::forward<VarTypes>(Vars)...));
	}
	template <typename LambdaType, typename... VarTypes>
	static TAttribute CreateLambda(LambdaType&& InCallable, VarTypes&&... Vars)
	{
		return Create(FGetter::CreateLambda(std::forward<LambdaType>(InCallable), std::forward<VarTypes>(Vars)...));
	}
	template <class SourceType, typename... VarTypes>
	static TAttribute CreateSP(const SourceType* InObject, ObjectType (SourceType::*InMethod)(std::decay_t<VarTypes>...) const, VarTypes&&... Vars)
	{
		return Create(FGetter::CreateSP(InObject, InMethod, std::forward<VarTypes>(Vars)...));
	}
	template <class SourceType, typename... VarTypes>
	static TAttribute CreateRaw(const SourceType* InObject, ObjectType (SourceType::*InMethod)(std::decay_t<VarTypes>...) const, VarTypes&&... Vars)
	{
		return Create(FGetter::CreateRaw(InObject, InMethod, std::forward<VarTypes>(Vars)...));
	}

	/** Reads the value; a bound getter runs on every read, as Slate polls it each frame. */
	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}
	const ObjectType& Get(const ObjectType& DefaultValue) const { return bIsSet ? Get() : DefaultValue; }

	void Set(const ObjectType& InNewValue)
	{
		Getter.Unbind();
		Value = InNewValue;
		bIsSet = true;
	}
	bool IsSet() const { return bIsSet; }
	bool IsBound() const { return Getter.IsBound(); }
	const FGetter& GetBinding() const { return Getter; }
	void Bind(const FGetter& InGetter)
	{
		bIsSet = true;
		Getter = InGetter;
	}

	bool IdenticalTo(const TAttribute& InOther) const
	{
		return bIsSet == InOther.bIsSet && Getter.GetHandle() == InOther.Getter.GetHandle() && (IsBound() || Value == InOther.Value);
	}

private:
	mutable ObjectType Value;
	bool bIsSet;
	FGetter Getter;
};

template <typename T, class SourceType, typename... VarTypes>
TAttribute<T> MakeAttributeSP(const SourceType* InObject, T (SourceType::*InMethod)(std::decay_t<VarTypes>...) const, VarTypes&&... Vars)
{
	return TAttribute<T>::CreateSP(InObject, InMethod, std::forward<VarTypes>(Vars)...);
}

template <typename T, class SourceType, typename... VarTypes>
TAttribute<T> MakeAttributeRaw(const SourceType* InObject, T (SourceType::*InMethod)(std::decay_t<VarTypes>...) const, VarTypes&&... Vars)
{
	return TAttribute<T>::CreateRaw(InObject, InMethod, std::forward<VarTypes>(Vars)...);
}

template <typename LambdaType, typename... PayloadTypes>
auto MakeAttributeLambda(LambdaType&& InCallable, PayloadTypes&&... InputPayload)
{
	typedef decltype(InCallable(std::declval<PayloadTypes>()...)) T;
	return TAttribute<T>::CreateLambda(std::forward<LambdaType>(InCallable), std::forward<PayloadTypes>(InputPayload)...);
}
