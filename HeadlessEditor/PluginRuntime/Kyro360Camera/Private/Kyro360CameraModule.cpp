#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, Kyro360Camera)
