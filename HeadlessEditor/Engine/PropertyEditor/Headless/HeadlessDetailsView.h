#pragma once

#include "CoreMinimal.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "IPropertyUtilities.h"
#include "PropertyEditorDelegates.h"
#include "PropertyHandle.h"
#include "UObject/UnrealType.h"

class FDetailLayoutBuilderImpl;
class FDetailPropertyNode;
class IDetailCustomization;
class IDetailsView;
class IPropertyTypeCustomization;

/** Headless editor only: the layout a details panel built, whose categories and rows tests read and open. */
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
		/** Whether the rows under it show: groups as they were added, structs when asked to expand. */
		bool bExpanded = false;
		/** Whether a property-type customisation built this struct row and its children. */
		bool bCustomisedByType = false;
		/** Struct members, array elements, a customisation's child rows or a group's rows. */
		TArray<TSharedRef<FHeadlessDetailRow>> Children;

		/** The bound visibility, evaluated now. */
		EVisibility GetVisibility() const { return Widgets.VisibilityAttr.Get(); }
		/** The bound enabled state, evaluated now. */
		bool IsEnabled() const { return Widgets.IsEnabledAttr.Get(); }
		/** Whether the panel shows the children in its place, as it does for a struct whose customisation leaves the header empty. */
		bool ShowsOnlyChildren() const { return bCustomisedByType && !Widgets.HasAnyContent(); }
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
		/** Whether the category shows its rows: unless it starts collapsed or has advanced rows only. */
		bool bExpanded = true;
		/** Whether the advanced rows show below the "Advanced" expander. */
		bool bShowAdvanced = false;
		TArray<TSharedRef<FHeadlessDetailRow>> Rows;

		bool HasAdvancedRows() const
		{
			return Rows.ContainsByPredicate([](const TSharedRef<FHeadlessDetailRow>& Row)
				{ return Row->bAdvanced; });
		}
		/** A category of advanced rows only shows them always, and its expander cannot hide them. */
		bool HasOnlyAdvancedRows() const
		{
			return HasAdvancedRows() && !Rows.ContainsByPredicate([](const TSharedRef<FHeadlessDetailRow>& Row)
											{ return !Row->bAdvanced; });
		}
		bool IsAdvancedShown() const { return bShowAdvanced || HasOnlyAdvancedRows(); }
	};

	/**
	 * The layout of a details view: shows objects through the registered customisations as the
	 * engine's details view does after SetObjects, keeps what it built readable, and remembers what is
	 * open. Every details view owns one and draws it; on its own it lays objects out without drawing.
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

		/** Opens or closes a category, a group or a struct row, as a click on its arrow does. */
		void SetExpanded(FHeadlessDetailCategory& Category, bool bExpanded);
		void SetExpanded(FHeadlessDetailRow& Row, bool bExpanded);
		/** Shows or hides a category's advanced rows, as a click on its "Advanced" expander does. */
		void SetAdvancedShown(FHeadlessDetailCategory& Category, bool bShown);
		/** Broadcast when the layout was built and whenever something opens or closes. */
		FSimpleMulticastDelegate& OnLayoutChanged() { return LayoutChanged; }
		/** Broadcast when NotifyFinishedChangingProperties reaches the view. */
		FOnFinishedChangingProperties& OnFinishedChangingProperties() { return FinishedChanging; }
		void SetNotifyHook(FNotifyHook* InNotifyHook) { NotifyHook = InNotifyHook; }

		/** The most derived class all objects share. */
		static UClass* FindCommonBaseClass(const TArray<UObject*>& InObjects);

		// IPropertyUtilities
		virtual FNotifyHook* GetNotifyHook() const override { return NotifyHook; }
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

		/** What is open, by path, so that a rebuilt layout opens the same categories, groups and rows. */
		TMap<FString, bool> SaveExpansion() const;
		void RestoreExpansion(const TMap<FString, bool>& Saved);

		TArray<TWeakObjectPtr<UObject>> Objects;
		TSharedPtr<FDetailPropertyNode> RootNode;
		TSharedPtr<FDetailLayoutBuilderImpl> LayoutBuilder;
		TArray<TSharedRef<FHeadlessDetailCategory>> Categories;
		TArray<FSimpleDelegate> DeferredActions;
		int32 FinishedChangingCount = 0;
		int32 BuildCount = 0;
		bool bRefreshRequested = false;
		FNotifyHook* NotifyHook = nullptr;
		FSimpleMulticastDelegate LayoutChanged;
		FOnFinishedChangingProperties FinishedChanging;
	};

	/** The layout a details view built, which the view draws. */
	PROPERTYEDITOR_API FHeadlessDetailsView& GetDetailsViewModel(IDetailsView& View);
}
