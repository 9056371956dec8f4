#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** The content of a documentation tooltip: its text (or custom content) and the page excerpt it links to. */
class DOCUMENTATION_API SDocumentationToolTip : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SDocumentationToolTip)
		: _Text()
		, _DocumentationLink()
		, _ExcerptName()
		, _Content()
		{
		}
		SLATE_ATTRIBUTE(FText, Text)
		SLATE_ARGUMENT(FString, DocumentationLink)
		SLATE_ARGUMENT(FString, ExcerptName)
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs);

		virtual const FText& GetTextTooltip() const { return TextContent.Get(); }

		bool IsInteractive() const;

	private:
		TAttribute<FText> TextContent;
};
