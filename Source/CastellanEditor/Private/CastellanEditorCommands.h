// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/Commands.h"

/** The plugin's editor commands: the wizard, the viewport-rendering switches, the version and the web pages. */
class FCastellanEditorCommands : public TCommands<FCastellanEditorCommands>
{
public:
	FCastellanEditorCommands();

	virtual void RegisterCommands() override;

	TSharedPtr<FUICommandInfo> UseLivestreamWizard;
	TSharedPtr<FUICommandInfo> AffiliateScheme;
	TSharedPtr<FUICommandInfo> EditorViewportRendering;
	TSharedPtr<FUICommandInfo> RuntimeViewportRendering;
	TSharedPtr<FUICommandInfo> PluginVersion;
	TSharedPtr<FUICommandInfo> KnowledgeCentre;
	TSharedPtr<FUICommandInfo> NimbrelWebsite;
	TSharedPtr<FUICommandInfo> DiscordCommunity;
	TSharedPtr<FUICommandInfo> VideoTutorials;
};
