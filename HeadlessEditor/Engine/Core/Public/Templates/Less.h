#pragma once

template <typename T = void>
struct TLess
{
	bool operator()(const T& A, const T& B) const { return A < B; }
};

template <>
struct TLess<void>
{
	template <typename T, typename U>
	bool operator()(T&& A, U&& B) const
	{
		return A < B;
	}
};
