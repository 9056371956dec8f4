#pragma once

#include "CoreMinimal.h"
#include "DetailsViewArgs.h"
#include "PropertyEditorDelegates.h"
#include "Widgets/SCompoundWidget.h"

/** A details panel: the properties of some objects, laid out by the registered customisations. */
class IDetailsView : public SCompoundWidget
{
public:
	/** The objects shown. */
	virtual const TArray<TWeakObjectPtr<UObject>>& GetSelectedObjects() const = 0;

	/** Whether one of the objects shown is a class default object. */
	virtual bool HasClassDefaultObject() const = 0;

	/**
	 * Shows these objects. The layout is built again only when they differ from the ones shown,
	 * unless bForceRefresh asks for it anyway.
	 */
	virtual void SetObjects(const TArray<UObject*>& InObjects, bool bForceRefresh = false, bool bOverrideLock = false) = 0;
	virtual void SetObjects(const TArray<TWeakObjectPtr<UObject>>& InObjects, bool bForceRefresh = false, bool bOverrideLock = false) = 0;

	/** Shows this one object. */
	virtual void SetObject(UObject* InObject, bool bForceRefresh = false) = 0;

	/** The name the view was created with, or none. */
	virtual FName GetIdentifier() const = 0;

	/** Whether the properties shown can be edited. */
	virtual bool IsPropertyEditingEnabled() const = 0;

	/** Broadcast once an edit made through the view has been applied to every object. */
	virtual FOnFinishedChangingProperties& OnFinishedChangingProperties() const = 0;

	/** Opens the advanced section of every category. */
	virtual void ShowAllAdvancedProperties() = 0;

	/** Builds the layout again from the objects that still exist. */
	virtual void ForceRefresh() = 0;

	/** Drops what the view caches; here, as in the engine by default, by building it again. */
	virtual void InvalidateCachedState() { ForceRefresh(); }
};
