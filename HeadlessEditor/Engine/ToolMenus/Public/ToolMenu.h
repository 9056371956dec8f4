#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "ToolMenuSection.h"
#include "UObject/Object.h"

#include "ToolMenu.generated.h"

/** A menu or toolbar registered by name. */
UCLASS(BlueprintType)
class TOOLMENUS_API UToolMenu : public UObject
{
	GENERATED_BODY()

public:
	UToolMenu();

	FToolMenuSection& FindOrAddSection(const FName SectionName);
	FToolMenuSection& AddSection(const FName SectionName, const TAttribute<FText>& InLabel = TAttribute<FText>());
	FToolMenuSection* FindSection(const FName SectionName);

	FName GetMenuName() const { return MenuName; }
	/** Whether the menu's owner has registered it; a menu that was only extended so far is not. */
	bool IsRegistered() const { return bRegistered; }

	FName MenuName;
	FName StyleName;
	EMultiBoxType MenuType;
	TArray<FToolMenuSection> Sections;

private:
	friend class UToolMenus;

	bool bRegistered;
};
