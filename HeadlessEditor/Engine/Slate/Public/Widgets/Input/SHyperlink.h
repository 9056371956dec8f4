#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Text/STextBlock.h"

/** Text that acts as a link: a button drawn as underlined text. */
class SHyperlink : public SButton
{
public:
	SLATE_BEGIN_ARGS(SHyperlink)
		: _Text()
		, _Style(&FCoreStyle::Get().GetWidgetStyle<FHyperlinkStyle>("Hyperlink"))
		, _TextStyle(nullptr)
		, _UnderlineStyle(nullptr)
		, _Padding()
		, _OnNavigate()
		{
		}
		SLATE_ATTRIBUTE(FText, Text)
		SLATE_STYLE_ARGUMENT(FHyperlinkStyle, Style)
		SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
		SLATE_STYLE_ARGUMENT(FButtonStyle, UnderlineStyle)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_EVENT(FSimpleDelegate, OnNavigate)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs)
		{
			this->OnNavigate = InArgs._OnNavigate;

			check(InArgs._Style);
			const FButtonStyle* UnderlineStyle = InArgs._UnderlineStyle != nullptr ? InArgs._UnderlineStyle : &InArgs._Style->UnderlineStyle;
			const FTextBlockStyle* TextStyle = InArgs._TextStyle != nullptr ? InArgs._TextStyle : &InArgs._Style->TextStyle;
			TAttribute<FMargin> Padding = InArgs._Padding.IsSet() ? InArgs._Padding : InArgs._Style->Padding;

			SButton::Construct(SButton::FArguments()
								   .ContentPadding(Padding)
								   .ButtonStyle(UnderlineStyle)
								   .OnClicked(this, &SHyperlink::Hyperlink_OnClicked)
								   .ForegroundColor(FSlateColor::UseForeground())[SNew(STextBlock).TextStyle(TextStyle).Text(InArgs._Text)]);
		}

	protected:
		FReply Hyperlink_OnClicked()
		{
			OnNavigate.ExecuteIfBound();
			return FReply::Handled();
		}

		FSimpleDelegate OnNavigate;
};
