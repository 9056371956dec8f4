#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/AppStyle.h"

class FAssetThumbnailPool;
class FDetailWidgetRow;
class IDetailChildrenBuilder;
class IPropertyHandle;
class IPropertyUtilities;

/** What the details panel offers a property-type customisation while it builds rows. */
class IPropertyTypeCustomizationUtils
{
public:
	virtual ~IPropertyTypeCustomizationUtils() {}

	virtual TSharedPtr<FAssetThumbnailPool> GetThumbnailPool() const = 0;
	virtual TSharedPtr<IPropertyUtilities> GetPropertyUtilities() const { return nullptr; }

	static FSlateFontInfo GetRegularFont() { return FAppStyle::GetFontStyle(TEXT("PropertyWindow.NormalFont")); }
	static FSlateFontInfo GetBoldFont() { return FAppStyle::GetFontStyle(TEXT("PropertyWindow.BoldFont")); }
};

/** Customises how one struct type is shown wherever it appears as a property. */
class IPropertyTypeCustomization : public TSharedFromThis<IPropertyTypeCustomization>
{
public:
	virtual ~IPropertyTypeCustomization() {}

	virtual void CustomizeHeader(TSharedRef<IPropertyHandle> PropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils& CustomizationUtils) = 0;
	virtual void CustomizeChildren(TSharedRef<IPropertyHandle> PropertyHandle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& CustomizationUtils) = 0;
	virtual bool ShouldInlineKey() const { return false; }
};
