#pragma once

#include "CoreTypes.h"

#include <string>
#include <string_view>

namespace UE::Core::Private
{
	/** The engine's UTF-8 decoding: a malformed or cut-short sequence becomes one '?'. */
	std::u16string DecodeUtf8(std::string_view Source);
	/** The engine's UTF-8 encoding of UTF-16: an unpaired surrogate becomes '?'. */
	std::string EncodeUtf8(std::u16string_view Source);
}
