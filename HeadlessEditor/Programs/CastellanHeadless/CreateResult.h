#pragma once

#include "CoreMinimal.h"
#include "LivestreamWizardDriver.h"
#include "Logging/LogVerbosity.h"
#include "Misc/Optional.h"

/** A sender entry of a Spout or NDI sender manager. */
struct FSenderSnapshot
{
	FString Name;
	FString StandaloneName;
	bool bEnabled = false;
	/** The render target's object path; empty when it has none. */
	FString RenderTarget;
};

struct FActorSnapshot
{
	FString Name;
	FString ClassName;
	FVector Location;
	/** The sender entries of a sender manager. */
	TArray<FSenderSnapshot> Senders;
	/** For a media output or virtual webcam: its render target's object path, empty when it has none. */
	TOptional<FString> OutputRenderTarget;
};

struct FAssetSnapshot
{
	FString Path;
	FString ClassName;
	bool bPackageDirty = false;
};

/** What the editor holds about the open level after the wizard ran. */
struct FLevelSnapshot
{
	TArray<FActorSnapshot> Actors;
	TArray<FString> SelectedActors;
	/** The assets in the wizard's content folder. */
	TArray<FAssetSnapshot> Assets;
	/** The titles of the undo history, oldest first. */
	TArray<FString> UndoHistory;
};

/** Something the editor reported while the wizard ran: a message box, or a log line of warning level or worse. */
struct FEditorMessage
{
	enum class EKind
	{
		MessageBox,
		LogLine
	};

	EKind Kind = EKind::MessageBox;
	FString Text;
	/** For a log line: its category and verbosity. */
	FString Category;
	ELogVerbosity::Type Verbosity = ELogVerbosity::NoLogging;
};

/** What pressing Create did, as the wizard and the editor show it. */
struct FCreateResult
{
	/** The name typed into the wizard. */
	FString Name;
	/** What the wizard shows. */
	FLivestreamWizardResult Wizard;
	TArray<FEditorMessage> EditorMessages;
	/** The outline of the wizard's tab after pressing Create, as the wizard views give it. */
	FString WizardOutline;
	FLevelSnapshot Level;
};
