#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Delegates/IDelegateInstance.h"
#include "Misc/AssertionMacros.h"
#include "Templates/SharedPointer.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

template <bool bConst, class Class, typename FuncType>
struct TMemFunPtrType;

template <class Class, typename RetType, typename... ArgTypes>
struct TMemFunPtrType<false, Class, RetType(ArgTypes...)>
{
	typedef RetType (std::remove_const_t<Class>::*Type)(ArgTypes...);
};

template <class Class, typename RetType, typename... ArgTypes>
struct TMemFunPtrType<true, Class, RetType(ArgTypes...)>
{
	typedef RetType (std::remove_const_t<Class>::*Type)(ArgTypes...) const;
};

struct FDefaultDelegateUserPolicy
{
};

template <typename FuncType, typename UserPolicy = FDefaultDelegateUserPolicy>
class TDelegate;

template <typename FuncType, typename UserPolicy = FDefaultDelegateUserPolicy>
class TMulticastDelegate;

/**
 * A single-cast delegate: a callable bound to a free function, a lambda, or a member function of a
 * raw, shared or engine object, with payload values appended after the call's own arguments.
 * Shared-pointer bindings hold their object weakly and become unbound when it is destroyed.
 */
template <typename InRetValType, typename... ParamTypes, typename UserPolicy>
class TDelegate<InRetValType(ParamTypes...), UserPolicy>
{
public:
	using RetValType = InRetValType;
	using FFuncType = InRetValType(ParamTypes...);

	/** Function and method pointer types that bind to this signature with the given payload types. */
	template <typename... VarTypes>
	using TFuncPtr = InRetValType (*)(ParamTypes..., VarTypes...);
	template <typename UserClass, typename... VarTypes>
	using TMethodPtr = typename TMemFunPtrType<false, UserClass, InRetValType(ParamTypes..., VarTypes...)>::Type;
	template <typename UserClass, typename... VarTypes>
	using TConstMethodPtr = typename TMemFunPtrType<true, UserClass, InRetValType(ParamTypes..., VarTypes...)>::Type;

	TDelegate() = default;
	TDelegate(TYPE_OF_NULLPTR)
	{
	}

	template <typename... VarTypes>
	static TDelegate CreateStatic(InRetValType (*InFunc)(ParamTypes..., std::decay_t<VarTypes>...), VarTypes&&... Vars)
	{
		return Make(nullptr, nullptr, [InFunc, Payload = std::make_tuple(std::forward<VarTypes>(Vars)...)](ParamTypes... Params) mutable -> InRetValType
			{ return std::apply([&](auto&... Bound) -> InRetValType
				  { return InFunc(std::forward<ParamTypes>(Params)..., Bound...); },
				  Payload); });
	}

