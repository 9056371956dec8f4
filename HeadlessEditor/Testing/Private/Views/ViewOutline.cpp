#include "Views/ViewOutline.h"

#include "HeadlessMenus.h"
#include "HeadlessTextures.h"
#include "Input/HittestGrid.h"
#include "Layout/Geometry.h"
#include "Layout/SlateRect.h"
#include "Misc/Paths.h"
#include "PrintableText.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"
#include "Types/PaintArgs.h"
#include "WidgetDriver.h"
#include "WidgetRenderer.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/SWidget.h"

#include <algorithm>
#include <cmath>

namespace
{
	/** Panels that only arrange their children. */
	const TCHAR* const LayoutTypes[] = {TEXT("SBox"), TEXT("SVerticalBox"), TEXT("SHorizontalBox"), TEXT("SOverlay"), TEXT("SBorder"), TEXT("SScrollPanel"), TEXT("SSpacer"), TEXT("SWrapBox"), TEXT("SMenuAnchor")};

	/** What a user reads or operates as one thing. */
	const TCHAR* const ControlTypes[] = {TEXT("STextBlock"), TEXT("SEditableText"), TEXT("SEditableTextBox"), TEXT("SButton"), TEXT("SCheckBox"), TEXT("SComboBox"), TEXT("SComboButton"), TEXT("SScrollBar"), TEXT("SImage")};

	/** Whether the widget is of one of the types; a template's name matches all its instances. */
	template <int32 Count>
	bool IsOneOf(const SWidget& Widget, const TCHAR* const (&Types)[Count])
	{
		const FString Type = Widget.GetTypeAsString();
		for (const TCHAR* const Candidate : Types)
		{
			if (Type.Equals(Candidate) || Type.StartsWith(FString(Candidate) + TEXT("<"), ESearchCase::CaseSensitive))
			{
				return true;
			}
		}
		return false;
	}

	/** What an image paints by itself: how opaque, and from which picture file. */
	struct FPaintedImage
	{
		float Opacity = 0.0f;
		FString File;
	};

	/**
	 * Paints the image by itself where the layout put it, so that what is read is its own draw element:
	 * images often lie on top of one another.
	 */
	FPaintedImage PaintImage(const SWidget& Image)
	{
		FSlateWindowElementList Elements(nullptr);
		FHittestGrid HittestGrid;
		const FGeometry& Geometry = Image.GetPaintSpaceGeometry();
		Image.Paint(FPaintArgs(nullptr, HittestGrid, FVector2D(0.0, 0.0), 0.0, 0.0f), Geometry, Geometry.GetLayoutBoundingRect(), Elements, 0, FWidgetStyle(), true);
		FPaintedImage Painted;
		for (const FSlateDrawElement& Element : Elements.GetUncachedDrawElements())
		{
			const FSlateBoxPayload& Payload = Element.GetDataPayload<FSlateBoxPayload>();
			const FSlateShaderResourceProxy* Proxy = Payload.GetResourceProxy();
			Painted.Opacity = std::max(Painted.Opacity, Payload.GetTint().A);
			if (Proxy && Proxy->Resource)
			{
				Painted.File = FPaths::GetCleanFilename(static_cast<FHeadlessTexture*>(Proxy->Resource)->GetPath());
			}
		}
		return Painted;
	}

	class FOutlineWriter
	{
	public:
		void Describe(const TSharedRef<SWidget>& Widget, int32 Depth)
		{
			const bool bShown = Widget->GetVisibility().IsVisible();
			if (bShown && IsOneOf(*Widget, LayoutTypes))
			{
				DescribeChildren(Widget, Depth);
				return;
			}
			const bool bImage = Widget->GetTypeAsString().Equals(TEXT("SImage"));
			const FPaintedImage Image = bImage && bShown ? PaintImage(*Widget) : FPaintedImage();
			if (bImage && bShown && Image.Opacity <= 0.0f)
			{
				// Nothing of it can be seen, as a scroll box's shadow before it scrolls.
				return;
			}
			FString Line = FString::ChrN(Depth * 2, u' ') + Widget->GetTypeAsString() + DescribeContent(Widget, Image) + DescribeStates(*Widget);
			if (bShown)
			{
				Line += DescribePlace(*Widget);
			}
			Out += Line + TEXT("\n");
			if (bShown && !IsOneOf(*Widget, ControlTypes))
			{
				DescribeChildren(Widget, Depth + 1);
				// Drop-downs drawn over the tree, where the editor opens them in windows of their own.
				for (const TSharedRef<SWidget>& Window : UE::Headless::GetDrawnPopupWindows(Widget))
				{
					Describe(Window, Depth + 1);
				}
			}
		}

