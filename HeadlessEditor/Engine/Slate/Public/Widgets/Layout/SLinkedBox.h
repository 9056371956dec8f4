#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBox.h"

class SLinkedBox;

/** Keeps a group of linked boxes the same size: the largest content of any of them. */
class SLATE_API FLinkedBoxManager : public TSharedFromThis<FLinkedBoxManager>
{
public:
	FLinkedBoxManager();
	~FLinkedBoxManager();

	void RegisterLinkedBox(SLinkedBox* InBox);
	void UnregisterLinkedBox(SLinkedBox* InBox);

	/** The size every box of the group takes. */
	FVector2D GetUniformCellSize() const;

private:
	TArray<SLinkedBox*> Siblings;
};

/** A box as large as the largest content among the boxes linked with it, so that they line up. */
class SLATE_API SLinkedBox : public SBox
{
public:
	SLATE_BEGIN_ARGS(SLinkedBox)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(0.0f)
		, _Content()
		{
			_Visibility = EVisibility::SelfHitTestInvisible;
		}
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_END_ARGS()

		SLinkedBox();
		~SLinkedBox();

		void Construct(const FArguments& InArgs, TSharedRef<FLinkedBoxManager> InManager);

		/** The size of this box's own content with its padding; zero when the content is collapsed. */
		FVector2D GetChildrensDesiredSize() const;

		virtual FVector2D ComputeDesiredSize(float) const override;

	protected:
		friend class FLinkedBoxManager;

		/** Sizes this box's content, which the group may need before the box's own turn. */
		void CustomChildPrepass();

	private:
		TSharedPtr<FLinkedBoxManager> Manager;
};
