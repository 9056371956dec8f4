#include "Containers/StringConv.h"

#include "Containers/Utf8.h"

#include <cstring>

namespace
{
	SIZE_T NarrowLength(const ANSICHAR* Source)
	{
		return Source ? std::strlen(Source) : 0;
	}

	SIZE_T WideLength(const TCHAR* Source)
	{
		return Source ? std::char_traits<TCHAR>::length(Source) : 0;
	}
}

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source)
	: Converted(UE::Core::Private::EncodeUtf8(std::u16string_view(Source ? Source : u"", WideLength(Source))))
{
}

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source, int32 SourceLen)
	: Converted(UE::Core::Private::EncodeUtf8(std::u16string_view(Source, Source ? static_cast<SIZE_T>(SourceLen) : 0)))
{
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source)
	: Converted(UE::Core::Private::DecodeUtf8(std::string_view(Source ? Source : "", NarrowLength(Source))))
{
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen)
	: Converted(UE::Core::Private::DecodeUtf8(std::string_view(Source, Source ? static_cast<SIZE_T>(SourceLen) : 0)))
{
}
