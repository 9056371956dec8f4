#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Framework/SlateDelegates.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"
#include "Widgets/DeclarativeSyntaxSupport.h"

class SComboButton;

/** A toolbar button with a drop-down menu, made when the menu opens. */
class FToolBarComboButtonBlock : public FMultiBlock
{
public:
	FToolBarComboButtonBlock(const FUIAction& InAction, const FOnGetContent& InMenuContentGenerator, const TAttribute<FText>& InLabel = TAttribute<FText>(), const TAttribute<FText>& InToolTip = TAttribute<FText>(), const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(), bool bInSimpleComboBox = false);

	virtual bool HasIcon() const override;

	void SetLabelVisibility(EVisibility InLabelVisibility) { LabelVisibility = InLabelVisibility; }
	void SetForceSmallIcons(const bool InForceSmallIcons) { bForceSmallIcons = InForceSmallIcons; }
	bool IsSimpleComboBox() const { return bSimpleComboBox; }

private:
	virtual TSharedRef<class IMultiBlockBaseWidget> ConstructWidget() const override;

	// The block's widget reads what it shows from here.
	friend class SToolBarComboButtonBlock;

	FOnGetContent MenuContentGenerator;
	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	TAttribute<FSlateIcon> Icon;
	TOptional<EVisibility> LabelVisibility;
	bool bSimpleComboBox;
	bool bForceSmallIcons;
};

/** The widget of a toolbar combo button: its icon, its label beside or under it, and the drop-down arrow. */
class SLATE_API SToolBarComboButtonBlock : public SMultiBlockBaseWidget
{
public:
	SLATE_BEGIN_ARGS(SToolBarComboButtonBlock)
		: _ForceSmallIcons(false)
		{
		}
		SLATE_ARGUMENT(TOptional<EVisibility>, LabelVisibility)
		SLATE_ATTRIBUTE(FSlateIcon, Icon)
		SLATE_ARGUMENT(bool, ForceSmallIcons)
		SLATE_END_ARGS()

		virtual void BuildMultiBlockWidget(const ISlateStyle* StyleSet, const FName& StyleName) override;

		void Construct(const FArguments& InArgs);

	protected:
		/** Makes the drop-down menu, as the block's generator makes it on every open. */
		TSharedRef<SWidget> OnGetMenuContent();

		bool IsEnabled() const;
		EVisibility GetVisibility() const;

	private:
		const FSlateBrush* GetIconBrush() const;
		FSlateColor GetIconForegroundColor() const;
		FSlateColor OnGetForegroundColor() const;

		TOptional<EVisibility> LabelVisibilityOverride;
		TAttribute<EVisibility> LabelVisibility;
		TAttribute<FSlateIcon> Icon;
		TSharedPtr<SComboButton> ComboButtonWidget;
		FSlateColor OpenForegroundColor;
		bool bForceSmallIcons;
};
