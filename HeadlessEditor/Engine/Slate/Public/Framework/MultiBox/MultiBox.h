#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class FMultiBox;
class ISlateStyle;
class SMultiBoxWidget;

/** One element of a menu or toolbar: an entry, a heading, a separator. */
class SLATE_API FMultiBlock : public TSharedFromThis<FMultiBlock>
{
public:
	FMultiBlock(const TSharedPtr<const FUICommandInfo> InCommand, TSharedPtr<const FUICommandList> InCommandList, FName InExtensionHook = NAME_None, EMultiBlockType InType = EMultiBlockType::None, bool bInIsPartOfHeading = false);
	FMultiBlock(const FUIAction& InAction, FName InExtensionHook = NAME_None, EMultiBlockType InType = EMultiBlockType::None, bool bInIsPartOfHeading = false);
	virtual ~FMultiBlock() {}

	const FUIAction& GetDirectActions() const { return Action; }
	TSharedPtr<const FUICommandInfo> GetAction() const { return CommandInfo; }
	TSharedPtr<const FUICommandList> GetActionList() const { return ActionList; }
	FName GetExtensionHook() const { return ExtensionHook; }
	const EMultiBlockType GetType() const { return Type; }
	bool IsPartOfHeading() const { return bIsPartOfHeading; }

	void SetTutorialHighlightName(FName InTutorialName) { TutorialHighlightName = InTutorialName; }
	FName GetTutorialHighlightName() const { return TutorialHighlightName; }

private:
	TSharedPtr<const FUICommandInfo> CommandInfo;
	TSharedPtr<const FUICommandList> ActionList;
	FUIAction Action;
	FName ExtensionHook;
	EMultiBlockType Type;
	FName TutorialHighlightName;
	bool bIsPartOfHeading;
};

/** A menu or toolbar as data: its blocks in order. */
class SLATE_API FMultiBox : public TSharedFromThis<FMultiBox>
{
public:
	DECLARE_DELEGATE_TwoParams(FOnMakeMultiBoxBuilderOverride, const TSharedRef<FMultiBox>&, const TSharedRef<SMultiBoxWidget>&);

	static TSharedRef<FMultiBox> Create(const EMultiBoxType InType, FMultiBoxCustomization InCustomization, const bool bInShouldCloseWindowAfterMenuSelection);

	const EMultiBoxType GetType() const { return Type; }

	/** The name the user's customization of this box is saved under; NAME_None when it cannot be customized. */
	FName GetCustomizationName() const;
	bool ShouldCloseWindowAfterMenuSelection() const { return bShouldCloseWindowAfterMenuSelection; }

	void AddMultiBlock(TSharedRef<const FMultiBlock> InBlock);
	const TArray<TSharedRef<const FMultiBlock>>& GetBlocks() const { return Blocks; }

	void SetStyle(const ISlateStyle* InStyle, const FName& InStyleName);
	const ISlateStyle* GetStyleSet() const { return StyleSet; }
	const FName& GetStyleName() const { return StyleName; }

	/** Makes the widget that shows this menu; a set height limit caps the menu's height. */
	TSharedRef<class SMultiBoxWidget> MakeWidget(bool bSearchable, FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride = nullptr, TAttribute<float> InMaxHeight = TAttribute<float>());

private:
	FMultiBox(const EMultiBoxType InType, FMultiBoxCustomization InCustomization, const bool bInShouldCloseWindowAfterMenuSelection);

	TArray<TSharedRef<const FMultiBlock>> Blocks;
	const ISlateStyle* StyleSet = nullptr;
	FName StyleName;
	EMultiBoxType Type;
	FMultiBoxCustomization Customization;
	bool bShouldCloseWindowAfterMenuSelection;
};

/** The widget of a menu or toolbar. */
class SLATE_API SMultiBoxWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMultiBoxWidget)
		: _ContentScale(FVector2D(1, 1))
		{
		}
		SLATE_ATTRIBUTE(FVector2D, ContentScale)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs);

		void SetMultiBox(TSharedRef<FMultiBox> InMultiBox) { MultiBox = InMultiBox; }
		TSharedRef<const FMultiBox> GetMultiBox() const { return MultiBox.ToSharedRef(); }

		void SetSearchable(bool bInSearchable) { bSearchable = bInSearchable; }
		bool GetSearchable() const { return bSearchable; }

		void SetMaxHeight(TAttribute<float> InMaxHeight) { MaxHeight = InMaxHeight; }

		/** Builds this MultiBox widget up from the MultiBox associated with it */
		void BuildMultiBoxWidget();

	private:
		TSharedPtr<FMultiBox> MultiBox;
		TAttribute<float> MaxHeight;
		bool bSearchable = false;
};
