#pragma once

#include "Containers/Set.h"
#include "CoreMinimal.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "IDetailChildrenBuilder.h"
#include "IPropertyTypeCustomization.h"
#include "Misc/Crc.h"
#include "PropertyHandle.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "ActiveSenderNamesCustomisation"

DECLARE_MULTICAST_DELEGATE_OneParam(FOnCurrentSenderLost, bool);

/** Sender names compare exactly: letter case makes a different sender. */
struct FCaseSensitiveSenderNameKeyFuncs : BaseKeyFuncs<FString, FString>
{
	static const FString& GetSetKey(const FString& Element) { return Element; }
	static bool Matches(const FString& A, const FString& B) { return A.Equals(B, ESearchCase::CaseSensitive); }
	static uint32 GetKeyHash(const FString& Key) { return FCrc::StrCrc32(*Key); }
};

/**
 * The option list of one kind of sender picker, shared by every picker of that kind in the
 * process. SenderSource supplies the live sender names (static GetLiveSenderNames()).
 */
template <typename SenderSource>
class TActiveSenderNameList
{
public:
	static TActiveSenderNameList& Get()
	{
		static TSharedRef<TActiveSenderNameList> Instance = MakeShared<TActiveSenderNameList>();
		return *Instance;
	}

	/**
	 * Rebuilds the options from the live senders: the first-available entry, each live name once,
	 * and the stored name last when its sender has gone. Sets of names keep this linear, as the
	 * label runs it every frame.
	 */
	TArray<TSharedPtr<FString>> UpdateSenderNameOptions(FString CurrentName, bool bUseFirstAvailableSender)
	{
		const TArray<FString> LiveNames = SenderSource::GetLiveSenderNames();
		if (SenderNameOptions.IsEmpty())
		{
			SenderNameOptions.Add(MakeShared<FString>(UseFirstAvailableSenderOption));
		}

		TSet<FString, FCaseSensitiveSenderNameKeyFuncs> Listed;
		Listed.Reserve(SenderNameOptions.Num() + LiveNames.Num());
		for (int32 Index = 1; Index < SenderNameOptions.Num(); ++Index)
		{
			Listed.Add(*SenderNameOptions[Index]);
		}
		TSet<FString, FCaseSensitiveSenderNameKeyFuncs> Live;
		Live.Reserve(LiveNames.Num());
		bool bFoundCurrent = false;
		for (const FString& LiveName : LiveNames)
		{
			bFoundCurrent |= LiveName.Equals(CurrentName);
			Live.Add(LiveName);
			if (!Listed.Contains(LiveName))
			{
				Listed.Add(LiveName);
				SenderNameOptions.Add(MakeShared<FString>(LiveName));
			}
		}

		OnCurrentSenderLost.Broadcast(!bUseFirstAvailableSender && !bFoundCurrent);

		bool bAddCurrent = true;
		TArray<TSharedPtr<FString>> Kept;
		Kept.Reserve(SenderNameOptions.Num() + 1);
		Kept.Add(SenderNameOptions[0]);
		for (int32 Index = 1; Index < SenderNameOptions.Num(); ++Index)
		{
			const TSharedPtr<FString>& Option = SenderNameOptions[Index];
			if (Option->Equals(CurrentName))
			{
				bAddCurrent = false;
				Kept.Add(Option);
			}
			else if (Live.Contains(*Option))
			{
				Kept.Add(Option);
			}
		}
		SenderNameOptions = MoveTemp(Kept);

		// A stored sender that has gone stays selectable.
		if (bAddCurrent && !CurrentName.Equals(UseFirstAvailableSenderOption))
		{
			SenderNameOptions.Add(MakeShared<FString>(CurrentName));
		}
		return SenderNameOptions;
	}

	FOnCurrentSenderLost OnCurrentSenderLost;
	TArray<TSharedPtr<FString>> SenderNameOptions;
	FString UseFirstAvailableSenderOption = TEXT("Use first available sender");
};

/**
 * Shows a receiver struct with a drop-down of the live senders in place of its "Name" row. The
 * kind's last row is SenderSource::KindPropertyName.
 */
template <typename SenderSource>
class TActiveSenderNamesCustomisation : public IPropertyTypeCustomization
{
public:
	typedef TActiveSenderNameList<SenderSource> FNameList;

	TActiveSenderNamesCustomisation() { FNameList::Get().OnCurrentSenderLost.AddRaw(this, &TActiveSenderNamesCustomisation::OnCurrentSenderLostChanged); }
	virtual ~TActiveSenderNamesCustomisation() override { FNameList::Get().OnCurrentSenderLost.RemoveAll(this); }

	virtual void CustomizeHeader(TSharedRef<IPropertyHandle> StructPropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils& Utils) override
	{
		uint32 NumChildren = 0;
		StructPropertyHandle->GetNumChildren(NumChildren);

		// clang-format off
		HeaderRow.NameContent()
		[
			StructPropertyHandle->CreatePropertyNameWidget()
		]
		.ValueContent()
		.MinDesiredWidth(130.0f)
		.MaxDesiredWidth(500.0f)
		[
			SNew(SOverlay)
			+ SOverlay::Slot()
			.Padding(FMargin(0.0f, 4.0f, 5.0f, 0.0f))
			[
				SNew(STextBlock)
				.Font(IDetailLayoutBuilder::GetDetailFont())
				.Text(FText::Format(NSLOCTEXT("PropertyEditor", "NumStructItems", "{0} members"), FText::AsNumber(NumChildren)))
			]
		];
		// clang-format on
	}

