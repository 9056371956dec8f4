#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtr.h"

class FAssetThumbnailPool;
class FNotifyHook;
struct FPropertyChangedEvent;

/** What a details panel offers the rows and customisations it shows. */
class IPropertyUtilities
{
public:
	virtual ~IPropertyUtilities() {}

	virtual FNotifyHook* GetNotifyHook() const = 0;
	virtual void EnqueueDeferredAction(FSimpleDelegate DeferredAction) = 0;
	virtual bool IsPropertyEditingEnabled() const = 0;
	/** Rebuilds the panel now. */
	virtual void ForceRefresh() = 0;
	/** Rebuilds the panel on its next tick. */
	virtual void RequestRefresh() = 0;
	virtual TSharedPtr<FAssetThumbnailPool> GetThumbnailPool() const = 0;
	virtual void NotifyFinishedChangingProperties(const FPropertyChangedEvent& PropertyChangedEvent) = 0;
	virtual bool HasClassDefaultObject() const = 0;
	virtual const TArray<TWeakObjectPtr<UObject>>& GetSelectedObjects() const = 0;
};
