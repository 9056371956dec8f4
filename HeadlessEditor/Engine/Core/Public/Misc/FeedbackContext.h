#pragma once

#include "CoreTypes.h"
#include "Misc/OutputDevice.h"

/** Where long operations report warnings and progress; the headless editor passes none. */
class CORE_API FFeedbackContext : public FOutputDevice
{
};