		FString Out;

	private:
		void DescribeChildren(const TSharedRef<SWidget>& Widget, int32 Depth)
		{
			for (const TSharedRef<SWidget>& Child : FWidgetDriver::GetChildWidgets(Widget))
			{
				Describe(Child, Depth);
			}
		}

		/** What the widget shows: its text or its tab's label, a check box's state, an image's file. */
		static FString DescribeContent(const TSharedRef<SWidget>& Widget, const FPaintedImage& Image)
		{
			FString Content;
			if (Widget->GetTypeAsString().Equals(TEXT("SDockTab")))
			{
				const FString Label = StaticCastSharedRef<SDockTab>(Widget)->GetTabLabel().ToString();
				Content += Label.IsEmpty() ? FString() : Quote(Label);
			}
			else if (IsOneOf(*Widget, ControlTypes))
			{
				const TOptional<FString> Text = FWidgetDriver::GetDisplayedText(Widget);
				if (Text.IsSet())
				{
					Content += Quote(Text.GetValue());
				}
			}
			if (const TSharedPtr<SCheckBox> CheckBox = FindCheckBox(Widget))
			{
				Content += DescribeCheckState(CheckBox->GetCheckedState());
			}
			if (!Image.File.IsEmpty())
			{
				Content += TEXT(" ") + FPrintableText::Escape(Image.File);
			}
			return Content;
		}

		/** The check box whose state the widget shows: its own, or a button's shown box (a menu's toggle entry). */
		static TSharedPtr<SCheckBox> FindCheckBox(const TSharedRef<SWidget>& Widget)
		{
			const FString Type = Widget->GetTypeAsString();
			if (Type.Equals(TEXT("SCheckBox")))
			{
				return StaticCastSharedRef<SCheckBox>(Widget);
			}
			const TSharedPtr<SCheckBox> Inner = Type.Equals(TEXT("SButton")) ? FWidgetDriver::Find<SCheckBox>(Widget, TEXT("SCheckBox")) : nullptr;
			return Inner.IsValid() && FWidgetDriver::IsShown(Inner.ToSharedRef()) ? Inner : nullptr;
		}

		static FString Quote(const FString& Text)
		{
			return TEXT(" \"") + FPrintableText::Escape(Text) + TEXT("\"");
		}

		static FString DescribeCheckState(ECheckBoxState State)
		{
			switch (State)
			{
				case ECheckBoxState::Checked:
					return TEXT(" checked");
				case ECheckBoxState::Unchecked:
					return TEXT(" unchecked");
				default:
					return TEXT(" undetermined");
			}
		}

		static FString DescribeStates(const SWidget& Widget)
		{
			TArray<FString> States;
			const EVisibility Visibility = Widget.GetVisibility();
			if (!Visibility.IsVisible())
			{
				States.Add(Visibility.ToString().ToLower());
			}
			if (!Widget.IsEnabled())
			{
				States.Add(TEXT("disabled"));
			}
			return States.IsEmpty() ? FString() : TEXT(" (") + FString::Join(States, TEXT(", ")) + TEXT(")");
		}

		static FString DescribePlace(const SWidget& Widget)
		{
			const FSlateRect Rect = Widget.GetPaintSpaceGeometry().GetLayoutBoundingRect();
			const auto Round = [](double Value)
			{ return static_cast<int32>(std::lround(Value)); };
			return FString::Printf(TEXT(" at %d,%d %dx%d"), Round(Rect.Left), Round(Rect.Top), Round(Rect.Right - Rect.Left), Round(Rect.Bottom - Rect.Top));
		}
	};
}

FString FViewOutline::Describe(const TSharedRef<SWidget>& Root, FIntPoint WindowSize)
{
	FSlateWindowElementList Elements(nullptr);
	FWidgetRenderer::PaintWidget(Root, FVector2D(WindowSize.X, WindowSize.Y), Elements);
	FOutlineWriter Writer;
	Writer.Describe(Root, 0);
	return Writer.Out;
}
