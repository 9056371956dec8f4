#include "Containers/Array.h"

#include <cstdio>
#include <cstdlib>

void UE::Core::Private::OnInvalidArrayIndex(int32 Index, int32 ArrayNum)
{
	std::fprintf(stderr, "Assertion failed: (Index >= 0) & (Index < ArrayNum) [Array index out of bounds: %d from an array of size %d]\n", Index, ArrayNum);
	std::fflush(stderr);
	std::abort();
}
