#pragma once

/** Passes a type through unchanged; used to keep a parameter out of template argument deduction. */
template <typename T>
struct TIdentity
{
	typedef T Type;
};

template <typename T>
using TIdentity_T = typename TIdentity<T>::Type;
