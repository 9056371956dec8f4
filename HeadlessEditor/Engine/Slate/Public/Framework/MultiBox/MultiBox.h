#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class FLinkedBoxManager;
class FMultiBox;
class IMultiBlockBaseWidget;
class ISlateStyle;
class SHorizontalBox;
class SMultiBoxWidget;
class SVerticalBox;

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

	/** Whether the block shows an icon; a section whose blocks have icons keeps a column for them. */
	virtual bool HasIcon() const { return false; }

	void SetTutorialHighlightName(FName InTutorialName) { TutorialHighlightName = InTutorialName; }
	FName GetTutorialHighlightName() const { return TutorialHighlightName; }

	/** The style this block is drawn with in place of its multi-box's. */
	void SetStyleNameOverride(FName InStyleNameOverride) { StyleNameOverride = InStyleNameOverride; }
	FName GetStyleNameOverride() const { return StyleNameOverride; }

	bool IsSeparator() const { return Type == EMultiBlockType::Separator; }

protected:
	/** Makes the widget type that shows this kind of block. */
	virtual TSharedRef<IMultiBlockBaseWidget> ConstructWidget() const = 0;

private:
	// The multi-box widget makes the widgets of its blocks.
	friend class SMultiBoxWidget;

	/** Makes the block's widget for its multi-box widget and builds it in the block's style. */
	TSharedRef<IMultiBlockBaseWidget> MakeWidget(TSharedRef<SMultiBoxWidget> InOwnerMultiBoxWidget, EMultiBlockLocation::Type InLocation, bool bSectionContainsIcons, TSharedPtr<SWidget> OptionsBlockWidget) const;

	TSharedPtr<const FUICommandInfo> CommandInfo;
	TSharedPtr<const FUICommandList> ActionList;
	FUIAction Action;
	FName ExtensionHook;
	EMultiBlockType Type;
	FName TutorialHighlightName;
	FName StyleNameOverride;
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
	const ISlateStyle* StyleSet;
	FName StyleName;
	EMultiBoxType Type;
	FMultiBoxCustomization Customization;
	bool bShouldCloseWindowAfterMenuSelection;
};

/** The widget of one block, as its multi-box widget places it. */
class SLATE_API IMultiBlockBaseWidget
{
public:
	virtual ~IMultiBlockBaseWidget() {}

	virtual TSharedRef<SWidget> AsWidget() = 0;
	virtual TSharedRef<const SWidget> AsWidget() const = 0;
	virtual void SetOwnerMultiBoxWidget(TSharedRef<SMultiBoxWidget> InOwnerMultiBoxWidget) = 0;
	virtual void SetMultiBlock(TSharedRef<const FMultiBlock> InMultiBlock) = 0;
	virtual void SetOptionsBlockWidget(TSharedPtr<SWidget> InOptionsBlockWidget) = 0;
	/** Builds the block's widgets in the style's look. */
	virtual void BuildMultiBlockWidget(const ISlateStyle* StyleSet, const FName& StyleName) = 0;
	virtual void SetMultiBlockLocation(EMultiBlockLocation::Type InLocation, bool bSectionContainsIcons) = 0;
	virtual EMultiBlockLocation::Type GetMultiBlockLocation() = 0;
	virtual bool IsInEditMode() const = 0;
};

/** The base of the block widgets: knows its multi-box widget, its block and where it sits. */
class SLATE_API SMultiBlockBaseWidget : public IMultiBlockBaseWidget, public SCompoundWidget
{
public:
	TSharedPtr<const FMultiBlock> GetBlock() const { return MultiBlock; }

	virtual TSharedRef<SWidget> AsWidget() override;
	virtual TSharedRef<const SWidget> AsWidget() const override;
	virtual void SetOwnerMultiBoxWidget(TSharedRef<SMultiBoxWidget> InOwnerMultiBoxWidget) override;
	virtual void SetMultiBlock(TSharedRef<const FMultiBlock> InMultiBlock) override;
	virtual void SetOptionsBlockWidget(TSharedPtr<SWidget> InOptionsBlock) override;
	virtual void SetMultiBlockLocation(EMultiBlockLocation::Type InLocation, bool bInSectionContainsIcons) override;
	virtual EMultiBlockLocation::Type GetMultiBlockLocation() override;
	virtual bool IsInEditMode() const override;

protected:
	TWeakPtr<SMultiBoxWidget> OwnerMultiBoxWidget;
	TSharedPtr<const FMultiBlock> MultiBlock;
	TSharedPtr<SWidget> OptionsBlockWidget;
	EMultiBlockLocation::Type Location = EMultiBlockLocation::None;
	bool bSectionContainsIcons = false;
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

		/** Lines up the check box columns of the menu's entries. */
		TSharedRef<FLinkedBoxManager> GetLinkedBoxManager() { return LinkedBoxManager.ToSharedRef(); }

		const ISlateStyle* GetStyleSet() const { return MultiBox->GetStyleSet(); }
		const FName& GetStyleName() const { return MultiBox->GetStyleName(); }

	private:
		/** Adds a block's widget to the box, as a row of a menu or a cell of a toolbar. */
		void AddBlockWidget(const FMultiBlock& Block, TSharedPtr<SHorizontalBox> HorizontalBox, TSharedPtr<SVerticalBox> VerticalBox, EMultiBlockLocation::Type InLocation, bool bSectionContainsIcons);

		TSharedPtr<FMultiBox> MultiBox;
		TSharedPtr<FLinkedBoxManager> LinkedBoxManager;
		TAttribute<float> MaxHeight;
		bool bSearchable = false;
};
