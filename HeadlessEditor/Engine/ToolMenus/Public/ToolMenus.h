#pragma once

#include "CoreMinimal.h"
#include "IToolMenusModule.h"
#include "Misc/CoreDelegates.h"
#include "ToolMenu.h"
#include "ToolMenuContext.h"
#include "ToolMenuEntry.h"
#include "ToolMenuOwner.h"
#include "ToolMenuSection.h"
#include "UObject/Object.h"

#include "ToolMenus.generated.h"

/** The registry of the editor's menus and toolbars. */
UCLASS()
class TOOLMENUS_API UToolMenus : public UObject
{
	GENERATED_BODY()

public:
	UToolMenus();

	static UToolMenus* Get();

	/** Gets the registry without loading the tool-menus module. */
	static inline UToolMenus* TryGet()
	{
		if (IToolMenusModule::IsAvailable())
		{
			return Get();
		}
		return nullptr;
	}

	/** Removes everything added under the given owner, without loading the tool-menus module. */
	static inline void UnregisterOwner(FToolMenuOwner Owner)
	{
		if (UToolMenus* ToolMenus = UToolMenus::TryGet())
		{
			ToolMenus->UnregisterOwnerInternal(Owner);
		}
	}

	static bool IsToolMenuUIEnabled();

	/** Runs the callback now if menus can be built, otherwise once the engine has initialised. */
	static FDelegateHandle RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate);
	static void UnRegisterStartupCallback(const void* UserPointer);
	static void UnRegisterStartupCallback(FDelegateHandle InHandle);

	UToolMenu* RegisterMenu(FName Name, const FName Parent = NAME_None, EMultiBoxType Type = EMultiBoxType::Menu, bool bWarnIfAlreadyRegistered = true);
	UToolMenu* ExtendMenu(const FName Name);
	UToolMenu* FindMenu(const FName Name);
	bool IsMenuRegistered(const FName Name) const;

	/** Makes the widget of a registered menu or toolbar, with the entries every owner added to it. */
	TSharedRef<SWidget> GenerateWidget(const FName Name, const FToolMenuContext& InMenuContext);

	FToolMenuOwner CurrentOwner() const;

private:
	friend struct FToolMenuOwnerScoped;

	void PushOwner(const FToolMenuOwner InOwner);
	void PopOwner(const FToolMenuOwner InOwner);
	static void PrivateStartupCallback();
	void UnregisterOwnerInternal(FToolMenuOwner Owner);

	TArray<UToolMenu*> Menus;
	TArray<FToolMenuOwner> OwnerStack;
};

/** Adds entries under an owner for as long as it lives. */
struct FToolMenuOwnerScoped
{
	FToolMenuOwnerScoped(const FToolMenuOwner InOwner)
		: Owner(InOwner)
	{
		UToolMenus::Get()->PushOwner(InOwner);
	}

	~FToolMenuOwnerScoped() { UToolMenus::Get()->PopOwner(Owner); }

	FToolMenuOwner GetOwner() const { return Owner; }

private:
	FToolMenuOwner Owner;
};
