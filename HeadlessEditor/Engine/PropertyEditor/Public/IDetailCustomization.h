#pragma once

#include "CoreMinimal.h"

class IDetailLayoutBuilder;

/** Customises the whole details panel of the objects of one class. */
class IDetailCustomization : public TSharedFromThis<IDetailCustomization>
{
public:
	virtual ~IDetailCustomization() {}

	/** Called when the details panel that owns this customisation is about to be destroyed. */
	virtual void PendingDelete() {}

	virtual void CustomizeDetails(IDetailLayoutBuilder& DetailBuilder) = 0;

	virtual void CustomizeDetails(const TSharedPtr<IDetailLayoutBuilder>& DetailBuilder)
	{
		CustomizeDetails(*DetailBuilder);
	}
};
