#include "Containers/Utf8.h"

namespace
{
	constexpr TCHAR BogusCharacter = u'?';

	bool IsSurrogate(uint32 Codepoint)
	{
		return Codepoint >= 0xD800 && Codepoint <= 0xDFFF;
	}

	/** How many continuation octets follow a lead octet of 0xC0 and above. */
	int32 CountTrailingOctets(uint8 Lead)
	{
		return Lead < 0xE0 ? 1 : Lead < 0xF0 ? 2
			: Lead < 0xF8                    ? 3
			: Lead < 0xFC                    ? 4
											 : 5;
	}

	/** Whether Codepoint is what a sequence of that many trailing octets may encode (no overlong forms, no surrogates). */
	bool IsLegalForLength(uint32 Codepoint, int32 TrailingOctets)
	{
		switch (TrailingOctets)
		{
			case 1:
				return Codepoint >= 0x80 && Codepoint <= 0x7FF;
			case 2:
				return Codepoint >= 0x800 && Codepoint <= 0xFFFD && !IsSurrogate(Codepoint);
			case 3:
				return Codepoint >= 0x10000 && Codepoint <= 0x10FFFF;
			default:
				// Five- and six-octet forms are no longer UTF-8: they are read past, never decoded.
				return false;
		}
	}

	/**
	 * Reads one code point starting at Position and moves past it. As in the engine, an octet that
	 * should continue a sequence but does not is consumed with it, and the whole sequence reads as
	 * one bogus character, as does a sequence cut short by the end of the text.
	 */
	uint32 ReadCodepoint(std::string_view Source, SIZE_T& Position)
	{
		const uint8 Lead = static_cast<uint8>(Source[Position++]);
		if (Lead < 0x80)
		{
			return Lead;
		}
		if (Lead < 0xC0)
		{
			return BogusCharacter;
		}
		const int32 TrailingOctets = CountTrailingOctets(Lead);
		uint32 Codepoint = Lead & (0x3F >> TrailingOctets);
		for (int32 Index = 0; Index < TrailingOctets; ++Index)
		{
			if (Position >= Source.size())
			{
				return BogusCharacter;
			}
			const uint8 Octet = static_cast<uint8>(Source[Position++]);
			if ((Octet & 0xC0) != 0x80)
			{
				return BogusCharacter;
			}
			Codepoint = (Codepoint << 6) | (Octet & 0x3F);
		}
		return IsLegalForLength(Codepoint, TrailingOctets) ? Codepoint : BogusCharacter;
	}

	void AppendUtf8(std::string& Out, uint32 Codepoint)
	{
		if (Codepoint > 0x10FFFF || IsSurrogate(Codepoint))
		{
			Codepoint = BogusCharacter;
		}
		if (Codepoint < 0x80)
		{
			Out.push_back(static_cast<char>(Codepoint));
		}
		else if (Codepoint < 0x800)
		{
			Out.push_back(static_cast<char>(0xC0 | (Codepoint >> 6)));
			Out.push_back(static_cast<char>(0x80 | (Codepoint & 0x3F)));
		}
		else if (Codepoint < 0x10000)
		{
			Out.push_back(static_cast<char>(0xE0 | (Codepoint >> 12)));
			Out.push_back(static_cast<char>(0x80 | ((Codepoint >> 6) & 0x3F)));
			Out.push_back(static_cast<char>(0x80 | (Codepoint & 0x3F)));
		}
		else
		{
			Out.push_back(static_cast<char>(0xF0 | (Codepoint >> 18)));
			Out.push_back(static_cast<char>(0x80 | ((Codepoint >> 12) & 0x3F)));
			Out.push_back(static_cast<char>(0x80 | ((Codepoint >> 6) & 0x3F)));
			Out.push_back(static_cast<char>(0x80 | (Codepoint & 0x3F)));
		}
	}
}

std::u16string UE::Core::Private::DecodeUtf8(std::string_view Source)
{
	std::u16string Out;
	Out.reserve(Source.size());
	for (SIZE_T Position = 0; Position < Source.size();)
	{
		const uint32 Codepoint = ReadCodepoint(Source, Position);
		if (Codepoint >= 0x10000)
		{
			Out.push_back(static_cast<char16_t>(0xD800 + ((Codepoint - 0x10000) >> 10)));
			Out.push_back(static_cast<char16_t>(0xDC00 + ((Codepoint - 0x10000) & 0x3FF)));
		}
		else
		{
			Out.push_back(static_cast<char16_t>(Codepoint));
		}
	}
	return Out;
}

std::string UE::Core::Private::EncodeUtf8(std::u16string_view Source)
{
	std::string Out;
	Out.reserve(Source.size());
	for (SIZE_T Index = 0; Index < Source.size(); ++Index)
	{
		uint32 Codepoint = Source[Index];
		const bool bHighSurrogate = Codepoint >= 0xD800 && Codepoint <= 0xDBFF;
		if (bHighSurrogate && Index + 1 < Source.size() && Source[Index + 1] >= 0xDC00 && Source[Index + 1] <= 0xDFFF)
		{
			Codepoint = 0x10000 + ((Codepoint - 0xD800) << 10) + (Source[Index + 1] - 0xDC00);
			++Index;
		}
		AppendUtf8(Out, Codepoint);
	}
	return Out;
}
