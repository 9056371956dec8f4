#include "UnrealClient.h"

FViewport::FViewport(FViewportClient* InViewportClient)
	: ViewportClient(InViewportClient)
{
}