	template <typename FunctorType, typename... VarTypes>
	static TDelegate CreateLambda(FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return Make(nullptr, nullptr, [Functor = std::forward<FunctorType>(InFunctor), Payload = std::make_tuple(std::forward<VarTypes>(Vars)...)](ParamTypes... Params) mutable -> InRetValType
			{ return std::apply([&](auto&... Bound) -> InRetValType
				  { return Functor(std::forward<ParamTypes>(Params)..., Bound...); },
				  Payload); });
	}

	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateRaw(UserClass* InUserObject, typename TMemFunPtrType<false, UserClass, InRetValType(ParamTypes..., std::decay_t<VarTypes>...)>::Type InFunc, VarTypes&&... Vars)
	{
		static_assert(!std::is_const_v<UserClass>, "Attempting to bind a delegate with a const object pointer and non-const member function.");
		return MakeMember(InUserObject, nullptr, InUserObject, InFunc, std::forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateRaw(const UserClass* InUserObject, typename TMemFunPtrType<true, UserClass, InRetValType(ParamTypes..., std::decay_t<VarTypes>...)>::Type InFunc, VarTypes&&... Vars)
	{
		return MakeMember(InUserObject, nullptr, InUserObject, InFunc, std::forward<VarTypes>(Vars)...);
	}

	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	static TDelegate CreateSP(const TSharedRef<UserClass, Mode>& InUserObjectRef, typename TMemFunPtrType<false, UserClass, InRetValType(ParamTypes..., std::decay_t<VarTypes>...)>::Type InFunc, VarTypes&&... Vars)
	{
		return MakeSharedBinding(InUserObjectRef, InFunc, std::forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	static TDelegate CreateSP(const TSharedRef<UserClass, Mode>& InUserObjectRef, typename TMemFunPtrType<true, UserClass, InRetValType(ParamTypes..., std::decay_t<VarTypes>...)>::Type InFunc, VarTypes&&... Vars)
	{
		return MakeSharedBinding(InUserObjectRef, InFunc, std::forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateSP(UserClass* InUserObject, typename TMemFunPtrType<false, UserClass, InRetValType(ParamTypes..., std::decay_t<VarTypes>...)>::Type InFunc, VarTypes&&... Vars)
	{
		static_assert(!std::is_const_v<UserClass>, "Attempting to bind a delegate with a const object pointer and non-const member function.");
		return MakeSharedBinding(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), InFunc, std::forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateSP(const UserClass* InUserObject, typename TMemFunPtrType<true, UserClass, InRetValType(ParamTypes..., std::decay_t<VarTypes>...)>::Type InFunc, VarTypes&&... Vars)
	{
		return MakeSharedBinding(StaticCastSharedRef<const UserClass>(InUserObject->AsShared()), InFunc, std::forward<VarTypes>(Vars)...);
	}

	/** Engine objects: held by pointer; the headless editor keeps objects alive while bound. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateUObject(UserClass* InUserObject, typename TMemFunPtrType<false, UserClass, InRetValType(ParamTypes..., std::decay_t<VarTypes>...)>::Type InFunc, VarTypes&&... Vars)
	{
		return MakeMember(InUserObject, nullptr, InUserObject, InFunc, std::forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateUObject(const UserClass* InUserObject, typename TMemFunPtrType<true, UserClass, InRetValType(ParamTypes..., std::decay_t<VarTypes>...)>::Type InFunc, VarTypes&&... Vars)
	{
		return MakeMember(InUserObject, nullptr, InUserObject, InFunc, std::forward<VarTypes>(Vars)...);
	}

	template <typename... ArgTypes>
	void BindStatic(ArgTypes&&... Args)
	{
		*this = CreateStatic(std::forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindLambda(ArgTypes&&... Args)
	{
		*this = CreateLambda(std::forward<ArgTypes>(Args)...);
	}
	template <typename UserClass, typename FuncPtr, typename... VarTypes>
	void BindRaw(UserClass* InUserObject, FuncPtr InFunc, VarTypes&&... Vars)
	{
		*this = CreateRaw(InUserObject, InFunc, std::forward<VarTypes>(Vars)...);
	}
	template <typename UserObjectType, typename FuncPtr, typename... VarTypes>
	void BindSP(UserObjectType&& InUserObject, FuncPtr InFunc, VarTypes&&... Vars)
	{
		*this = CreateSP(std::forward<UserObjectType>(InUserObject), InFunc, std::forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename FuncPtr, typename... VarTypes>
	void BindUObject(UserClass* InUserObject, FuncPtr InFunc, VarTypes&&... Vars)
	{
		*this = CreateUObject(InUserObject, InFunc, std::forward<VarTypes>(Vars)...);
	}

	/** Calls the bound function; calling an unbound delegate is a fatal error, as in the engine. */
	InRetValType Execute(ParamTypes... Params) const
	{
		checkf(IsBound(), TEXT("Executing an unbound delegate"));
		const std::shared_ptr<FInstance> Keep = Instance;
		return Keep->Call(std::forward<ParamTypes>(Params)...);
	}

	template <typename R = InRetValType, typename = std::enable_if_t<std::is_void_v<R>>>
	bool ExecuteIfBound(ParamTypes... Params) const
	{
		if (!IsBound())
		{
			return false;
		}
		const std::shared_ptr<FInstance> Keep = Instance;
		Keep->Call(std::forward<ParamTypes>(Params)...);
		return true;
	}

	bool IsBound() const { return Instance && (!Instance->IsAlive || Instance->IsAlive()); }
	bool IsBoundToObject(const void* InUserObject) const { return Instance && InUserObject && Instance->UserObject == InUserObject; }
	const void* GetObjectForTimerManager() const { return Instance ? Instance->UserObject : nullptr; }
	void Unbind() { Instance.reset(); }
	FDelegateHandle GetHandle() const { return Instance ? Instance->Handle : FDelegateHandle(); }

	explicit operator bool() const { return IsBound(); }

private:
	struct FInstance
	{
		std::function<InRetValType(ParamTypes...)> Call;
		const void* UserObject = nullptr;
		std::function<bool()> IsAlive;
		FDelegateHandle Handle{FDelegateHandle::GenerateNewHandle};
	};

	template <typename CallableType>
	static TDelegate Make(const void* UserObject, std::function<bool()> IsAlive, CallableType&& Callable)
	{
		TDelegate Result;
		Result.Instance = std::make_shared<FInstance>();
		Result.Instance->Call = std::forward<CallableType>(Callable);
		Result.Instance->UserObject = UserObject;
		Result.Instance->IsAlive = std::move(IsAlive);
		return Result;
	}

	template <typename UserClass, typename FuncPtr, typename... VarTypes>
	static TDelegate MakeMember(const void* UserObject, std::function<bool()> IsAlive, UserClass* Target, FuncPtr InFunc, VarTypes&&... Vars)
	{
		return Make(UserObject, std::move(IsAlive), [Target, InFunc, Payload = std::make_tuple(std::forward<VarTypes>(Vars)...)](ParamTypes... Params) mutable -> InRetValType
			{ return std::apply([&](auto&... Bound) -> InRetValType
				  { return (Target->*InFunc)(std::forward<ParamTypes>(Params)..., Bound...); },
				  Payload); });
	}

	template <typename UserClass, ESPMode Mode, typename FuncPtr, typename... VarTypes>
	static TDelegate MakeSharedBinding(const TSharedRef<UserClass, Mode>& ObjectRef, FuncPtr InFunc, VarTypes&&... Vars)
	{
		TWeakPtr<UserClass, Mode> Weak(ObjectRef);
		UserClass* Raw = &ObjectRef.Get();
		return Make(
			Raw, [Weak]()
			{ return Weak.IsValid(); },
			[Weak, InFunc, Payload = std::make_tuple(std::forward<VarTypes>(Vars)...)](ParamTypes... Params) mutable -> InRetValType
			{
				const TSharedPtr<UserClass, Mode> Pinned = Weak.Pin();
				checkf(Pinned.IsValid(), TEXT("Executing a delegate whose shared object is gone"));
				UserClass* Target = Pinned.Get();
				return std::apply([&](auto&... Bound) -> InRetValType
					{ return (Target->*InFunc)(std::forward<ParamTypes>(Params)..., Bound...); },
					Payload);
			});
	}

	template <typename, typename>
	friend class TMulticastDelegate;

	std::shared_ptr<FInstance> Instance;
};

/**
 * A delegate with any number of bindings, kept as the engine keeps its invocation list: Broadcast
 * calls the bindings from the last added to the first; a binding removed while a broadcast runs is
 * unbound in place and skipped; removed and dead bindings are compacted by moving the last binding
 * into the hole, so the order changes after a removal.
 */
template <typename... ParamTypes, typename UserPolicy>
class TMulticastDelegate<void(ParamTypes...), UserPolicy>
{
public:
	typedef TDelegate<void(ParamTypes...), UserPolicy> FDelegate;

	FDelegateHandle Add(const FDelegate& InNewDelegate)
	{
		if (!InNewDelegate.Instance)
		{
			return FDelegateHandle();
		}
		CompactInvocationList(true);
		InvocationList.Add(InNewDelegate);
		return InNewDelegate.GetHandle();
	}
	template <typename... ArgTypes>
	FDelegateHandle AddStatic(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateStatic(std::forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddLambda(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateLambda(std::forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddRaw(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateRaw(std::forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddSP(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateSP(std::forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddUObject(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateUObject(std::forward<ArgTypes>(Args)...));
	}
	bool Remove(FDelegateHandle Handle)
	{
		for (FDelegate& Delegate : InvocationList)
		{
			if (Delegate.Instance && Delegate.GetHandle() == Handle)
			{
				Delegate.Unbind();
				CompactInvocationList(false);
				return true;
			}
		}
		return false;
	}
	int32 RemoveAll(const void* InUserObject)
	{
		int32 Result = 0;
		if (LockCount > 0)
		{
			for (FDelegate& Delegate : InvocationList)
			{
				if (Delegate.IsBoundToObject(InUserObject))
				{
					Delegate.Unbind();
					++Result;
				}
			}
			if (Result > 0)
			{
				CompactionThreshold = 0;
			}
			return Result;
		}
		for (int32 Index = 0; Index < InvocationList.Num();)
		{
			const FDelegate& Delegate = InvocationList[Index];
			if (!Delegate.Instance || Delegate.IsBoundToObject(InUserObject) || IsCompactable(Delegate))
			{
				InvocationList.RemoveAtSwap(Index);
				++Result;
			}
			else
			{
				++Index;
			}
		}
		CompactionThreshold = std::max(2, 2 * InvocationList.Num());
		return Result;
	}
	void Clear()
	{
		for (FDelegate& Delegate : InvocationList)
		{
			Delegate.Unbind();
		}
		CompactInvocationList(false);
	}
	/** True while any binding is held, even one whose object is gone and not yet compacted away. */
	bool IsBound() const
	{
		for (const FDelegate& Delegate : InvocationList)
		{
			if (Delegate.Instance)
			{
				return true;
			}
		}
		return false;
	}
	bool IsBoundToObject(const void* InUserObject) const
	{
		for (const FDelegate& Delegate : InvocationList)
		{
			if (Delegate.IsBoundToObject(InUserObject))
			{
				return true;
			}
		}
		return false;
	}
	/** Bindings added by a callee are not called by the broadcast that is running. */
	void Broadcast(ParamTypes... Params) const
	{
		TMulticastDelegate& Self = const_cast<TMulticastDelegate&>(*this);
		bool bNeedsCompaction = false;
		++Self.LockCount;
		for (int32 Index = InvocationList.Num() - 1; Index >= 0; --Index)
		{
			const FDelegate Delegate = InvocationList[Index];
			if (!Delegate.ExecuteIfBound(Params...))
			{
				bNeedsCompaction = true;
			}
		}
		--Self.LockCount;
		if (bNeedsCompaction)
		{
			Self.CompactInvocationList(false);
		}
	}

private:
	static bool IsCompactable(const FDelegate& Delegate) { return Delegate.Instance && Delegate.Instance->IsAlive && !Delegate.Instance->IsAlive(); }

	void CompactInvocationList(bool bCheckThreshold)
	{
		if (LockCount > 0)
		{
			return;
		}
		// Additions compact only now and then; the threshold decays with each one.
		if (bCheckThreshold && --CompactionThreshold > InvocationList.Num())
		{
			return;
		}
		for (int32 Index = 0; Index < InvocationList.Num();)
		{
			const FDelegate& Delegate = InvocationList[Index];
			if (!Delegate.Instance || IsCompactable(Delegate))
			{
				InvocationList.RemoveAtSwap(Index);
			}
			else
			{
				++Index;
			}
		}
		CompactionThreshold = std::max(2, 2 * InvocationList.Num());
	}

	TArray<FDelegate> InvocationList;
	int32 LockCount = 0;
	int32 CompactionThreshold = 2;
};

#include "Delegates/DelegateCombinations.h"
