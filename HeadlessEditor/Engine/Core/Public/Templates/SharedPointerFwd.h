#pragma once

#include "Templates/SharedPointer.h"
