#include "Math/Color.h"

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
