#pragma once

#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/Geometry.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"

class FChildren;
class IToolTip;
struct FSlateBaseNamedArgs;

/** The base of every widget: visibility, enabled state, tooltip, parent and children, input handlers. */
class SLATECORE_API SWidget : public TSharedFromThis<SWidget>
{
	template <class WidgetType, typename RequiredArgsPayloadType>
	friend struct TSlateDecl;

public:
	/** Called when this widget gets keyboard focus. */
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent);
	/** Called when this widget loses keyboard focus. */
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent);

	/** Called after a character is typed while this widget or a descendant has keyboard focus. */
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent);
	/** Called when a key is pressed while this widget or a descendant has keyboard focus. */
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);

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

	/** The tooltip shown when the widget is hovered. */
	TAttribute<TSharedPtr<IToolTip>> ToolTip;

private:
	TWeakPtr<SWidget> ParentWidgetPtr;
	TAttribute<bool> EnabledStateAttribute;
	TAttribute<EVisibility> VisibilityAttribute;
	/** Text for a tooltip made on first request, when the application is there to make it. */
	TAttribute<FText> PendingToolTipText;
	FName Tag;
	FName TypeOfWidget;
	/** Where the widget was last painted. */
	FGeometry PaintSpaceGeometry;
};
