// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IPropertyTypeCustomization.h"
#include "Types/SlateEnums.h"

class IPropertyHandle;
class SWidget;
template <typename OptionType>
class SComboBox;

DECLARE_MULTICAST_DELEGATE_OneParam(FOnCurrentSenderLost, bool);

/**
 * The options of one kind of sender picker, shared by every picker of that kind: the
 * first-available entry, then the live senders, and a stored sender that has gone.
 */
class FActiveSenderNameList
{
public:
	FActiveSenderNameList();
	virtual ~FActiveSenderNameList() = default;

	/**
	 * Rebuilds the options from the live senders, tells every picker whether CurrentName has gone,
	 * and returns a copy of the options (sharing their strings).
	 */
	TArray<TSharedPtr<FString>> UpdateSenderNameOptions(FString CurrentName, bool bUseFirstAvailableSender);

	FOnCurrentSenderLost OnCurrentSenderLost;
	/** The pickers' options source. Once filled, entry 0 is the first-available entry. */
	TArray<TSharedPtr<FString>> SenderNameOptions;
	FString UseFirstAvailableSenderOption;

protected:
	/** The names of the live senders, in the runtime's order. */
	virtual TArray<FString> GetLiveSenderNames() const = 0;
};

/**
 * Shows a receiver struct with a drop-down of the live senders in place of its "Name" row. The
 * Spout and NDI pickers differ only in their list and in the struct's last row.
 */
class FActiveSenderNamesCustomisation : public IPropertyTypeCustomization
{
public:
	virtual ~FActiveSenderNamesCustomisation() override;

	virtual void CustomizeHeader(TSharedRef<IPropertyHandle> StructPropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils& Utils) override;
	virtual void CustomizeChildren(TSharedRef<IPropertyHandle> StructPropertyHandle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& Utils) override;

protected:
	FActiveSenderNamesCustomisation(FActiveSenderNameList& InNameList, FName InKindPropertyName);

private:
	/** The option that stands for the struct's current value. */
	TSharedPtr<FString> GetCurrentItem() const;
	/** The closed combo box's text; evaluating it refreshes the options and the lost flag. */
	FText GetCurrentItemLabel() const;
	void SetSelectedSenderName(FString NewValue);
	void OnSenderNameSelectionChanged(TSharedPtr<FString> Item, ESelectInfo::Type SelectInfo);
	TSharedRef<SWidget> MakeSenderNameWidget(TSharedPtr<FString> Item);
	void OnCurrentSenderLostChanged(bool bLost);

	FActiveSenderNameList& NameList;
	/** The struct's last row, which only this kind of receiver has. */
	FName KindPropertyName;
	TSharedPtr<IPropertyHandle> NameProperty;
	TSharedPtr<IPropertyHandle> UseFirstAvailableSenderProperty;
	TSharedPtr<SComboBox<TSharedPtr<FString>>> SenderNameComboBox;
	bool bCurrentSenderLost;
};
