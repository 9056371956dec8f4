#pragma once

#include "CoreTypes.h"

class FString;
struct FColor;

/** A colour with 32-bit floating-point components, in linear space. */
struct CORE_API FLinearColor
{
	float R;
	float G;
	float B;
	float A;

	FLinearColor() = default;
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f)
		: R(InR)
		, G(InG)
		, B(InB)
		, A(InA)
	{
	}
	explicit FLinearColor(EForceInit)
		: R(0)
		, G(0)
		, B(0)
		, A(0)
	{
	}
	/** Converts an sRGB colour to linear space; alpha is kept as it is. */
	FLinearColor(const FColor& Color);

	/** Converts a linear colour to 8 bits per channel, through the sRGB curve when bSRGB is true. */
	FColor ToFColor(const bool bSRGB) const;
	static FLinearColor FromSRGBColor(const FColor& Color);

	FLinearColor operator+(const FLinearColor& ColorB) const { return FLinearColor(R + ColorB.R, G + ColorB.G, B + ColorB.B, A + ColorB.A); }
	FLinearColor operator-(const FLinearColor& ColorB) const { return FLinearColor(R - ColorB.R, G - ColorB.G, B - ColorB.B, A - ColorB.A); }
	FLinearColor operator*(const FLinearColor& ColorB) const { return FLinearColor(R * ColorB.R, G * ColorB.G, B * ColorB.B, A * ColorB.A); }
	FLinearColor operator*(float Scalar) const { return FLinearColor(R * Scalar, G * Scalar, B * Scalar, A * Scalar); }
	FLinearColor& operator*=(const FLinearColor& ColorB)
	{
		R *= ColorB.R;
		G *= ColorB.G;
		B *= ColorB.B;
		A *= ColorB.A;
		return *this;
	}
	FLinearColor& operator*=(float Scalar)
	{
		R *= Scalar;
		G *= Scalar;
		B *= Scalar;
		A *= Scalar;
		return *this;
	}

	FLinearColor CopyWithNewOpacity(float NewOpacity) const { return FLinearColor(R, G, B, NewOpacity); }
	float GetLuminance() const { return R * 0.3f + G * 0.59f + B * 0.11f; }

	bool operator==(const FLinearColor& Other) const { return R == Other.R && G == Other.G && B == Other.B && A == Other.A; }
	bool operator!=(const FLinearColor& Other) const { return !(*this == Other); }
	bool Equals(const FLinearColor& Other, float Tolerance = 1.e-4f) const;

	static const FLinearColor White;
	static const FLinearColor Gray;
	static const FLinearColor Black;
	static const FLinearColor Transparent;
	static const FLinearColor Red;
	static const FLinearColor Green;
	static const FLinearColor Blue;
	static const FLinearColor Yellow;
};

/** An 8-bit-per-channel colour. */
struct CORE_API FColor
{
	uint8 B = 0;
	uint8 G = 0;
	uint8 R = 0;
	uint8 A = 0;

	FColor() = default;
	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255)
		: B(InB)
		, G(InG)
		, R(InR)
		, A(InA)
	{
	}
	bool operator==(const FColor& Other) const { return R == Other.R && G == Other.G && B == Other.B && A == Other.A; }
	bool operator!=(const FColor& Other) const { return !(*this == Other); }

	/** Reads "RRGGBB" or "RRGGBBAA", with or without a leading '#'; a missing alpha is opaque. */
	static FColor FromHex(const FString& HexString);

	/** Converts to linear space; unlike FLinearColor(FColor), this does not go through the sRGB curve. */
	FLinearColor ReinterpretAsLinear() const;
};
