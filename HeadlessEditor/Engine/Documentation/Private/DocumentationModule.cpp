#include "IDocumentation.h"
#include "IDocumentationModule.h"
#include "SDocumentationToolTip.h"
#include "Widgets/SToolTip.h"

namespace
{
	class FDocumentation final : public IDocumentation
	{
	public:
		virtual TSharedRef<SToolTip> CreateToolTip(const TAttribute<FText>& Text, const TSharedPtr<SWidget>& OverrideContent, const FString& Link, const FString& ExcerptName) const override
		{
			if (!Text.IsBound() && Text.Get().IsEmpty())
			{
				return SNew(SToolTip);
			}

			TSharedPtr<SDocumentationToolTip> DocToolTip;
			if (OverrideContent.IsValid())
			{
				SAssignNew(DocToolTip, SDocumentationToolTip).DocumentationLink(Link).ExcerptName(ExcerptName)[OverrideContent.ToSharedRef()];
			}
			else
			{
				SAssignNew(DocToolTip, SDocumentationToolTip).Text(Text).DocumentationLink(Link).ExcerptName(ExcerptName);
			}
			return SNew(SToolTip).IsInteractive(DocToolTip->IsInteractive())[DocToolTip.ToSharedRef()];
		}

		virtual TSharedRef<SToolTip> CreateToolTip(const TAttribute<FText>& Text, const TSharedRef<SWidget>& OverrideContent, const TSharedPtr<SVerticalBox>& DocVerticalBox, const FString& Link, const FString& ExcerptName) const override
		{
			TSharedRef<SDocumentationToolTip> DocToolTip = SNew(SDocumentationToolTip).Text(Text).DocumentationLink(Link).ExcerptName(ExcerptName)[OverrideContent];
			return SNew(SToolTip).IsInteractive(DocToolTip->IsInteractive())[DocToolTip];
		}
	};

	class FDocumentationModule final : public IDocumentationModule
	{
	public:
		virtual void StartupModule() override { Documentation = MakeShared<FDocumentation>(); }
		virtual void ShutdownModule() override { Documentation.Reset(); }
		virtual TSharedRef<IDocumentation> GetDocumentation() const override { return Documentation.ToSharedRef(); }

	private:
		TSharedPtr<FDocumentation> Documentation;
	};
}

IMPLEMENT_MODULE(FDocumentationModule, Documentation)
