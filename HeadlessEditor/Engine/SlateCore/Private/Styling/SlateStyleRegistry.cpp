#include "Styling/SlateStyleRegistry.h"

#include "Styling/ISlateStyle.h"

namespace
{
	TMap<FName, const ISlateStyle*>& GetRepository()
	{
		static TMap<FName, const ISlateStyle*> Repository;
		return Repository;
	}
}

void FSlateStyleRegistry::RegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	const FName& SlateStyleName = InSlateStyle.GetStyleSetName();
	check(SlateStyleName.IsValid());
	check(!FindSlateStyle(SlateStyleName));
	GetRepository().Add(SlateStyleName, &InSlateStyle);
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	const FName& SlateStyleName = InSlateStyle.GetStyleSetName();
	check(SlateStyleName.IsValid());
	UnRegisterSlateStyle(SlateStyleName);
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const FName StyleSetName)
{
	check(StyleSetName.IsValid());
	GetRepository().Remove(StyleSetName);
}

const ISlateStyle* FSlateStyleRegistry::FindSlateStyle(const FName& InSlateStyleName)
{
	const ISlateStyle* const* Style = GetRepository().Find(InSlateStyleName);
	return Style ? *Style : nullptr;
}

bool FSlateStyleRegistry::IterateAllStyles(const TFunctionRef<bool(const ISlateStyle&)>& Iter)
{
	for (const TPair<FName, const ISlateStyle*>& Pair : GetRepository())
	{
		if (!Iter(*Pair.Value))
		{
			return false;
		}
	}
	return true;
}
