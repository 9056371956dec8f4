#pragma once

#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/Clipping.h"
#include "Layout/Geometry.h"
#include "Layout/SlateRect.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"

class FArrangedChildren;
class FChildren;
class FPaintArgs;
class FSlateWindowElementList;
class FWidgetStyle;
class IToolTip;
struct FSlateBaseNamedArgs;
struct FSlateColor;

/** The base of every widget: visibility, enabled state, tooltip, parent and children, input handlers. */
class SLATECORE_API SWidget : public TSharedFromThis<SWidget>
{
	template <class WidgetType, typename RequiredArgsPayloadType>
	friend struct TSlateDecl;

public:
	/**
	 * Paints the widget and its content: ticks it if it asked for ticks, clips it if it clips, remembers
	 * the geometry, then lets OnPaint make the draw elements.
	 * @return the highest layer the widget or its content drew on
	 */
	int32 Paint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const;

	/**
	 * Called each frame the widget is painted, before it paints, if it asked for ticks.
	 * @param AllottedGeometry the geometry the widget is painted with
	 */
	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime);

	void SetCanTick(bool bInCanTick) { bCanTick = bInCanTick; }
	bool GetCanTick() const { return bCanTick; }

	/** Called when this widget gets keyboard focus. */
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent);
	/** Called when this widget loses keyboard focus. */
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent);

	/** Called after a character is typed while this widget or a descendant has keyboard focus. */
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent);
	/** Called when a key is pressed while this widget or a descendant has keyboard focus. */
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);

	/**
	 * Lays the widget tree out from the leaves up: each widget caches the size it wants, computed
	 * from its children's sizes. Collapsed children are skipped; they take no space.
	 */
	void SlatePrepass();
	void SlatePrepass(float InLayoutScaleMultiplier);

	/** Whether the desired size is out of date. */
	bool NeedsPrepass() const { return bNeedsPrepass; }
	/** Asks for the desired size to be computed again at the next prepass. */
	void MarkPrepassAsDirty() { bNeedsPrepass = true; }

	/** @return the size the widget wants, as the last prepass computed it */
	FVector2D GetDesiredSize() const;

	/** Places the children in the geometry the widget was given, keeping those ArrangedChildren accepts. */
	void ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, bool bUpdateAttributes = false) const;

	/** @return the widget's children, for the framework to walk the tree */
	virtual FChildren* GetChildren() = 0;
	virtual FChildren* GetAllChildren() { return GetChildren(); }

	/** Whether this widget can take keyboard focus; widgets must opt in. */
	virtual bool SupportsKeyboardFocus() const;
	virtual bool HasKeyboardFocus() const;

	/** Whether the widget reacts to the user when enabled (buttons, check boxes...). */
	virtual bool IsInteractable() const { return false; }

	void SetEnabled(TAttribute<bool> InEnabledState) { EnabledStateAttribute = MoveTemp(InEnabledState); }
	/** @return the widget's own enabled state, read from its attribute each time */
	bool IsEnabled() const { return EnabledStateAttribute.Get(); }

	virtual TSharedPtr<IToolTip> GetToolTip();
	void SetToolTipText(const TAttribute<FText>& ToolTipText);
	void SetToolTipText(const FText& InToolTipText);
	void SetToolTip(const TAttribute<TSharedPtr<IToolTip>>& InToolTip);

	/** @return the widget's visibility, read from its attribute each time */
	EVisibility GetVisibility() const { return VisibilityAttribute.Get(); }
	virtual void SetVisibility(TAttribute<EVisibility> InVisibility);

	void AssignParentWidget(TSharedPtr<SWidget> InParent);
	bool ConditionallyDetatchParentWidget(SWidget* InExpectedParent);
	bool IsParentValid() const { return ParentWidgetPtr.IsValid(); }
	TSharedPtr<SWidget> GetParentWidget() const { return ParentWidgetPtr.Pin(); }

	float GetRenderOpacity() const { return RenderOpacity; }
	void SetRenderOpacity(float InRenderOpacity) { RenderOpacity = InRenderOpacity; }

	/** Whether the widget cuts off what it and its content draw outside its bounds. */
	void SetClipping(EWidgetClipping InClipping) { Clipping = InClipping; }
	EWidgetClipping GetClipping() const { return Clipping; }

	/** The foreground colour this widget sets for its content; UseForeground when it sets none. */
	virtual FSlateColor GetForegroundColor() const;
	virtual FSlateColor GetDisabledForegroundColor() const;

	/** The widget's class as written in SNew, e.g. "STextBlock". */
	FString GetTypeAsString() const;
	FName GetType() const;
	virtual FName GetTag() const;
	virtual FString ToString() const;

	/** The geometry the widget was last painted with; empty before its first paint. */
	const FGeometry& GetPaintSpaceGeometry() const;

protected:
	SWidget();

	/** Applies the arguments every widget takes (visibility, enabled state, tooltip, tag). */
	void SWidgetConstruct(const FSlateBaseNamedArgs& Args);

	/** Called by SNew and SAssignNew with the widget's declared type and where it was made. */
	void SetDebugInfo(const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine, size_t InAllocSize);

	virtual ~SWidget();

	/** Caches the size ComputeDesiredSize gives. */
	virtual void CacheDesiredSize(float InLayoutScaleMultiplier);

	/**
	 * The size the widget wants, computed from its children's desired sizes (already cached by the
	 * prepass) and its own content, such as text or an image.
	 */
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const = 0;

	/** Whether the widget is enabled: itself and its parent. */
	bool ShouldBeEnabled(bool InParentEnabled) const { return InParentEnabled && IsEnabled(); }

	float GetPrepassLayoutScaleMultiplier() const { return PrepassLayoutScaleMultiplier.Get(1.0f); }

	/** Runs the prepass on each child that is not collapsed. */
	void Prepass_ChildLoop(float InLayoutScaleMultiplier, FChildren* MyChildren);

private:
	/** Makes the draw elements of the widget and its content, from layer LayerId up. @return the highest layer used */
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const = 0;

	/** Places the children in the geometry the widget was given. */
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const = 0;

	void Prepass_Internal(float LayoutScaleMultiplier);

	TWeakPtr<SWidget> ParentWidgetPtr;
	TAttribute<bool> EnabledStateAttribute;
	TAttribute<EVisibility> VisibilityAttribute;
	/** Text for a tooltip made on first request, when the application is there to make it. */
	TAttribute<FText> PendingToolTipText;
	/** The tooltip shown when the widget is hovered. */
	TAttribute<TSharedPtr<IToolTip>> ToolTip;
	FName Tag;
	FName TypeOfWidget;
	/** Where the widget was last painted. */
	FGeometry PaintSpaceGeometry;
	TOptional<FVector2f> DesiredSize;
	TOptional<float> PrepassLayoutScaleMultiplier;
	bool bNeedsPrepass;
	bool bCanTick;
	float RenderOpacity;
	EWidgetClipping Clipping;
};
