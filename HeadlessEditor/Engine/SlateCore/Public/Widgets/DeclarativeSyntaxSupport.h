#pragma once

#include "CoreMinimal.h"
#include "Layout/Clipping.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Styling/ISlateStyle.h"
#include "Templates/Identity.h"
#include "Widgets/IToolTip.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

#include <tuple>

#ifndef TYPENAME_OUTSIDE_TEMPLATE
#define TYPENAME_OUTSIDE_TEMPLATE typename
#endif

/**
 * Widgets are made with SNew and SAssignNew: the declared arguments are applied to a new widget
 * through its Construct. SAssignNew also stores the new widget in its first argument.
 */
#define SNew(WidgetType, ...) \
	MakeTDecl<WidgetType>(#WidgetType, __FILE__, __LINE__, RequiredArgs::MakeRequiredArgs(__VA_ARGS__)) <<= TYPENAME_OUTSIDE_TEMPLATE WidgetType::FArguments()

#define SAssignNew(ExposeAs, WidgetType, ...) \
	MakeTDecl<WidgetType>(#WidgetType, __FILE__, __LINE__, RequiredArgs::MakeRequiredArgs(__VA_ARGS__)).Expose(ExposeAs) <<= TYPENAME_OUTSIDE_TEMPLATE WidgetType::FArguments()

#define SArgumentNew(InArgs, WidgetType, ...) \
	MakeTDecl<WidgetType>(#WidgetType, __FILE__, __LINE__, RequiredArgs::MakeRequiredArgs(__VA_ARGS__)) <<= InArgs

#define SLATE_BEGIN_ARGS(WidgetType) \
public: \
	struct FArguments : public TSlateBaseNamedArgs<WidgetType> \
	{ \
		typedef FArguments WidgetArgsType; \
		FORCENOINLINE FArguments()

#define SLATE_END_ARGS() \
	} \
	;

#define SLATE_PRIVATE_ATTRIBUTE_VARIABLE(AttrType, AttrName) \
	TAttribute<AttrType> _##AttrName

#define SLATE_PRIVATE_ATTRIBUTE_FUNCTION(AttrType, AttrName) \
	WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute) \
	{ \
		_##AttrName = MoveTemp(InAttribute); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <typename... VarTypes> \
	WidgetArgsType& AttrName##_Static(TIdentity_T<typename TAttribute<AttrType>::FGetter::template TFuncPtr<VarTypes...>> InFunc, VarTypes... Vars) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateStatic(InFunc, Vars...)); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	WidgetArgsType& AttrName##_Lambda(TFunction<AttrType(void)>&& InFunctor) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(Forward<TFunction<AttrType(void)>>(InFunctor)); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& AttrName##_Raw(UserClass* InUserObject, typename TAttribute<AttrType>::FGetter::template TConstMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateRaw(InUserObject, InFunc, Vars...)); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& AttrName(TSharedRef<UserClass> InUserObjectRef, typename TAttribute<AttrType>::FGetter::template TConstMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateSP(InUserObjectRef, InFunc, Vars...)); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& AttrName(UserClass* InUserObject, typename TAttribute<AttrType>::FGetter::template TConstMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateSP(InUserObject, InFunc, Vars...)); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& AttrName##_UObject(UserClass* InUserObject, typename TAttribute<AttrType>::FGetter::template TConstMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateUObject(InUserObject, InFunc, Vars...)); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	}

#define SLATE_PRIVATE_ARGUMENT_VARIABLE(ArgType, ArgName) \
	ArgType _##ArgName

#define SLATE_PRIVATE_ARGUMENT_FUNCTION(ArgType, ArgName) \
	WidgetArgsType& ArgName(ArgType InArg) \
	{ \
		_##ArgName = InArg; \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	}

/** An argument that is either a value or a getter polled on each read. */
#define SLATE_ATTRIBUTE(AttrType, AttrName) \
	SLATE_PRIVATE_ATTRIBUTE_VARIABLE(AttrType, AttrName); \
	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(AttrType, AttrName)

/** An argument that can only be a value. */
#define SLATE_ARGUMENT(ArgType, ArgName) \
	SLATE_PRIVATE_ARGUMENT_VARIABLE(ArgType, ArgName); \
	SLATE_PRIVATE_ARGUMENT_FUNCTION(ArgType, ArgName)

/** A style argument, held as a pointer to the style struct. */
#define SLATE_STYLE_ARGUMENT(ArgType, ArgName) \
	const ArgType* _##ArgName; \
	WidgetArgsType& ArgName(const ArgType* InArg) \
	{ \
		_##ArgName = InArg; \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	WidgetArgsType& ArgName(const ISlateStyle* InSlateStyle, const FName& StyleName, const ANSICHAR* Specifier = nullptr) \
	{ \
		check(InSlateStyle); \
		_##ArgName = &InSlateStyle->GetWidgetStyle<ArgType>(StyleName, Specifier); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	}

/** Slots declared with `+ SPanel::Slot()`. */
#define SLATE_SLOT_ARGUMENT(SlotType, SlotName) \
	TArray<typename SlotType::FSlotArguments> _##SlotName; \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments& SlotToAdd) \
	{ \
		_##SlotName.Add(MoveTemp(SlotToAdd)); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments&& SlotToAdd) \
	{ \
		_##SlotName.Add(MoveTemp(SlotToAdd)); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	}

#define SLATE_PRIVATE_SLOT_BEGIN_ARGS(SlotType, SlotParentType) \
	{ \
		using WidgetArgsType = SlotType::FSlotArguments; \
		using SlotParentType::FSlotArguments::FSlotArguments;

#define SLATE_SLOT_BEGIN_ARGS(SlotType, SlotParentType) \
public: \
	struct FSlotArguments : public SlotParentType::FSlotArguments \
							SLATE_PRIVATE_SLOT_BEGIN_ARGS(SlotType, SlotParentType)

#define SLATE_SLOT_END_ARGS() \
	} \
	;

/** A widget reference that is always valid; it defaults to SNullWidget. */
struct TAlwaysValidWidget
{
	TAlwaysValidWidget()
		: Widget(SNullWidget::NullWidget)
	{
	}

	TSharedRef<SWidget> Widget;
};

/** What `.SlotName()` returns: `[ W ]` on it fills the slot and gives the arguments back. */
template <class DeclarationType>
struct NamedSlotProperty
{
	NamedSlotProperty(DeclarationType& InOwnerDeclaration, TAlwaysValidWidget& ContentToSet)
		: OwnerDeclaration(InOwnerDeclaration)
		, SlotContent(ContentToSet)
	{
	}

	DeclarationType& operator[](const TSharedRef<SWidget>& InChild)
	{
		SlotContent.Widget = InChild;
		return OwnerDeclaration;
	}

	DeclarationType& OwnerDeclaration;
	TAlwaysValidWidget& SlotContent;
};

#define SLATE_NAMED_SLOT(DeclarationType, SlotName) \
	NamedSlotProperty<DeclarationType> SlotName() \
	{ \
		return NamedSlotProperty<DeclarationType>(*this, _##SlotName); \
	} \
	TAlwaysValidWidget _##SlotName;

#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName) \
	SLATE_NAMED_SLOT(DeclarationType, SlotName); \
	DeclarationType& operator[](const TSharedRef<SWidget>& InChild) \
	{ \
		_##SlotName.Widget = InChild; \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	}

/** An event handler argument; it binds const and non-const methods alike. */
#define SLATE_EVENT(DelegateName, EventName) \
	WidgetArgsType& EventName(const DelegateName& InDelegate) \
	{ \
		_##EventName = InDelegate; \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	WidgetArgsType& EventName(DelegateName&& InDelegate) \
	{ \
		_##EventName = MoveTemp(InDelegate); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <typename StaticFuncPtr, typename... VarTypes> \
	WidgetArgsType& EventName##_Static(StaticFuncPtr InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateStatic(InFunc, Vars...); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <typename FunctorType, typename... VarTypes> \
	WidgetArgsType& EventName##_Lambda(FunctorType&& InFunctor, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateLambda(Forward<FunctorType>(InFunctor), Vars...); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& EventName##_Raw(UserClass* InUserObject, typename DelegateName::template TMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateRaw(InUserObject, InFunc, Vars...); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& EventName##_Raw(UserClass* InUserObject, typename DelegateName::template TConstMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateRaw(InUserObject, InFunc, Vars...); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& EventName(TSharedRef<UserClass> InUserObjectRef, typename DelegateName::template TMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateSP(InUserObjectRef, InFunc, Vars...); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& EventName(TSharedRef<UserClass> InUserObjectRef, typename DelegateName::template TConstMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateSP(InUserObjectRef, InFunc, Vars...); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& EventName(UserClass* InUserObject, typename DelegateName::template TMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateSP(InUserObject, InFunc, Vars...); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& EventName(UserClass* InUserObject, typename DelegateName::template TConstMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateSP(InUserObject, InFunc, Vars...); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& EventName##_UObject(UserClass* InUserObject, typename DelegateName::template TMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateUObject(InUserObject, InFunc, Vars...); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	template <class UserClass, typename... VarTypes> \
	WidgetArgsType& EventName##_UObject(UserClass* InUserObject, typename DelegateName::template TConstMethodPtr<UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateUObject(InUserObject, InFunc, Vars...); \
		return static_cast<WidgetArgsType*>(this)->Me(); \
	} \
	DelegateName _##EventName;

/** The arguments every widget takes, whatever its type. */
struct FSlateBaseNamedArgs
{
	FSlateBaseNamedArgs() = default;

	SLATE_PRIVATE_ATTRIBUTE_VARIABLE(FText, ToolTipText);
	SLATE_PRIVATE_ATTRIBUTE_VARIABLE(TSharedPtr<IToolTip>, ToolTip);
	SLATE_PRIVATE_ATTRIBUTE_VARIABLE(bool, IsEnabled) = true;
	SLATE_PRIVATE_ATTRIBUTE_VARIABLE(EVisibility, Visibility) = EVisibility::Visible;
	SLATE_PRIVATE_ARGUMENT_VARIABLE(bool, ForceVolatile) = false;
	SLATE_PRIVATE_ARGUMENT_VARIABLE(float, RenderOpacity) = 1.0f;
	SLATE_PRIVATE_ATTRIBUTE_VARIABLE(FVector2D, RenderTransformPivot) = FVector2D(0.0, 0.0);
	SLATE_PRIVATE_ARGUMENT_VARIABLE(EWidgetClipping, Clipping) = EWidgetClipping::Inherit;
	SLATE_PRIVATE_ARGUMENT_VARIABLE(FName, Tag);
	SLATE_PRIVATE_ATTRIBUTE_VARIABLE(FText, AccessibleText);
};

/** Base of each widget's FArguments: the common arguments' setters, returning the widget's own arguments. */
template <typename WidgetType>
struct TSlateBaseNamedArgs : public FSlateBaseNamedArgs
{
	typedef typename WidgetType::FArguments WidgetArgsType;

	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(FText, ToolTipText)
	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(TSharedPtr<IToolTip>, ToolTip)
	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(bool, IsEnabled)
	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(EVisibility, Visibility)
	SLATE_PRIVATE_ARGUMENT_FUNCTION(bool, ForceVolatile)
	SLATE_PRIVATE_ARGUMENT_FUNCTION(float, RenderOpacity)
	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(FVector2D, RenderTransformPivot)
	SLATE_PRIVATE_ARGUMENT_FUNCTION(EWidgetClipping, Clipping)
	SLATE_PRIVATE_ARGUMENT_FUNCTION(FName, Tag)
	SLATE_PRIVATE_ATTRIBUTE_FUNCTION(FText, AccessibleText)

	/** Used by the named argument pattern as a safe way to 'return *this' for call-chaining purposes. */
	WidgetArgsType& Me() { return *(static_cast<WidgetArgsType*>(this)); }
};

namespace RequiredArgs
{
	/** A widget's Construct with no required arguments. */
	struct T0RequiredArgs
	{
		template <class WidgetType>
		void CallConstruct(const TSharedRef<WidgetType>& OnWidget, const typename WidgetType::FArguments& WithNamedArgs) const
		{
			OnWidget->Construct(WithNamedArgs);
		}
	};

	/** A widget's Construct with required arguments after the named ones. */
	template <typename... ArgTypes>
	struct TRequiredArgs
	{
		TRequiredArgs(ArgTypes&&... InArgs)
			: Args(Forward<ArgTypes>(InArgs)...)
		{
		}

		/** Passes each argument on as it was given: an argument given as a temporary is moved into Construct. */
		template <class WidgetType>
		void CallConstruct(const TSharedRef<WidgetType>& OnWidget, const typename WidgetType::FArguments& WithNamedArgs)
		{
			std::apply([&](auto&... Unpacked)
				{ OnWidget->Construct(WithNamedArgs, Forward<ArgTypes>(Unpacked)...); },
				Args);
		}

		std::tuple<ArgTypes...> Args;
	};

	inline T0RequiredArgs MakeRequiredArgs()
	{
		return T0RequiredArgs();
	}

	template <typename... ArgTypes>
	TRequiredArgs<ArgTypes...> MakeRequiredArgs(ArgTypes&&... InArgs)
	{
		return TRequiredArgs<ArgTypes...>(Forward<ArgTypes>(InArgs)...);
	}
}

/** A widget being declared: made at once, constructed when its arguments are applied with <<=. */
template <class WidgetType, typename RequiredArgsPayloadType>
struct TSlateDecl
{
	TSlateDecl(const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine, RequiredArgsPayloadType&& InRequiredArgs)
		: _Widget(MakeShareable(new WidgetType()))
		, _RequiredArgs(InRequiredArgs)
	{
		_Widget->SetDebugInfo(InType, InFile, OnLine, sizeof(WidgetType));
	}

	template <class ExposeAsWidgetType>
	TSlateDecl& Expose(TSharedPtr<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = _Widget;
		return *this;
	}

	template <class ExposeAsWidgetType>
	TSlateDecl& Expose(TSharedRef<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = _Widget;
		return *this;
	}

	template <class ExposeAsWidgetType>
	TSlateDecl& Expose(TWeakPtr<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = _Widget;
		return *this;
	}

	/** Completes the widget from its named arguments and returns it. */
	TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& InArgs) const
	{
		_Widget->SWidgetConstruct(InArgs);
		_RequiredArgs.CallConstruct(_Widget, InArgs);
		return _Widget;
	}

	const TSharedRef<WidgetType> _Widget;
	RequiredArgsPayloadType& _RequiredArgs;
};

template <class WidgetType, typename RequiredArgsPayloadType>
TSlateDecl<WidgetType, RequiredArgsPayloadType> MakeTDecl(const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine, RequiredArgsPayloadType&& InRequiredArgs)
{
	return TSlateDecl<WidgetType, RequiredArgsPayloadType>(InType, InFile, OnLine, Forward<RequiredArgsPayloadType>(InRequiredArgs));
}
