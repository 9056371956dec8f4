#pragma once

#include "CoreMinimal.h"

class SWidget;

/** What a widget shows when hovered. */
class IToolTip
{
public:
	virtual ~IToolTip() = default;

	virtual TSharedRef<SWidget> AsWidget() = 0;
	virtual TSharedRef<SWidget> GetContentWidget() = 0;
	virtual void SetContentWidget(const TSharedRef<SWidget>& InContentWidget) = 0;
	virtual bool IsEmpty() const = 0;
	virtual bool IsInteractive() const = 0;
	virtual void OnOpening() = 0;
	virtual void OnClosed() = 0;
};
