#include "CastellanRuntimeState.h"

#include "Modules/ModuleManager.h"

FCastellanRuntimeState& FCastellanRuntimeState::Get()
{
	static FCastellanRuntimeState State;
	return State;
}

IMPLEMENT_MODULE(FDefaultModuleImpl, Castellan)
