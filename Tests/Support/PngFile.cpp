#include "Support/PngFile.h"

#include <zlib.h>

#include <fstream>
#include <iterator>
#include <vector>

namespace
{
	uint32_t ReadBigEndian(const unsigned char* Bytes)
	{
		return (uint32_t(Bytes[0]) << 24) | (uint32_t(Bytes[1]) << 16) | (uint32_t(Bytes[2]) << 8) | uint32_t(Bytes[3]);
	}

	uint32_t ChannelsOf(uint8_t ColourType)
	{
		switch (ColourType)
		{
			case 0:
				return 1;
			case 2:
				return 3;
			case 3:
				return 1;
			case 4:
				return 2;
			case 6:
				return 4;
			default:
				return 0;
		}
	}
}

std::optional<FPngInfo> ReadPng(const std::string& Path, std::string& OutError)
{
	std::ifstream File(Path, std::ios::binary);
	if (!File)
	{
		OutError = "cannot open " + Path;
		return std::nullopt;
	}
	const std::vector<unsigned char> Bytes((std::istreambuf_iterator<char>(File)), std::istreambuf_iterator<char>());
	static const unsigned char Signature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
	if (Bytes.size() < 8 || !std::equal(Signature, Signature + 8, Bytes.begin()))
	{
		OutError = "not a PNG signature";
		return std::nullopt;
	}

	FPngInfo Info;
	bool bHasHeader = false;
	bool bHasEnd = false;
	std::vector<unsigned char> Compressed;
	for (size_t Offset = 8; Offset + 12 <= Bytes.size() && !bHasEnd;)
	{
		const uint32_t Length = ReadBigEndian(&Bytes[Offset]);
		if (Offset + 12 + Length > Bytes.size())
		{
			OutError = "truncated chunk";
			return std::nullopt;
		}
		const unsigned char* Type = &Bytes[Offset + 4];
		const unsigned char* Data = Type + 4;
		const uint32_t StoredCrc = ReadBigEndian(Data + Length);
		if (crc32(crc32(0L, Z_NULL, 0), Type, Length + 4) != StoredCrc)
		{
			OutError = "chunk checksum mismatch";
			return std::nullopt;
		}
		const std::string TypeName(reinterpret_cast<const char*>(Type), 4);
		if (TypeName == "IHDR" && Length == 13)
		{
			Info.Width = ReadBigEndian(Data);
			Info.Height = ReadBigEndian(Data + 4);
			Info.BitDepth = Data[8];
			Info.ColourType = Data[9];
			bHasHeader = true;
		}
		else if (TypeName == "IDAT")
		{
			Compressed.insert(Compressed.end(), Data, Data + Length);
		}
		else if (TypeName == "IEND")
		{
			bHasEnd = true;
		}
		Offset += 12 + Length;
	}
	if (!bHasHeader || !bHasEnd || Compressed.empty())
	{
		OutError = "missing IHDR, IDAT or IEND";
		return std::nullopt;
	}

	// Each row is a filter byte followed by the row's pixels.
	const uint32_t BitsPerPixel = ChannelsOf(Info.ColourType) * Info.BitDepth;
	const uLongf Expected = Info.Height * (1 + (Info.Width * BitsPerPixel + 7) / 8);
	std::vector<unsigned char> Raw(Expected + 1);
	uLongf RawSize = static_cast<uLongf>(Raw.size());
	if (BitsPerPixel == 0 || uncompress(Raw.data(), &RawSize, Compressed.data(), static_cast<uLong>(Compressed.size())) != Z_OK || RawSize != Expected)
	{
		OutError = "image data does not decode to the declared size";
		return std::nullopt;
	}
	return Info;
}
