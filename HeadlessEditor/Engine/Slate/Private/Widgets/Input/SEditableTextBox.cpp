#include "Widgets/Input/SEditableTextBox.h"

#include "Framework/Application/SlateApplication.h"

SEditableTextBox::SEditableTextBox()
	: bIsEditing(false)
	, bAllTextSelected(false)
{
}

void SEditableTextBox::Construct(const FArguments& InArgs)
{
	BoundText = InArgs._Text;
	EditedText = BoundText.Get(FText::GetEmpty());
	HintText = InArgs._HintText;
	Font = InArgs._Font;
	ReadOnly = InArgs._IsReadOnly;
	SelectAllTextWhenFocused = InArgs._SelectAllTextWhenFocused;
	RevertTextOnEscape = InArgs._RevertTextOnEscape;
	ClearKeyboardFocusOnCommit = InArgs._ClearKeyboardFocusOnCommit;
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

FReply SEditableTextBox::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	bAllTextSelected = SelectAllTextWhenFocused.Get(false);
	return FReply::Handled();
}

void SEditableTextBox::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	bAllTextSelected = false;
	// Leaving the box commits what was typed; the cause says how the user left it.
	if (bIsEditing)
	{
		switch (InFocusEvent.GetCause())
		{
			case EFocusCause::Mouse:
			case EFocusCause::Navigation:
				HandleCommit(ETextCommit::OnUserMovedFocus);
				break;
			case EFocusCause::Cleared:
				HandleCommit(ETextCommit::OnCleared);
				break;
			default:
				HandleCommit(ETextCommit::Default);
				break;
		}
	}
}

FReply SEditableTextBox::OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent)
{
	const TCHAR Character = InCharacterEvent.GetCharacter();
	// Control characters arrive as key presses; only printable ones are typed.
	if (IsReadOnly() || Character < TEXT(' ') || Character == 127)
	{
		return FReply::Unhandled();
	}
	const FString Typed = FString::Chr(Character);
	HandleUserEdit(FText::FromString(bAllTextSelected ? Typed : GetText().ToString() + Typed));
	bAllTextSelected = false;
	return FReply::Handled();
}

FReply SEditableTextBox::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (Key == EKeys::A && InKeyEvent.IsControlDown())
	{
		bAllTextSelected = true;
		return FReply::Handled();
	}
	// Enter commits the text and is consumed by the box, as the engine's single-line text box does.
	if (Key == EKeys::Enter && !IsReadOnly())
	{
		if (!InKeyEvent.IsRepeat())
		{
			HandleCommit(ETextCommit::OnEnter);
			if (ClearKeyboardFocusOnCommit.Get(true) && HasKeyboardFocus())
			{
				FSlateApplication::Get().ClearKeyboardFocus(EFocusCause::Cleared);
			}
		}
		return FReply::Handled();
	}
	if (Key == EKeys::Escape && RevertTextOnEscape.Get(false) && bIsEditing)
	{
		HandleUserEdit(TextAtEditStart);
		HandleCommit(ETextCommit::OnCleared);
		return FReply::Handled();
	}
	if (Key == EKeys::BackSpace && !IsReadOnly())
	{
		const FString Current = GetText().ToString();
		if (bAllTextSelected)
		{
			HandleUserEdit(FText::GetEmpty());
		}
		else if (!Current.IsEmpty())
		{
			HandleUserEdit(FText::FromString(Current.Left(Current.Len() - 1)));
		}
		bAllTextSelected = false;
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
