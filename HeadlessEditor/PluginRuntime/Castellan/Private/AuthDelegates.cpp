#include "AuthDelegates.h"

AuthDelegates::FOnUpgradeAvailable AuthDelegates::OnUpgradeAvailable;
