#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "IDetailPropertyRow.h"
#include "PropertyHandle.h"
#include "Styling/AppStyle.h"
#include "UObject/WeakObjectPtr.h"

class IDetailCategoryBuilder;
class IPropertyUtilities;

/** Where a category sorts among the others. */
namespace ECategoryPriority
{
	enum Type
	{
		Variable = 0,
		Transform,
		Important,
		TypeSpecific,
		Default,
		Uncommon,
	};
}

/** The layout of a whole details panel, as a class customisation sees it. */
class IDetailLayoutBuilder
{
public:
	virtual ~IDetailLayoutBuilder() {}

	/** The font of ordinary text in details panels. */
	static FSlateFontInfo GetDetailFont() { return FAppStyle::GetFontStyle(TEXT("PropertyWindow.NormalFont")); }
	static FSlateFontInfo GetDetailFontBold() { return FAppStyle::GetFontStyle(TEXT("PropertyWindow.BoldFont")); }
	static FSlateFontInfo GetDetailFontItalic() { return FAppStyle::GetFontStyle(TEXT("PropertyWindow.ItalicFont")); }

	virtual void GetObjectsBeingCustomized(TArray<TWeakObjectPtr<UObject>>& OutObjects) const = 0;
	virtual const TArray<TWeakObjectPtr<UObject>>& GetSelectedObjects() const = 0;
	virtual TSharedRef<IPropertyUtilities> GetPropertyUtilities() const = 0;
	virtual UClass* GetBaseClass() const = 0;
	virtual IDetailCategoryBuilder& EditCategory(FName CategoryName, const FText& NewLocalizedDisplayName = FText::GetEmpty(), ECategoryPriority::Type CategoryType = ECategoryPriority::Default) = 0;
	virtual void GetCategoryNames(TArray<FName>& OutCategoryNames) const = 0;
	virtual TSharedRef<IPropertyHandle> GetProperty(const FName PropertyPath, const UStruct* ClassOutermost = NULL, FName InstanceName = NAME_None) const = 0;
	virtual void HideProperty(const TSharedPtr<IPropertyHandle> PropertyHandle) = 0;
	virtual void HideProperty(FName PropertyPath, const UStruct* ClassOutermost = NULL, FName InstanceName = NAME_None) = 0;
	virtual void HideCategory(FName CategoryName) = 0;
	virtual void ForceRefreshDetails() = 0;
};
