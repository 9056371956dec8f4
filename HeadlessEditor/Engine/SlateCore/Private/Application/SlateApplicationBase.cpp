#include "Application/SlateApplicationBase.h"

TSharedPtr<FSlateApplicationBase> FSlateApplicationBase::CurrentBaseApplication;
