#pragma once

#include "CoreMinimal.h"
#include "Layout/Geometry.h"

class FHittestGrid;
class SWidget;

/** What every widget is painted with besides its geometry: its paint parent, the hit test grid and the time. */
class SLATECORE_API FPaintArgs
{
public:
	FPaintArgs(const SWidget* PaintParent, FHittestGrid& InRootHittestGrid, FVector2D InWindowOffset, double InCurrentTime, float InDeltaTime);

	/** The same arguments for the children of a widget. */
	FPaintArgs WithNewParent(const SWidget* PaintParent) const
	{
		FPaintArgs Args(*this);
		Args.PaintParentPtr = PaintParent;
		return Args;
	}

	FHittestGrid& GetHittestGrid() const { return CurrentGrid; }
	const SWidget* GetPaintParent() const { return PaintParentPtr; }
	FVector2D GetWindowToDesktopTransform() const { return WindowOffset; }
	double GetCurrentTime() const { return CurrentTime; }
	float GetDeltaTime() const { return DeltaTime; }

private:
	FHittestGrid& RootGrid;
	FHittestGrid& CurrentGrid;
	FVector2D WindowOffset;
	const SWidget* PaintParentPtr;
	double CurrentTime;
	float DeltaTime;
};
