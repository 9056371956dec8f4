#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

#include <string_view>

/** A non-owning view of TCHARs. */
class FStringView
{
public:
	constexpr FStringView() = default;
	FStringView(const TCHAR* Str)
		: View(Str ? std::u16string_view(Str) : std::u16string_view())
	{
	}
	FStringView(const TCHAR* Str, int32 Len)
		: View(Str, static_cast<SIZE_T>(Len))
	{
	}
	FStringView(const FString& Str)
		: View(*Str, static_cast<SIZE_T>(Str.Len()))
	{
	}

	const TCHAR* GetData() const { return View.data(); }
	int32 Len() const { return static_cast<int32>(View.size()); }
	bool IsEmpty() const { return View.empty(); }
	bool Equals(FStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return FString(Len(), GetData()).Equals(FString(Other.Len(), Other.GetData()), SearchCase);
	}

	auto begin() const { return View.begin(); }
	auto end() const { return View.end(); }

private:
	std::u16string_view View;
};
