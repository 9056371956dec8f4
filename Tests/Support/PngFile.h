#pragma once

#include <cstdint>
#include <optional>
#include <string>

/** What a PNG file declares and whether its image data decodes to that size. */
struct FPngInfo
{
	uint32_t Width = 0;
	uint32_t Height = 0;
	uint8_t BitDepth = 0;
	uint8_t ColourType = 0;
};

/**
 * Reads a PNG file fully: signature, chunk checksums, header, and the compressed image data, which
 * must inflate to exactly the rows the header declares. Returns nothing, with a reason, otherwise.
 */
std::optional<FPngInfo> ReadPng(const std::string& Path, std::string& OutError);
