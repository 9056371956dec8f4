#pragma once

#include "Containers/Set.h"
#include "CoreMinimal.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "HAL/UnrealMemory.h"
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

/** An option's name as the index compares it: the name (held by the option) and its hash. */
struct FSenderNameKey
{
	explicit FSenderNameKey(const FString& InName)
		: Name(&InName)
		, Hash(FCrc::MemCrc32(*InName, InName.Len() * sizeof(TCHAR)))
	{
	}

	const FString* Name;
	uint32 Hash;
};

/** An option of the list: its name and its position. */
struct FSenderNameOptionEntry
{
	FSenderNameKey Key;
	int32 Index;
};

/** Options are found by name, compared exactly: letter case makes a different sender. */
struct FSenderNameOptionKeyFuncs : BaseKeyFuncs<FSenderNameOptionEntry, FSenderNameKey>
{
	static const FSenderNameKey& GetSetKey(const FSenderNameOptionEntry& Element) { return Element.Key; }
	static uint32 GetKeyHash(const FSenderNameKey& Key) { return Key.Hash; }

	static bool Matches(const FSenderNameKey& A, const FSenderNameKey& B)
	{
		if (A.Hash != B.Hash || A.Name->Len() != B.Name->Len())
		{
			return false;
		}
		// Case-sensitive equality is equality of the characters, which one block compare checks.
		return A.Name == B.Name || FMemory::Memcmp(**A.Name, **B.Name, A.Name->Len() * sizeof(TCHAR)) == 0;
	}
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
	 * and the stored name last when its sender has gone. The label runs this every frame, so it
	 * stays linear: an index of the options, kept from one update to the next, finds each name.
	 */
	TArray<TSharedPtr<FString>> UpdateSenderNameOptions(FString CurrentName, bool bUseFirstAvailableSender)
	{
		const TArray<FString> LiveNames = SenderSource::GetLiveSenderNames();
		if (SenderNameOptions.IsEmpty())
		{
			SenderNameOptions.Add(MakeShared<FString>(UseFirstAvailableSenderOption));
		}
		EnsureOptionIndex();

		for (FIndexedOption& Option : IndexedOptions)
		{
			Option.bIsLive = false;
		}
		// Entries 1 and up are distinct names, so one lookup per live name finds its entry.
		for (const FString& LiveName : LiveNames)
		{
			const FSenderNameKey LiveKey(LiveName);
			if (const FSenderNameOptionEntry* Entry = OptionIndex.Find(LiveKey))
			{
				IndexedOptions[Entry->Index].bIsLive = true;
			}
			else
			{
				AddOption(LiveName, true);
			}
		}

		const FSenderNameOptionEntry* CurrentEntry = OptionIndex.Find(FSenderNameKey(CurrentName));
		const int32 CurrentIndex = CurrentEntry ? CurrentEntry->Index : INDEX_NONE;
		const bool bFoundCurrent = CurrentIndex != INDEX_NONE && IndexedOptions[CurrentIndex].bIsLive;
		OnCurrentSenderLost.Broadcast(!bUseFirstAvailableSender && !bFoundCurrent);

		// An entry stays when a live name found it or added it, or when it is the stored name. The
		// kept ones move down in place, in order, and the index follows each one that moves.
		int32 NumKept = 1;
		for (int32 Index = 1; Index < SenderNameOptions.Num(); ++Index)
		{
			const FSenderNameKey& Key = IndexedOptions[Index].Key;
			if (!IndexedOptions[Index].bIsLive && Index != CurrentIndex)
			{
				// Out of the index before the option, and so the name its key points at, is released.
				OptionIndex.Remove(Key);
				continue;
			}
			if (NumKept != Index)
			{
				OptionIndex.Find(Key)->Index = NumKept;
				IndexedOptions[NumKept] = IndexedOptions[Index];
				SenderNameOptions[NumKept] = MoveTemp(SenderNameOptions[Index]);
			}
			++NumKept;
		}
		SenderNameOptions.RemoveAt(NumKept, SenderNameOptions.Num() - NumKept, false);
		IndexedOptions.RemoveAt(NumKept, IndexedOptions.Num() - NumKept, false);

		// A stored sender that has gone stays selectable.
		if (CurrentIndex == INDEX_NONE && !CurrentName.Equals(UseFirstAvailableSenderOption))
		{
			AddOption(CurrentName, false);
		}
		return SenderNameOptions;
	}

	/** The position of the first option equal to Name, or INDEX_NONE. */
	int32 FindOption(const FString& Name)
	{
		if (!SenderNameOptions.IsEmpty() && SenderNameOptions[0]->Equals(Name))
		{
			return 0;
		}
		EnsureOptionIndex();
		const FSenderNameOptionEntry* Entry = OptionIndex.Find(FSenderNameKey(Name));
		return Entry ? Entry->Index : INDEX_NONE;
	}

	FOnCurrentSenderLost OnCurrentSenderLost;
	TArray<TSharedPtr<FString>> SenderNameOptions;
	FString UseFirstAvailableSenderOption = TEXT("Use first available sender");

private:
	/** What the index knows of one option, at the option's position. */
	struct FIndexedOption
	{
		FSenderNameKey Key;
		/** Whether a live name matched the option in the running update. */
		bool bIsLive;
	};

	void AddOption(const FString& Name, bool bIsLive)
	{
		const int32 Index = SenderNameOptions.Add(MakeShared<FString>(Name));
		const FSenderNameKey Key(*SenderNameOptions[Index]);
		IndexedOptions.Add({Key, bIsLive});
		OptionIndex.Add({Key, Index});
	}

	/**
	 * Makes the index describe the options. Only the update changes them (the combo box reads
	 * them), so this finds nothing to do unless they were replaced from outside, as tests empty them.
	 */
	void EnsureOptionIndex()
	{
		bool bIndexed = IndexedOptions.Num() == SenderNameOptions.Num();
		for (int32 Index = 0; bIndexed && Index < SenderNameOptions.Num(); ++Index)
		{
			bIndexed = IndexedOptions[Index].Key.Name == SenderNameOptions[Index].Get();
		}
		if (!bIndexed)
		{
			RebuildOptionIndex();
		}
	}

	void RebuildOptionIndex()
	{
		OptionIndex.Empty(SenderNameOptions.Num());
		IndexedOptions.Empty(SenderNameOptions.Num());
		for (int32 Index = 0; Index < SenderNameOptions.Num(); ++Index)
		{
			const FSenderNameKey Key(*SenderNameOptions[Index]);
			IndexedOptions.Add({Key, false});
			// Entry 0, the first-available entry, is never looked up by the update.
			if (Index > 0)
			{
				OptionIndex.Add({Key, Index});
			}
		}
	}

	/** Entries 1 and up by name. */
	TSet<FSenderNameOptionEntry, FSenderNameOptionKeyFuncs> OptionIndex;
	/** One per option, in the options' order. */
	TArray<FIndexedOption> IndexedOptions;
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
		// Options is the list as the update left it, so the list's index finds the first equal entry.
		const int32 Index = FNameList::Get().FindOption(Name);
		return Index != INDEX_NONE ? Options[Index] : MakeShared<FString>(TEXT("Error"));
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
