#pragma once

#include "CoreMinimal.h"
#include "IDocumentationModule.h"
#include "Misc/Attribute.h"
#include "Modules/ModuleManager.h"
#include "Widgets/SWidget.h"

class SToolTip;
class SVerticalBox;

/** Documentation pages, links and the rich tooltips that point at them. */
class IDocumentation
{
public:
	virtual ~IDocumentation() {}

	static inline TSharedRef<IDocumentation> Get()
	{
		IDocumentationModule& Module = FModuleManager::LoadModuleChecked<IDocumentationModule>("Documentation");
		return Module.GetDocumentation();
	}

	static inline bool IsAvailable()
	{
		return FModuleManager::Get().IsModuleLoaded("Documentation");
	}

	/** A tooltip showing the text (or the override content), linked to an excerpt of a documentation page. */
	virtual TSharedRef<class SToolTip> CreateToolTip(const TAttribute<FText>& Text, const TSharedPtr<SWidget>& OverrideContent, const FString& Link, const FString& ExcerptName) const = 0;

	virtual TSharedRef<class SToolTip> CreateToolTip(const TAttribute<FText>& Text, const TSharedRef<SWidget>& OverrideContent, const TSharedPtr<class SVerticalBox>& DocVerticalBox, const FString& Link, const FString& ExcerptName) const = 0;
};
