#include "Support/PaintedScene.h"

#include "Framework/Application/SlateApplication.h"
#include "Rendering/DrawElements.h"
#include "Rendering/SlateRenderer.h"
#include "WidgetRenderer.h"

#include <cmath>

namespace
{
	FSlateRect GetElementRect(const FSlateDrawElement& Element)
	{
		return FSlateRect(Element.GetPosition(), Element.GetPosition() + Element.GetLocalSize() * static_cast<double>(Element.GetScale()));
	}
}

FPaintedScene::FPaintedScene(const TSharedRef<SWidget>& Root, const FVector2D& Size)
{
	FSlateWindowElementList Elements(nullptr);
	FWidgetRenderer::PaintWidget(Root, Size, Elements);
	for (const FSlateDrawElement& Element : Elements.GetUncachedDrawElements())
	{
		if (Element.GetElementType() == EElementType::ET_Text)
		{
			// A drop shadow is the same text drawn just before it, a unit or two away: one line to a reader.
			const FSlateTextPayload& Payload = Element.GetDataPayload<FSlateTextPayload>();
			const FLine Line{FString(Payload.GetText()), Payload.GetFontInfo(), GetElementRect(Element)};
			const bool bShadowed = Lines.Num() > 0 && Lines.Last().Text.Equals(Line.Text) && std::abs(Lines.Last().Rect.Left - Line.Rect.Left) <= 2.0f && std::abs(Lines.Last().Rect.Top - Line.Rect.Top) <= 2.0f;
			if (bShadowed)
			{
				Lines.Last() = Line;
			}
			else
			{
				Lines.Add(Line);
			}
		}
		else if (Element.GetElementType() == EElementType::ET_Box)
		{
			if (const FSlateShaderResourceProxy* Proxy = Element.GetDataPayload<FSlateBoxPayload>().GetResourceProxy())
			{
				Images.Add({Proxy, GetElementRect(Element)});
			}
		}
	}
}

TArray<FString> FPaintedScene::GetTextsTopToBottom() const
{
	TArray<FLine> Sorted = Lines;
	Sorted.StableSort([](const FLine& A, const FLine& B)
		{ return A.Rect.Top < B.Rect.Top || (A.Rect.Top == B.Rect.Top && A.Rect.Left < B.Rect.Left); });
	TArray<FString> Texts;
	for (const FLine& Line : Sorted)
	{
		Texts.Add(Line.Text);
	}
	return Texts;
}

const FPaintedScene::FLine* FPaintedScene::FindLine(const FString& Text) const
{
	return Lines.FindByPredicate([&Text](const FLine& Line)
		{ return Line.Text.Equals(Text); });
}

TArray<FSlateRect> FPaintedScene::FindImage(const FSlateBrush& Brush) const
{
	// A brush's file is loaded once, so every drawing of it shares one resource.
	const FSlateShaderResourceProxy* Expected = FSlateApplication::Get().GetRenderer()->GetResourceHandle(Brush, FVector2f(1.0f, 1.0f), 1.0f).GetResourceProxy();
	TArray<FSlateRect> Found;
	if (Expected)
	{
		for (const TPair<const FSlateShaderResourceProxy*, FSlateRect>& Image : Images)
		{
			if (Image.Key == Expected)
			{
				Found.Add(Image.Value);
			}
		}
	}
	return Found;
}

void PrintTo(const TArray<FString>& Texts, std::ostream* Stream)
{
	*Stream << "[";
	for (int32 Index = 0; Index < Texts.Num(); ++Index)
	{
		*Stream << (Index > 0 ? ", \"" : "\"") << TCHAR_TO_UTF8(*Texts[Index]) << "\"";
	}
	*Stream << "]";
}
