#include "Input/HittestGrid.h"

FHittestGrid::FHittestGrid() = default;
