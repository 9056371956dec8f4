#include "WidgetDriver.h"

#include "Framework/Application/SlateApplication.h"
#include "Layout/Children.h"
#include "Rendering/DrawElements.h"
#include "WidgetRenderer.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	bool IsOfType(const SWidget& Widget, const FString& TypeName)
	{
		if (TypeName.IsEmpty())
		{
			return true;
		}
		const FString Type = Widget.GetTypeAsString();
		return Type.Equals(TypeName) || Type.StartsWith(TypeName + TEXT("<"), ESearchCase::CaseSensitive);
	}

	/** The text a widget shows by itself, without looking inside it. */
	TOptional<FString> GetOwnText(const TSharedRef<SWidget>& Widget)
	{
		if (IsOfType(*Widget, TEXT("STextBlock")))
		{
			return StaticCastSharedRef<STextBlock>(Widget)->GetText().ToString();
		}
		if (IsOfType(*Widget, TEXT("SEditableTextBox")))
		{
			return StaticCastSharedRef<SEditableTextBox>(Widget)->GetText().ToString();
		}
		if (IsOfType(*Widget, TEXT("SEditableText")))
		{
			return StaticCastSharedRef<SEditableText>(Widget)->GetText().ToString();
		}
		return TOptional<FString>();
	}

	void CollectMatches(const TSharedRef<SWidget>& Widget, const FString& TypeName, const TOptional<FString>& Text, TArray<TSharedRef<SWidget>>& OutMatches)
	{
		if (IsOfType(*Widget, TypeName))
		{
			const TOptional<FString> Shown = Text.IsSet() ? FWidgetDriver::GetDisplayedText(Widget) : TOptional<FString>();
			if (!Text.IsSet() || (Shown.IsSet() && Shown.GetValue().Equals(Text.GetValue())))
			{
				OutMatches.Add(Widget);
			}
		}
		for (const TSharedRef<SWidget>& Child : FWidgetDriver::GetChildWidgets(Widget))
		{
			CollectMatches(Child, TypeName, Text, OutMatches);
		}
	}
}

TArray<TSharedRef<SWidget>> FWidgetDriver::GetChildWidgets(const TSharedRef<SWidget>& Widget)
{
	TArray<TSharedRef<SWidget>> Result;
	FChildren* Children = Widget->GetChildren();
	for (int32 Index = 0; Children && Index < Children->Num(); ++Index)
	{
		const TSharedRef<SWidget> Child = Children->GetChildAt(Index);
		if (Child != SNullWidget::NullWidget)
		{
			Result.Add(Child);
		}
	}
	return Result;
}

TArray<TSharedRef<SWidget>> FWidgetDriver::FindAllWidgets(const TSharedRef<SWidget>& Root, const FString& TypeName, const TOptional<FString>& Text)
{
	TArray<TSharedRef<SWidget>> Matches;
	CollectMatches(Root, TypeName, Text, Matches);
	return Matches;
}

TSharedPtr<SWidget> FWidgetDriver::FindWidget(const TSharedRef<SWidget>& Root, const FString& TypeName, const TOptional<FString>& Text)
{
	const TArray<TSharedRef<SWidget>> Matches = FindAllWidgets(Root, TypeName, Text);
	return Matches.Num() > 0 ? TSharedPtr<SWidget>(Matches[0]) : TSharedPtr<SWidget>();
}

TOptional<FString> FWidgetDriver::GetDisplayedText(const TSharedRef<SWidget>& Widget)
{
	const TOptional<FString> OwnText = GetOwnText(Widget);
	if (OwnText.IsSet())
	{
		return OwnText;
	}
	for (const TSharedRef<SWidget>& Child : GetChildWidgets(Widget))
	{
		const TOptional<FString> ChildText = GetDisplayedText(Child);
		if (ChildText.IsSet())
		{
			return ChildText;
		}
	}
	return TOptional<FString>();
}

bool FWidgetDriver::IsShown(const TSharedRef<SWidget>& Widget)
{
	for (TSharedPtr<SWidget> Current = Widget; Current.IsValid(); Current = Current->GetParentWidget())
	{
		if (!Current->GetVisibility().IsVisible())
		{
			return false;
		}
	}
	return true;
}

bool FWidgetDriver::IsEffectivelyEnabled(const TSharedRef<SWidget>& Widget)
{
	for (TSharedPtr<SWidget> Current = Widget; Current.IsValid(); Current = Current->GetParentWidget())
	{
		if (!Current->IsEnabled())
		{
			return false;
		}
	}
	return true;
}

