#include "Widgets/Input/SEditableTextBox.h"

SEditableTextBox::SEditableTextBox()
	: bIsEditing(false)
{
}

void SEditableTextBox::Construct(const FArguments& InArgs)
{
	BoundText = InArgs._Text;
	EditedText = BoundText.Get(FText::GetEmpty());
	HintText = InArgs._HintText;
	Font = InArgs._Font;
	IsReadOnly = InArgs._IsReadOnly;
	RevertTextOnEscape = InArgs._RevertTextOnEscape;
	OnTextChanged = InArgs._OnTextChanged;
	OnTextCommitted = InArgs._OnTextCommitted;

	SBorder::Construct(SBorder::FArguments().Padding(FMargin(4.0f, 2.0f)));
}

FText SEditableTextBox::GetText() const
{
	if (BoundText.IsBound() && !bIsEditing)
	{
		return BoundText.Get();
	}
	return EditedText;
}

void SEditableTextBox::SetText(const TAttribute<FText>& InNewText)
{
	BoundText = InNewText;
	EditedText = BoundText.Get(FText::GetEmpty());
	bIsEditing = false;
}

FReply SEditableTextBox::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const bool bReadOnly = IsReadOnly.Get(false);
	// Enter commits the text and is consumed by the box, as the engine's single-line text box does.
	if (InKeyEvent.GetKey() == EKeys::Enter && !bReadOnly)
	{
		if (!InKeyEvent.IsRepeat())
		{
			HandleCommit(ETextCommit::OnEnter);
		}
		return FReply::Handled();
	}
	if (InKeyEvent.GetKey() == EKeys::Escape && RevertTextOnEscape.Get(false) && bIsEditing)
	{
		HandleUserEdit(TextAtEditStart);
		HandleCommit(ETextCommit::OnCleared);
		return FReply::Handled();
	}
	if (InKeyEvent.GetKey() == EKeys::BackSpace && !bReadOnly)
	{
		const FString Current = GetText().ToString();
		if (!Current.IsEmpty())
		{
			HandleUserEdit(FText::FromString(Current.Left(Current.Len() - 1)));
		}
		return FReply::Handled();
	}
	return SBorder::OnKeyDown(MyGeometry, InKeyEvent);
}

void SEditableTextBox::HandleUserEdit(const FText& InNewText)
{
	if (!bIsEditing)
	{
		TextAtEditStart = GetText();
		bIsEditing = true;
	}
	EditedText = InNewText;
	// A getter binding is expected to follow through OnTextChanged; a plain value keeps what was typed.
	if (!BoundText.IsBound())
	{
		BoundText.Set(EditedText);
	}
	OnTextChanged.ExecuteIfBound(EditedText);
}

void SEditableTextBox::HandleCommit(ETextCommit::Type CommitType)
{
	const FText CommittedText = GetText();
	OnTextCommitted.ExecuteIfBound(CommittedText, CommitType);
	bIsEditing = false;
	if (BoundText.IsBound())
	{
		EditedText = BoundText.Get();
	}
}
