#include "Views/EditorView.h"

#include "HeadlessEditorSession.h"
#include "Views/ViewOutline.h"
#include "Widgets/SWidget.h"

FEditorViewArguments::FEditorViewArguments(const TArray<FEditorViewOption>& InOptions)
	: Options(InOptions)
{
}

void FEditorViewArguments::Add(const FString& Option, const FString& Value)
{
	const FEditorViewOption& Declared = FindOption(Option);
	const bool bAccepted = Declared.AcceptedValues.IsEmpty() || Declared.AcceptedValues.ContainsByPredicate([&Value](const FString& Accepted)
																	{ return Accepted.Equals(Value, ESearchCase::CaseSensitive); });
	checkf(bAccepted, TEXT("The view's option \"%s\" does not take \"%s\""), *Option, *Value);
	TArray<FString>& Values = Given.FindOrAdd(Declared.Name);
	checkf(Declared.bRepeatable || Values.IsEmpty(), TEXT("The view's option \"%s\" is given once"), *Option);
	Values.Add(Value);
}

TArray<FString> FEditorViewArguments::GetValues(const FString& Option) const
{
	const FEditorViewOption& Declared = FindOption(Option);
	const TArray<FString>* Values = Given.Find(Declared.Name);
	return Values ? *Values : Declared.Defaults;
}

TOptional<FString> FEditorViewArguments::GetValue(const FString& Option) const
{
	checkf(!FindOption(Option).bRepeatable, TEXT("The view's option \"%s\" may have several values"), *Option);
	const TArray<FString> Values = GetValues(Option);
	return Values.IsEmpty() ? TOptional<FString>() : TOptional<FString>(Values[0]);
}

const FEditorViewOption& FEditorViewArguments::FindOption(const FString& Name) const
{
	const FEditorViewOption* Found = Options.FindByPredicate([&Name](const FEditorViewOption& Option)
		{ return Option.Name.Equals(Name, ESearchCase::CaseSensitive); });
	checkf(Found, TEXT("The view has no option \"%s\""), *Name);
	return *Found;
}

FShownEditorView::FShownEditorView(TUniquePtr<FHeadlessEditorSession> InSession, const TSharedRef<SWidget>& InRoot, FIntPoint InSize, const FString& InProblem)
	: Session(MoveTemp(InSession))
	, Root(InRoot)
	, Size(InSize)
	, Problem(InProblem)
{
}

FShownEditorView::FShownEditorView(FShownEditorView&& Other) = default;

FShownEditorView::~FShownEditorView() = default;

FString FShownEditorView::DescribeOutline() const
{
	return FViewOutline::Describe(GetRoot(), Size);
}

FRenderedImage FShownEditorView::Render() const
{
	return FWidgetRenderer::RenderWidget(GetRoot(), Size.X, Size.Y);
}