TArray<FWidgetDriver::FPaintedText> FWidgetDriver::GetPaintedText(const TSharedRef<SWidget>& Widget)
{
	TSharedRef<SWidget> Root = Widget;
	while (const TSharedPtr<SWidget> Parent = Root->GetParentWidget())
	{
		Root = Parent.ToSharedRef();
	}
	Root->SlatePrepass(1.0f);
	FSlateWindowElementList Elements(nullptr);
	FWidgetRenderer::PaintWidget(Root, Root->GetDesiredSize(), Elements);

	TArray<FPaintedText> Lines;
	const FSlateRect Area = Widget->GetPaintSpaceGeometry().GetLayoutBoundingRect();
	for (const FSlateDrawElement& Element : Elements.GetUncachedDrawElements())
	{
		if (Element.GetElementType() != EElementType::ET_Text || !Area.ContainsPoint(Element.GetPosition()))
		{
			continue;
		}
		const FSlateTextPayload& Payload = Element.GetDataPayload<FSlateTextPayload>();
		const FVector2D Size = Element.GetLocalSize() * static_cast<double>(Element.GetScale());
		Lines.Add({FString(Payload.GetText()), Payload.GetFontInfo(), Payload.GetTint(), FSlateRect(Element.GetPosition(), Element.GetPosition() + Size), Element.GetDrawEffects()});
	}
	return Lines;
}

namespace
{
	FWidgetDriver::FPaintedText GetFirstPaintedLine(const STextBlock& TextBlock)
	{
		const TArray<FWidgetDriver::FPaintedText> Lines = FWidgetDriver::GetPaintedText(StaticCastSharedRef<SWidget>(const_cast<STextBlock&>(TextBlock).AsShared()));
		checkf(Lines.Num() > 0, TEXT("The text block paints no text: it is empty or not shown"));
		return Lines[0];
	}
}

FSlateFontInfo FWidgetDriver::GetFont(const STextBlock& TextBlock)
{
	return GetFirstPaintedLine(TextBlock).Font;
}

FSlateColor FWidgetDriver::GetColor(const STextBlock& TextBlock)
{
	return FSlateColor(GetFirstPaintedLine(TextBlock).Color);
}

bool FWidgetDriver::Click(const TSharedRef<SButton>& Button)
{
	if (!IsShown(Button) || !IsEffectivelyEnabled(Button))
	{
		return false;
	}
	Button->SimulateClick();
	return true;
}

bool FWidgetDriver::ToggleCheckBox(const TSharedRef<SCheckBox>& CheckBox)
{
	if (!IsShown(CheckBox) || !IsEffectivelyEnabled(CheckBox))
	{
		return false;
	}
	CheckBox->ToggleCheckedState();
	return true;
}

bool FWidgetDriver::TypeText(const TSharedRef<SEditableTextBox>& TextBox, const FText& Text, ETextCommit::Type CommitType)
{
	if (!IsShown(TextBox) || !IsEffectivelyEnabled(TextBox) || TextBox->IsReadOnly())
	{
		return false;
	}
	checkf(FSlateApplication::IsInitialized(), TEXT("Typing needs the Slate application"));
	FSlateApplication& Application = FSlateApplication::Get();
	Application.SetKeyboardFocus(TextBox, EFocusCause::Mouse);
	const FModifierKeysState Control(false, false, true, false, false, false, false, false, false);
	Application.ProcessKeyDownEvent(FKeyEvent(EKeys::A, Control, 0, false, 0, 0));
	const FString Characters = Text.ToString();
	if (Characters.IsEmpty())
	{
		Application.ProcessKeyDownEvent(FKeyEvent(EKeys::BackSpace, FModifierKeysState(), 0, false, 0, 0));
	}
	for (const TCHAR Character : Characters)
	{
		Application.ProcessKeyCharEvent(FCharacterEvent(Character, FModifierKeysState(), 0, false));
	}
	switch (CommitType)
	{
		case ETextCommit::OnEnter:
			Application.ProcessKeyDownEvent(FKeyEvent(EKeys::Enter, FModifierKeysState(), 0, false, 0, 0));
			break;
		case ETextCommit::OnUserMovedFocus:
			Application.ClearKeyboardFocus(EFocusCause::Mouse);
			break;
		case ETextCommit::OnCleared:
			Application.ClearKeyboardFocus(EFocusCause::Cleared);
			break;
		default:
			Application.ClearKeyboardFocus(EFocusCause::SetDirectly);
			break;
	}
	return true;
}

bool FWidgetDriver::PressKey(const TSharedRef<SWidget>& Widget, const FKey& Key)
{
	checkf(FSlateApplication::IsInitialized(), TEXT("Pressing a key needs the Slate application"));
	FSlateApplication& Application = FSlateApplication::Get();
	const bool bFocused = Application.SetKeyboardFocus(Widget);
	checkf(bFocused, TEXT("The widget does not support keyboard focus"));
	return Application.ProcessKeyDownEvent(FKeyEvent(Key, FModifierKeysState(), 0, false, 0, 0));
}
