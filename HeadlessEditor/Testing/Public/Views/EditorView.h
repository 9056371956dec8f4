#pragma once

#include "CoreMinimal.h"
#include "Math/IntPoint.h"
#include "Misc/Optional.h"
#include "Templates/Function.h"
#include "Templates/UniquePtr.h"
#include "WidgetRenderer.h"

class FHeadlessEditorSession;
class SWidget;

/** Something a user may choose about the state a view shows, e.g. the name typed into the wizard. */
struct FEditorViewOption
{
	/** As command lines spell it, without dashes, e.g. "capture". */
	FString Name;
	/** How usages name its value, e.g. "TYPE". */
	FString ValueName;
	FString Help;
	/** The only values it takes; empty when it takes any text. */
	TArray<FString> AcceptedValues;
	/** The values the view uses when none is given; more than one only for a repeatable option. */
	TArray<FString> Defaults;
	/** Whether it may be given more than once. */
	bool bRepeatable = false;
};

/** The option values a view is shown with: those given, and the defaults of the others. */
class HEADLESSTESTING_API FEditorViewArguments
{
public:
	explicit FEditorViewArguments(const TArray<FEditorViewOption>& InOptions);

	/**
	 * Gives an option a value. Callers check what users give first: an option the view lacks, a value
	 * it does not accept, or a second value of an option that is not repeatable stops the program.
	 */
	void Add(const FString& Option, const FString& Value);

	/** The values of an option: those given, or else its defaults. */
	TArray<FString> GetValues(const FString& Option) const;
	/** The value of an option that is not repeatable: the one given, or else its default; unset when it has neither. */
	TOptional<FString> GetValue(const FString& Option) const;

private:
	const FEditorViewOption& FindOption(const FString& Name) const;

	TArray<FEditorViewOption> Options;
	TMap<FString, TArray<FString>> Given;
};

/**
 * A view brought up: the editor session it runs in, kept alive as long as the view is, its root
 * widget and the size of its picture.
 */
class HEADLESSTESTING_API FShownEditorView
{
public:
	FShownEditorView(TUniquePtr<FHeadlessEditorSession> InSession, const TSharedRef<SWidget>& InRoot, FIntPoint InSize, const FString& InProblem = FString());
	FShownEditorView(FShownEditorView&& Other);
	~FShownEditorView();

	TSharedRef<SWidget> GetRoot() const { return Root.ToSharedRef(); }
	FIntPoint GetSize() const { return Size; }
	/** Why the editor did not reach the state the view is meant to show, in plain words; empty when it did. */
	const FString& GetProblem() const { return Problem; }

	/** The outline of what the picture shows, as FViewOutline describes it. */
	FString DescribeOutline() const;
	/** The picture, at the view's size. */
	FRenderedImage Render() const;

private:
	// The session goes last: the widgets are released while the editor still runs.
	TUniquePtr<FHeadlessEditorSession> Session;
	TSharedPtr<SWidget> Root;
	FIntPoint Size;
	FString Problem;
};

/**
 * A state of the editor a user reaches, defined once: the same definition gives the text outline
 * and the picture of it.
 */
struct FEditorView
{
	/** One word or a few joined by dashes, e.g. "wizard-created"; pictures are named after it. */
	FString Name;
	/** One line saying what it shows. */
	FString Description;
	TArray<FEditorViewOption> Options;
	/**
	 * Starts an editor session set up as the view needs, drives it as a user would reach the state,
	 * and yields the root widget and the picture's size. Only one view is shown at a time.
	 */
	TFunction<FShownEditorView(const FEditorViewArguments&)> Show;
};
