// Copyright Nimbrel. All Rights Reserved.

#include "ActiveSenderNamesCustomisation.h"

#include "Containers/Set.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "HAL/UnrealMemory.h"
#include "IDetailChildrenBuilder.h"
#include "Misc/Crc.h"
#include "PropertyHandle.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "ActiveSenderNamesCustomisation"

namespace
{
	/** A sender name and its hash, taken once per update. */
	struct FSenderName
	{
		explicit FSenderName(const FString& InName)
			: Name(&InName)
			, Hash(FCrc::MemCrc32(*InName, InName.Len() * sizeof(TCHAR)))
		{
		}

		/** Exact equality, the same characters: names that differ in letter case are different senders. */
		bool operator==(const FSenderName& Other) const
		{
			return Hash == Other.Hash && Name->Len() == Other.Name->Len() && FMemory::Memcmp(**Name, **Other.Name, Name->Len() * sizeof(TCHAR)) == 0;
		}

		const FString* Name;
		uint32 Hash;
	};

	/** A live sender during an update, and whether an option lists it yet. */
	struct FLiveSender
	{
		FSenderName Name;
		bool bListed;
	};

	struct FLiveSenderKeyFuncs : BaseKeyFuncs<FLiveSender, FSenderName>
	{
		static const FSenderName& GetSetKey(const FLiveSender& Sender) { return Sender.Name; }
		static bool Matches(const FSenderName& A, const FSenderName& B) { return A == B; }
		static uint32 GetKeyHash(const FSenderName& Key) { return Key.Hash; }
	};
}

FActiveSenderNameList::FActiveSenderNameList()
	: UseFirstAvailableSenderOption(TEXT("Use first available sender"))
{
}

TArray<TSharedPtr<FString>> FActiveSenderNameList::UpdateSenderNameOptions(FString CurrentName, bool bUseFirstAvailableSender)
{
	const TArray<FString> LiveNames = GetLiveSenderNames();
	if (SenderNameOptions.IsEmpty())
	{
		SenderNameOptions.Add(MakeShared<FString>(UseFirstAvailableSenderOption));
	}

	// The names point into LiveNames and the options, which outlive them.
	TArray<FSenderName> LiveSenderNames;
	LiveSenderNames.Reserve(LiveNames.Num());
	TSet<FLiveSender, FLiveSenderKeyFuncs> LiveSenders;
	LiveSenders.Reserve(LiveNames.Num());
	for (const FString& LiveName : LiveNames)
	{
		LiveSenders.Add({LiveSenderNames.Emplace_GetRef(LiveName), false});
	}
	const FSenderName Current(CurrentName);
	const bool bCurrentIsLive = LiveSenders.Contains(Current);
	OnCurrentSenderLost.Broadcast(!bUseFirstAvailableSender && !bCurrentIsLive);

	// Entry 0 stays; the others stay, in their order, while their sender is live or they are the stored name.
	bool bCurrentListed = bCurrentIsLive;
	int32 NumKept = 1;
	for (int32 Index = 1; Index < SenderNameOptions.Num(); ++Index)
	{
		const FSenderName Option(*SenderNameOptions[Index]);
		FLiveSender* LiveSender = LiveSenders.Find(Option);
		const bool bIsCurrent = Option == Current;
		if (!LiveSender && !bIsCurrent)
		{
			continue;
		}
		if (LiveSender)
		{
			LiveSender->bListed = true;
		}
		bCurrentListed |= bIsCurrent;
		if (NumKept != Index)
		{
			SenderNameOptions[NumKept] = MoveTemp(SenderNameOptions[Index]);
		}
		++NumKept;
	}
	SenderNameOptions.SetNum(NumKept);

	// Senders that are new follow, once each, in the runtime's order.
	for (const FSenderName& LiveSenderName : LiveSenderNames)
	{
		FLiveSender* LiveSender = LiveSenders.Find(LiveSenderName);
		if (!LiveSender->bListed)
		{
			LiveSender->bListed = true;
			SenderNameOptions.Add(MakeShared<FString>(*LiveSenderName.Name));
		}
	}

	// A stored sender that has gone stays selectable, last.
	if (!bCurrentListed && !CurrentName.Equals(UseFirstAvailableSenderOption, ESearchCase::CaseSensitive))
	{
		SenderNameOptions.Add(MakeShared<FString>(CurrentName));
	}
	return SenderNameOptions;
}

