#include "Math/Color.h"

#include "Containers/UnrealString.h"

#include <algorithm>
#include <cmath>

const FLinearColor FLinearColor::White(1.f, 1.f, 1.f);
const FLinearColor FLinearColor::Gray(0.5f, 0.5f, 0.5f);
const FLinearColor FLinearColor::Black(0, 0, 0);
const FLinearColor FLinearColor::Transparent(0, 0, 0, 0);
const FLinearColor FLinearColor::Red(1.f, 0, 0);
const FLinearColor FLinearColor::Green(0, 1.f, 0);
const FLinearColor FLinearColor::Blue(0, 0, 1.f);
const FLinearColor FLinearColor::Yellow(1.f, 1.f, 0);

bool FLinearColor::Equals(const FLinearColor& Other, float Tolerance) const
{
	return std::fabs(R - Other.R) < Tolerance && std::fabs(G - Other.G) < Tolerance && std::fabs(B - Other.B) < Tolerance && std::fabs(A - Other.A) < Tolerance;
}

namespace
{
	float SRGBToLinear(uint8 Channel)
	{
		const float Value = Channel / 255.0f;
		return Value <= 0.04045f ? Value / 12.92f : std::pow((Value + 0.055f) / 1.055f, 2.4f);
	}

	uint8 LinearToSRGB(float Channel)
	{
		const float Clamped = std::min(std::max(Channel, 0.0f), 1.0f);
		const float Value = Clamped <= 0.0031308f ? Clamped * 12.92f : std::pow(Clamped, 1.0f / 2.4f) * 1.055f - 0.055f;
		return static_cast<uint8>(std::floor(Value * 255.999f));
	}

	uint8 LinearToByte(float Channel)
	{
		return static_cast<uint8>(std::floor(std::min(std::max(Channel, 0.0f), 1.0f) * 255.999f));
	}

	int32 HexDigit(TCHAR Digit)
	{
		if (Digit >= TEXT('0') && Digit <= TEXT('9'))
		{
			return Digit - TEXT('0');
		}
		if (Digit >= TEXT('a') && Digit <= TEXT('f'))
		{
			return Digit - TEXT('a') + 10;
		}
		if (Digit >= TEXT('A') && Digit <= TEXT('F'))
		{
			return Digit - TEXT('A') + 10;
		}
		return 0;
	}
}

FLinearColor::FLinearColor(const FColor& Color)
	: R(SRGBToLinear(Color.R))
	, G(SRGBToLinear(Color.G))
	, B(SRGBToLinear(Color.B))
	, A(Color.A / 255.0f)
{
}

FColor FLinearColor::ToFColor(const bool bSRGB) const
{
	if (bSRGB)
	{
		return FColor(LinearToSRGB(R), LinearToSRGB(G), LinearToSRGB(B), LinearToByte(A));
	}
	return FColor(LinearToByte(R), LinearToByte(G), LinearToByte(B), LinearToByte(A));
}

FLinearColor FLinearColor::FromSRGBColor(const FColor& Color)
{
	return FLinearColor(Color);
}

FColor FColor::FromHex(const FString& HexString)
{
	const FString Digits = HexString.StartsWith(TEXT("#")) ? HexString.Mid(1) : HexString;
	const auto Byte = [&Digits](int32 Index)
	{ return static_cast<uint8>(HexDigit(Digits[Index]) * 16 + HexDigit(Digits[Index + 1])); };
	if (Digits.Len() == 6)
	{
		return FColor(Byte(0), Byte(2), Byte(4), 255);
	}
	if (Digits.Len() == 8)
	{
		return FColor(Byte(0), Byte(2), Byte(4), Byte(6));
	}
	return FColor(0, 0, 0, 0);
}

FLinearColor FColor::ReinterpretAsLinear() const
{
	return FLinearColor(R / 255.0f, G / 255.0f, B / 255.0f, A / 255.0f);
}
