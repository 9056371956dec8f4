#include "SDocumentationToolTip.h"

#include "HeadlessDocumentation.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** The page and excerpt of each live tooltip; the editor shows them only when a user asks for the link. */
	struct FToolTipLink
	{
		TWeakPtr<const SWidget> ToolTip;
		FString DocumentationLink;
		FString ExcerptName;
	};

	TArray<FToolTipLink>& GetToolTipLinks()
	{
		static TArray<FToolTipLink> Links;
		return Links;
	}

	const FToolTipLink* FindToolTipLink(const SDocumentationToolTip& ToolTip)
	{
		return GetToolTipLinks().FindByPredicate([&ToolTip](const FToolTipLink& Link)
			{ return Link.ToolTip.Pin().Get() == &ToolTip; });
	}
}

void SDocumentationToolTip::Construct(const FArguments& InArgs)
{
	TextContent = InArgs._Text;
	TArray<FToolTipLink>& Links = GetToolTipLinks();
	Links.RemoveAll([](const FToolTipLink& Link)
		{ return !Link.ToolTip.IsValid(); });
	Links.Add(FToolTipLink{AsShared(), InArgs._DocumentationLink, InArgs._ExcerptName});

	if (InArgs._Content.Widget != SNullWidget::NullWidget)
	{
		ChildSlot[InArgs._Content.Widget];
	}
	else
	{
		ChildSlot[SNew(STextBlock).Text(TextContent).AutoWrapText(true)];
	}
}

bool SDocumentationToolTip::IsInteractive() const
{
	// No documentation pages are installed, so the tooltip never offers its expanded form.
	return false;
}

FString UE::Headless::GetDocumentationLink(const SDocumentationToolTip& ToolTip)
{
	const FToolTipLink* Link = FindToolTipLink(ToolTip);
	return Link ? Link->DocumentationLink : FString();
}

FString UE::Headless::GetExcerptName(const SDocumentationToolTip& ToolTip)
{
	const FToolTipLink* Link = FindToolTipLink(ToolTip);
	return Link ? Link->ExcerptName : FString();
}