	virtual void CustomizeChildren(TSharedRef<IPropertyHandle> StructPropertyHandle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& Utils) override
	{
		NameProperty = StructPropertyHandle->GetChildHandle(TEXT("Name"));
		FString Name;
		if (NameProperty.IsValid())
		{
			NameProperty->GetValue(Name);
		}
		UseFirstAvailableSenderProperty = StructPropertyHandle->GetChildHandle(TEXT("UseFirstAvailableSender"));
		bool bUseFirstAvailableSender = true;
		if (UseFirstAvailableSenderProperty.IsValid())
		{
			UseFirstAvailableSenderProperty->GetValue(bUseFirstAvailableSender);
		}
		FNameList::Get().UpdateSenderNameOptions(Name, bUseFirstAvailableSender);

		const TSharedPtr<IPropertyHandle> ActiveProperty = StructPropertyHandle->GetChildHandle(TEXT("Active"));
		const TSharedPtr<IPropertyHandle> RenderTargetProperty = StructPropertyHandle->GetChildHandle(TEXT("RenderTarget"));
		const TSharedPtr<IPropertyHandle> KindProperty = StructPropertyHandle->GetChildHandle(SenderSource::KindPropertyName);

		// Building the panel stores the struct's current choice once.
		const TSharedPtr<FString> Item = GetCurrentItem();
		SetSelectedSenderName(*Item);

		ChildBuilder.AddProperty(ActiveProperty.ToSharedRef());

		// clang-format off
		ChildBuilder.AddCustomRow(LOCTEXT("SpoutReceiverName", "Name"))
		.NameContent()
		[
			NameProperty->CreatePropertyNameWidget()
		]
		.ValueContent()
		.MinDesiredWidth(250.0f)
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(0.0f, 2.0f)
			[
				SAssignNew(SenderNameComboBox, SComboBox<TSharedPtr<FString>>)
				.OptionsSource(&FNameList::Get().SenderNameOptions)
				.OnGenerateWidget(this, &TActiveSenderNamesCustomisation::MakeSenderNameWidget)
				.OnSelectionChanged(this, &TActiveSenderNamesCustomisation::OnSenderNameSelectionChanged)
				.InitiallySelectedItem(Item)
				.ContentPadding(2.0f)
				[
					SNew(STextBlock)
					.Text(this, &TActiveSenderNamesCustomisation::GetCurrentItemLabel)
					.Margin(FMargin(2.0f, 0.0f))
					.Font(IDetailLayoutBuilder::GetDetailFont())
					.Justification(ETextJustify::Center)
				]
			]
		];
		// clang-format on

		ChildBuilder.AddProperty(RenderTargetProperty.ToSharedRef());
		ChildBuilder.AddProperty(KindProperty.ToSharedRef());
	}

	/** The option that stands for the struct's current value. */
	TSharedPtr<FString> GetCurrentItem() const
	{
		check(NameProperty.IsValid());
		FString Name;
		NameProperty->GetValue(Name);
		check(UseFirstAvailableSenderProperty.IsValid());
		bool bUseFirstAvailableSender = false;
		UseFirstAvailableSenderProperty->GetValue(bUseFirstAvailableSender);

		const TArray<TSharedPtr<FString>> Options = FNameList::Get().UpdateSenderNameOptions(Name, bUseFirstAvailableSender);
		if (bUseFirstAvailableSender)
		{
			return Options[0];
		}
		for (const TSharedPtr<FString>& Option : Options)
		{
			if (Option->Equals(Name))
			{
				return Option;
			}
		}
		return MakeShared<FString>(TEXT("Error"));
	}

	/** The closed combo box's text; evaluating it refreshes the options and the lost flag. */
	FText GetCurrentItemLabel() const
	{
		const TSharedPtr<FString> Item = GetCurrentItem();
		if (!Item.IsValid())
		{
			return LOCTEXT("Invalid", "Invalid");
		}
		return FText::FromString(bCurrentSenderLost ? *Item + TEXT(" [lost]") : *Item);
	}

	void SetSelectedSenderName(FString NewValue)
	{
		check(NameProperty.IsValid());
		FString CurrentName;
		NameProperty->GetValue(CurrentName);
		const FString& UseFirstAvailableSenderOption = FNameList::Get().UseFirstAvailableSenderOption;
		if (NewValue.Equals(UseFirstAvailableSenderOption))
		{
			UseFirstAvailableSenderProperty->SetValue(true);
			NameProperty->SetValue(UseFirstAvailableSenderOption);
			return;
		}
		UseFirstAvailableSenderProperty->SetValue(false);
		if (!NewValue.Equals(CurrentName))
		{
			NameProperty->SetValue(NewValue);
		}
	}

	void OnSenderNameSelectionChanged(TSharedPtr<FString> Item, ESelectInfo::Type SelectInfo)
	{
		if (Item.IsValid())
		{
			SetSelectedSenderName(*Item);
		}
	}

	TSharedRef<SWidget> MakeSenderNameWidget(TSharedPtr<FString> Item)
	{
		return SNew(STextBlock).Text(FText::FromString(*Item)).Font(IDetailLayoutBuilder::GetDetailFont());
	}

	void OnCurrentSenderLostChanged(bool bLost) { bCurrentSenderLost = bLost; }

private:
	TSharedPtr<IPropertyHandle> NameProperty;
	TSharedPtr<IPropertyHandle> UseFirstAvailableSenderProperty;
	TSharedPtr<SComboBox<TSharedPtr<FString>>> SenderNameComboBox;
	bool bCurrentSenderLost = false;
};

#undef LOCTEXT_NAMESPACE
