#pragma once

#include "CoreMinimal.h"
#include "HeadlessHardwareEncoders.h"
#include "HeadlessMediaOutputs.h"

/** What tests set and read on the media-output and hardware-encoder parts of the runtime stand-ins. */
namespace HeadlessRuntime
{
	using UE::Headless::ClearHardwareEncodersPendingRestart;
	using UE::Headless::SetSuggestLoadingHardwareEncodersPlugin;

	using UE::Headless::AdvanceMediaOutputClock;
	using UE::Headless::FMediaOutputCall;
	using UE::Headless::GetMediaOutputCalls;
	using UE::Headless::ResetMediaOutputCalls;
}
