#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/IToolTip.h"
#include "Widgets/SCompoundWidget.h"

/** The standard tooltip: a text, or any content, shown when a widget is hovered. */
class SLATE_API SToolTip : public SCompoundWidget, public IToolTip
{
public:
	SLATE_BEGIN_ARGS(SToolTip)
		: _Text()
		, _Content()
		, _Font()
		, _TextMargin(FMargin(11.0f))
		, _IsInteractive(false)
		{
		}
		/** The text displayed in this tool tip */
		SLATE_ATTRIBUTE(FText, Text)
		/** Arbitrary content to be displayed in the tool tip; overrides any text that may be set. */
		SLATE_DEFAULT_SLOT(FArguments, Content)
		/** The font to use for this tool tip */
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		/** Margin between the tool tip border and the text content */
		SLATE_ATTRIBUTE(FMargin, TextMargin)
		/** Whether the tooltip should be considered interactive */
		SLATE_ATTRIBUTE(bool, IsInteractive)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs);

		virtual TSharedRef<SWidget> AsWidget() override { return AsShared(); }
		virtual TSharedRef<SWidget> GetContentWidget() override { return ChildSlot.GetWidget(); }
		virtual void SetContentWidget(const TSharedRef<SWidget>& InContentWidget) override { ChildSlot[InContentWidget]; }
		virtual bool IsEmpty() const override;
		virtual bool IsInteractive() const override { return bIsInteractive.Get(); }
		virtual void OnOpening() override {}
		virtual void OnClosed() override {}

		/** Gets the tooltip's text, when it shows a text. */
		const FText& GetTextTooltip() const { return TextContent.Get(); }

	private:
		TAttribute<FText> TextContent;
		TAttribute<bool> bIsInteractive;
		bool bHasCustomContent = false;
};
