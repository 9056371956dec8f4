#include "CastellanRuntimeState.h"

FCastellanRuntimeState& FCastellanRuntimeState::Get()
{
	static FCastellanRuntimeState State;
	return State;
}
