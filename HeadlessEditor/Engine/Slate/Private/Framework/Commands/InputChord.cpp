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
