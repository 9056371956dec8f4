#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/InputChord.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"

/** How a command shows in menus and toolbars. */
enum class EUserInterfaceActionType : uint8
{
	None,
	Button,
	ToggleButton,
	RadioButton,
	Check,
	CollapsedButton
};

enum class EMultipleKeyBindingIndex : uint8
{
	Primary = 0,
	Secondary,
	NumChords
};

class FBindingContext;

DECLARE_MULTICAST_DELEGATE_OneParam(FOnBindingContextChanged, const FBindingContext&);

/** A context in which input bindings are valid: the home of a set of commands. */
class SLATE_API FBindingContext : public TSharedFromThis<FBindingContext>
{
public:
	FBindingContext(const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: ContextName(InContextName)
		, ContextParent(InContextParent)
		, ContextDesc(InContextDesc)
		, StyleSetName(InStyleSetName)
	{
		check(!InStyleSetName.IsNone());
	}

	FBindingContext(const FBindingContext& Other)
		: ContextName(Other.ContextName)
		, ContextParent(Other.ContextParent)
		, ContextDesc(Other.ContextDesc)
		, StyleSetName(Other.StyleSetName)
	{
	}

	virtual ~FBindingContext() {}

	FName GetContextName() const { return ContextName; }
	FName GetContextParent() const { return ContextParent; }
	FName GetStyleSetName() const { return StyleSetName; }
	const FText& GetContextDesc() const { return ContextDesc; }

	bool operator==(const FBindingContext& Other) const { return ContextName == Other.ContextName; }

	static FOnBindingContextChanged CommandsChanged;

private:
	FName ContextName;
	FName ContextParent;
	FText ContextDesc;
	FName StyleSetName;
};

/** One command: its name, label, description, icon, type and shortcuts. */
class SLATE_API FUICommandInfo
{
	friend class FInputBindingManager;

public:
	FUICommandInfo(const FName InBindingContext);

	const TSharedRef<const FInputChord> GetActiveChord(const EMultipleKeyBindingIndex InChordIndex) const { return ActiveChords[static_cast<uint8>(InChordIndex)]; }
	const FInputChord& GetDefaultChord(const EMultipleKeyBindingIndex InChordIndex) const { return DefaultChords[static_cast<uint8>(InChordIndex)]; }

	/** The first shortcut that is set, as menus show it; empty when the command has none. */
	const FText GetInputText() const;

	static void MakeCommandInfo(const TSharedRef<class FBindingContext>& InContext, TSharedPtr<FUICommandInfo>& OutCommand, const FName InCommandName, const FText& InCommandLabel, const FText& InCommandDesc, const FSlateIcon& InIcon, const EUserInterfaceActionType InUserInterfaceType, const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord = FInputChord(), const FName InBundle = NAME_None);
	static void UnregisterCommandInfo(const TSharedRef<class FBindingContext>& InContext, const TSharedRef<FUICommandInfo>& InCommand);

	const FText& GetLabel() const { return Label; }
	const FText& GetDescription() const { return Description; }
	const FSlateIcon& GetIcon() const { return Icon; }
	EUserInterfaceActionType GetUserInterfaceType() const { return UserInterfaceType; }
	FName GetCommandName() const { return CommandName; }
	FName GetBindingContext() const { return BindingContext; }
	FName GetBundle() const { return Bundle; }

private:
	TArray<TSharedRef<FInputChord>> ActiveChords;
	FText Label;
	FText Description;
	TArray<FInputChord> DefaultChords;
	FSlateIcon Icon;
	FName CommandName;
	FName BindingContext;
	FName Bundle;
	EUserInterfaceActionType UserInterfaceType;
};