FActiveSenderNamesCustomisation::FActiveSenderNamesCustomisation(FActiveSenderNameList& InNameList, FName InKindPropertyName)
	: NameList(InNameList)
	, KindPropertyName(InKindPropertyName)
	, bCurrentSenderLost(false)
{
	NameList.OnCurrentSenderLost.AddRaw(this, &FActiveSenderNamesCustomisation::OnCurrentSenderLostChanged);
}

FActiveSenderNamesCustomisation::~FActiveSenderNamesCustomisation()
{
	NameList.OnCurrentSenderLost.RemoveAll(this);
}

void FActiveSenderNamesCustomisation::CustomizeHeader(TSharedRef<IPropertyHandle> StructPropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils& Utils)
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

void FActiveSenderNamesCustomisation::CustomizeChildren(TSharedRef<IPropertyHandle> StructPropertyHandle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& Utils)
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
	NameList.UpdateSenderNameOptions(Name, bUseFirstAvailableSender);

	const TSharedPtr<IPropertyHandle> ActiveProperty = StructPropertyHandle->GetChildHandle(TEXT("Active"));
	const TSharedPtr<IPropertyHandle> RenderTargetProperty = StructPropertyHandle->GetChildHandle(TEXT("RenderTarget"));
	const TSharedPtr<IPropertyHandle> KindProperty = StructPropertyHandle->GetChildHandle(KindPropertyName);

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
			.OptionsSource(&NameList.SenderNameOptions)
			.OnGenerateWidget(this, &FActiveSenderNamesCustomisation::MakeSenderNameWidget)
			.OnSelectionChanged(this, &FActiveSenderNamesCustomisation::OnSenderNameSelectionChanged)
			.InitiallySelectedItem(Item)
			.ContentPadding(2.0f)
			[
				SNew(STextBlock)
				.Text(this, &FActiveSenderNamesCustomisation::GetCurrentItemLabel)
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

TSharedPtr<FString> FActiveSenderNamesCustomisation::GetCurrentItem() const
{
	check(NameProperty.IsValid());
	FString Name;
	NameProperty->GetValue(Name);
	check(UseFirstAvailableSenderProperty.IsValid());
	bool bUseFirstAvailableSender = false;
	UseFirstAvailableSenderProperty->GetValue(bUseFirstAvailableSender);

	const TArray<TSharedPtr<FString>> Options = NameList.UpdateSenderNameOptions(Name, bUseFirstAvailableSender);
	if (bUseFirstAvailableSender)
	{
		return Options[0];
	}
	const TSharedPtr<FString>* Found = Options.FindByPredicate([&Name](const TSharedPtr<FString>& Option)
		{ return Option->Equals(Name, ESearchCase::CaseSensitive); });
	return Found ? *Found : MakeShared<FString>(TEXT("Error"));
}

FText FActiveSenderNamesCustomisation::GetCurrentItemLabel() const
{
	// The update broadcasts the lost state, so bCurrentSenderLost is current once the item is.
	const TSharedPtr<FString> Item = GetCurrentItem();
	if (!Item.IsValid())
	{
		return LOCTEXT("Invalid", "Invalid");
	}
	return FText::FromString(bCurrentSenderLost ? *Item + TEXT(" [lost]") : *Item);
}

void FActiveSenderNamesCustomisation::SetSelectedSenderName(FString NewValue)
{
	check(NameProperty.IsValid());
	FString CurrentName;
	NameProperty->GetValue(CurrentName);
	if (NewValue.Equals(NameList.UseFirstAvailableSenderOption, ESearchCase::CaseSensitive))
	{
		UseFirstAvailableSenderProperty->SetValue(true);
		NameProperty->SetValue(NameList.UseFirstAvailableSenderOption);
		return;
	}
	UseFirstAvailableSenderProperty->SetValue(false);
	if (!NewValue.Equals(CurrentName, ESearchCase::CaseSensitive))
	{
		NameProperty->SetValue(NewValue);
	}
}

void FActiveSenderNamesCustomisation::OnSenderNameSelectionChanged(TSharedPtr<FString> Item, ESelectInfo::Type SelectInfo)
{
	if (Item.IsValid())
	{
		SetSelectedSenderName(*Item);
	}
}

TSharedRef<SWidget> FActiveSenderNamesCustomisation::MakeSenderNameWidget(TSharedPtr<FString> Item)
{
	return SNew(STextBlock).Text(FText::FromString(*Item)).Font(IDetailLayoutBuilder::GetDetailFont());
}

void FActiveSenderNamesCustomisation::OnCurrentSenderLostChanged(bool bLost)
{
	bCurrentSenderLost = bLost;
}

#undef LOCTEXT_NAMESPACE
