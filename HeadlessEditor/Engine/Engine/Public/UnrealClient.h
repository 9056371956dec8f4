#pragma once

#include "CoreMinimal.h"

class FViewport;
class UWorld;

/** What a viewport renders and how it reacts to input; the editor's viewport clients derive from it. */
class ENGINE_API FViewportClient
{
public:
	virtual ~FViewportClient() = default;

	virtual UWorld* GetWorld() const { return nullptr; }
};

/** A rendering surface in a window. The headless editor draws nothing: a viewport is only an identity. */
class ENGINE_API FViewport
{
public:
	explicit FViewport(FViewportClient* InViewportClient);
	virtual ~FViewport() = default;

	FViewportClient* GetClient() const { return ViewportClient; }

protected:
	FViewportClient* ViewportClient;
};
