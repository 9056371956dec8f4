#pragma once

#include "CreateResult.h"

#include <string>

/** The program's results as JSON, for scripts. */
namespace CastellanJsonReport
{
	/**
	 * The outcome of pressing Create (with the done text, the warning lines and what the editor
	 * reported), the level's actors and selection, the wizard's assets and the undo history, as
	 * UTF-8 JSON text. Characters that would act on a terminal are written as \u escapes.
	 */
	std::string FormatCreateResult(const FCreateResult& Result);
}
