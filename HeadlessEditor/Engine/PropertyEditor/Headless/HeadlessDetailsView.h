#pragma once

#include "CoreMinimal.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "IPropertyUtilities.h"
#include "PropertyHandle.h"
#include "UObject/UnrealType.h"

class FDetailLayoutBuilderImpl;
class FDetailPropertyNode;
class IDetailCustomization;
class IPropertyTypeCustomization;

/** Headless editor only: a details panel without a window, whose rows tests read. */
namespace UE::Headless
{
	/** One row a details view built: a property, a custom row or a group, with the rows under it. */
	struct FHeadlessDetailRow
	{
		enum class EKind : uint8
		{
			Property,
			Custom,
			Group,
		};

		EKind Kind = EKind::Custom;
		/** The property's or the group's name; none for custom rows. */
		FName Name;
		/** The property shown (property rows only). */
		TSharedPtr<IPropertyHandle> PropertyHandle;
		/** The row's widgets, filter text, visibility and enabled state (a group's header row). */
		FDetailWidgetRow Widgets;
		/** The display name a group was given, or a property row's override. */
		FText DisplayName;
		bool bAdvanced = false;
		bool bExpanded = false;
		/** Whether a property-type customisation built this struct row and its children. */
		bool bCustomisedByType = false;
		/** Struct members, array elements, a customisation's child rows or a group's rows. */
		TArray<TSharedRef<FHeadlessDetailRow>> Children;

		/** The bound visibility, evaluated now. */
		EVisibility GetVisibility() const { return Widgets.VisibilityAttr.Get(); }
		/** The bound enabled state, evaluated now. */
		bool IsEnabled() const { return Widgets.IsEnabledAttr.Get(); }
	};

	/** One category of a details view, with its rows: the simple ones first, then the advanced ones. */
	struct FHeadlessDetailCategory
	{
		FName Name;
		FText DisplayName;
		ECategoryPriority::Type Priority = ECategoryPriority::Default;
		int32 SortOrder = 0;
		bool bInitiallyCollapsed = false;
		bool bHidden = false;
		TArray<TSharedRef<FHeadlessDetailRow>> Rows;
	};

	/**
	 * The property editor's details view without a window: shows objects through the registered
	 * customisations as SDetailsView does after SetObjects, and keeps what it built readable.
	 */
	class PROPERTYEDITOR_API FHeadlessDetailsView : public IPropertyUtilities, public TSharedFromThis<FHeadlessDetailsView>
	{
	public:
		FHeadlessDetailsView();
		virtual ~FHeadlessDetailsView() override;

		/** Shows these objects and builds the layout. */
		void SetObjects(const TArray<UObject*>& InObjects);
		/** Rebuilds the layout from scratch: new nodes, new customisation instances. */
		void Rebuild();
		/** Runs a refresh that was requested. @return whether one ran. */
		bool Tick();

		/** Categories in display order (hidden ones included, flagged). */
		const TArray<TSharedRef<FHeadlessDetailCategory>>& GetCategories() const { return Categories; }
		/** Properties hidden by a customisation or by the layout builder, in tree order. */
		TArray<FName> GetHiddenPropertyNames() const;
		/** A handle on a top-level property, as the layout builder's GetProperty gives it. */
		TSharedRef<IPropertyHandle> GetPropertyHandle(FName PropertyPath) const;
		/** How often NotifyFinishedChangingProperties reached the view. */
		int32 GetFinishedChangingCount() const { return FinishedChangingCount; }
		/** How many times the layout was built. */
		int32 GetBuildCount() const { return BuildCount; }

		/** The widget a property row shows for its value when no customisation replaces it. */
		static TSharedRef<SWidget> MakeDefaultValueWidget(const TSharedRef<IPropertyHandle>& Handle);
		/** The most derived class all objects share. */
		static UClass* FindCommonBaseClass(const TArray<UObject*>& InObjects);

		// IPropertyUtilities
		virtual FNotifyHook* GetNotifyHook() const override { return nullptr; }
		virtual void EnqueueDeferredAction(FSimpleDelegate DeferredAction) override;
		virtual bool IsPropertyEditingEnabled() const override { return true; }
		virtual void ForceRefresh() override { Rebuild(); }
		virtual void RequestRefresh() override { bRefreshRequested = true; }
		virtual TSharedPtr<FAssetThumbnailPool> GetThumbnailPool() const override { return nullptr; }
		virtual void NotifyFinishedChangingProperties(const FPropertyChangedEvent& PropertyChangedEvent) override;
		virtual bool HasClassDefaultObject() const override;
		virtual const TArray<TWeakObjectPtr<UObject>>& GetSelectedObjects() const override { return Objects; }

	private:
		friend class ::FDetailLayoutBuilderImpl;

		TArray<TWeakObjectPtr<UObject>> Objects;
		TSharedPtr<FDetailPropertyNode> RootNode;
		TSharedPtr<FDetailLayoutBuilderImpl> LayoutBuilder;
		TArray<TSharedRef<FHeadlessDetailCategory>> Categories;
		TArray<FSimpleDelegate> DeferredActions;
		int32 FinishedChangingCount = 0;
		int32 BuildCount = 0;
		bool bRefreshRequested = false;
	};
}
