#pragma once

#include "CoreMinimal.h"

class SDocumentationToolTip;

/** Headless editor only: where a documentation tooltip links to, which the editor shows only on request. */
namespace UE::Headless
{
	/** The documentation page the tooltip was made for; empty if none. */
	DOCUMENTATION_API FString GetDocumentationLink(const SDocumentationToolTip& ToolTip);
	/** The excerpt of that page the tooltip shows; empty if none. */
	DOCUMENTATION_API FString GetExcerptName(const SDocumentationToolTip& ToolTip);
}
