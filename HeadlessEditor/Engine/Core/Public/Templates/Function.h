#pragma once

#include <functional>

template <typename FuncType>
class TFunction : public std::function<FuncType>
{
public:
	using std::function<FuncType>::function;
	TFunction() = default;

	bool IsSet() const { return static_cast<bool>(*this); }
	void Reset() { *this = nullptr; }
};

template <typename FuncType>
class TUniqueFunction : public TFunction<FuncType>
{
public:
	using TFunction<FuncType>::TFunction;
};

template <typename FuncType>
class TFunctionRef : public std::function<FuncType>
{
public:
	using std::function<FuncType>::function;
};
