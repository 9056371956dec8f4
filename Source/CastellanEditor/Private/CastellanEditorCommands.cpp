// Copyright Nimbrel. All Rights Reserved.

#include "CastellanEditorCommands.h"

#include "CastellanEditorStyle.h"

#define LOCTEXT_NAMESPACE "FCastellanEditorModule"

FCastellanEditorCommands::FCastellanEditorCommands()
	: TCommands<FCastellanEditorCommands>(TEXT("CastellanEditor"), NSLOCTEXT("Contexts", "CastellanEditor", "KyroCastellan Plugin"), NAME_None, FCastellanEditorStyle::GetStyleSetName())
{
}

void FCastellanEditorCommands::RegisterCommands()
{
	UI_COMMAND(UseLivestreamWizard, "Livestream Wizard", "Use to create a simple Cinecam / 360 Cam  Capture and Spout / NDI setup to stream out of ue4", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(AffiliateScheme, "Affiliate Scheme", "Join the Kyro Affiliate Scheme", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(EditorViewportRendering, "Editor Viewport Rendering", "Switch on/off viewport rendering at Editor/SIE time", EUserInterfaceActionType::ToggleButton, FInputChord());
	UI_COMMAND(RuntimeViewportRendering, "Runtime Viewport Rendering", "Switch on/off viewport rendering at PIE/Game time", EUserInterfaceActionType::ToggleButton, FInputChord());
	UI_COMMAND(PluginVersion, "Plugin Version", "See your plugin version here", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(KnowledgeCentre, "Knowledge Centre", "Installation and feature documentation", EUserInterfaceActionType::Button, FInputChord());
	// The tooltip is the maker's bare web domain; a placeholder until the maker sets it (see CastellanEditorWebLinks.h).
	UI_COMMAND(NimbrelWebsite, "Nimbrel Website", "www.example.com", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(DiscordCommunity, "Discord Community", "Nimbrel Discord community", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(VideoTutorials, "Video Tutorials", "YouTube video tutorials", EUserInterfaceActionType::Button, FInputChord());
}

#undef LOCTEXT_NAMESPACE
