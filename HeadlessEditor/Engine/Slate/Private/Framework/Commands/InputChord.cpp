#include "Framework/Commands/InputChord.h"

FInputChord::FInputChord()
	: FInputChord(EKeys::Invalid)
{
}

FInputChord::FInputChord(const FKey InKey, bool bInShift, bool bInCtrl, bool bInAlt, bool bInCmd)
	: Key(InKey)
	, bShift(bInShift)
	, bCtrl(bInCtrl)
	, bAlt(bInAlt)
	, bCmd(bInCmd)
{
}

bool FInputChord::IsValidChord() const
{
	return !(Key == EKeys::Invalid);
}

bool FInputChord::operator==(const FInputChord& Other) const
{
	return Key == Other.Key && bShift == Other.bShift && bCtrl == Other.bCtrl && bAlt == Other.bAlt && bCmd == Other.bCmd;
}

FText FInputChord::GetInputText(const bool bLongDisplayName) const
{
	if (!IsValidChord())
	{
		return FText::GetEmpty();
	}
	// The modifiers in the editor's order, each followed by a plus, then the key.
	FString Text;
	const TPair<bool, const TCHAR*> Modifiers[] = {{bCtrl != 0, TEXT("Ctrl+")}, {bCmd != 0, TEXT("Cmd+")}, {bAlt != 0, TEXT("Alt+")}, {bShift != 0, TEXT("Shift+")}};
	for (const TPair<bool, const TCHAR*>& Modifier : Modifiers)
	{
		if (Modifier.Key)
		{
			Text += Modifier.Value;
		}
	}
	return FText::FromString(Text + Key.GetDisplayName(bLongDisplayName).ToString());
}
