// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/**
 * The maker's web pages that the toolbar menu opens. These are placeholders on the reserved
 * example.com domain: the maker sets the real addresses here (and the "Nimbrel Website" tooltip,
 * the bare domain, in CastellanEditorCommands.cpp).
 */
namespace CastellanEditorWebLinks
{
	inline const TCHAR* const AffiliateScheme = TEXT("https://www.example.com/affiliates");
	inline const TCHAR* const KnowledgeCentre = TEXT("https://www.example.com/knowledge-centre");
	inline const TCHAR* const NimbrelWebsite = TEXT("https://www.example.com");
	inline const TCHAR* const DiscordCommunity = TEXT("https://www.example.com/discord");
	inline const TCHAR* const VideoTutorials = TEXT("https://www.example.com/video-tutorials");
}
