#include "ToolMenus.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Styling/CoreStyle.h"
#include "HeadlessToolMenus.h"
#include "Modules/ModuleManager.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace
{
	UToolMenus* GToolMenusSingleton = nullptr;

	/** Start-up callbacks waiting for the menus to be ready, and the engine-init binding that runs them. */
	struct FStartupCallbackState
	{
		FSimpleMulticastDelegate Callbacks;
		FDelegateHandle EngineInitHandle;
	};

	FStartupCallbackState& GetStartupCallbackState()
	{
		static FStartupCallbackState State;
		return State;
	}

	class FToolMenusModule : public IToolMenusModule
	{
	public:
		virtual void ShutdownModule() override
		{
			if (GToolMenusSingleton)
			{
				GToolMenusSingleton->MarkAsGarbage();
				GToolMenusSingleton = nullptr;
			}
		}
	};
}

IMPLEMENT_MODULE(FToolMenusModule, ToolMenus)

/** Reads the action an entry keeps for the widgets built from it. */
class FPopulateMenuBuilderWithToolMenuEntry
{
public:
	static const FToolUIActionChoice& GetAction(const FToolMenuEntry& Entry) { return Entry.Action; }
};

FToolMenuContext::FToolMenuContext(UObject* InContext)
{
	if (InContext)
	{
		ContextObjects.Add(InContext);
	}
}

FToolMenuContext::FToolMenuContext(TSharedPtr<FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender, UObject* InContext)
	: FToolMenuContext(InContext)
{
	CommandList = InCommandList;
	Extender = InExtender;
}

FToolMenuEntry::FToolMenuEntry()
	: Type(EMultiBlockType::None)
{
}

FToolMenuEntry::FToolMenuEntry(const FToolMenuOwner InOwner, const FName InName, EMultiBlockType InType)
	: Name(InName)
	, Owner(InOwner)
	, Type(InType)
{
}

FToolMenuEntry FToolMenuEntry::InitComboButton(const FName InName, const FToolUIActionChoice& InAction, const FNewToolMenuChoice& InMenuContentGenerator, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, bool bInSimpleComboBox, FName InTutorialHighlightName)
{
	FToolMenuEntry Entry(UToolMenus::Get()->CurrentOwner(), InName, EMultiBlockType::ToolBarComboButton);
	Entry.TutorialHighlightName = InTutorialHighlightName;
	Entry.Label = InLabel;
	Entry.ToolTip = InToolTip;
	Entry.Icon = InIcon;
	Entry.Action = InAction;
	Entry.ToolBarData.ComboButtonContextMenuGenerator = InMenuContentGenerator;
	Entry.ToolBarData.bSimpleComboBox = bInSimpleComboBox;
	return Entry;
}

FToolMenuEntry& FToolMenuSection::AddEntry(const FToolMenuEntry& Args)
{
	// The entry keeps the owner it was made with; a named entry replaces the one of the same name.
	if (Args.Name != NAME_None)
	{
		if (FToolMenuEntry* Existing = FindEntry(Args.Name))
		{
			*Existing = Args;
			return *Existing;
		}
	}
	return Blocks.Add_GetRef(Args);
}

FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName)
{
	return Blocks.FindByPredicate([InName](const FToolMenuEntry& Entry)
		{ return Entry.Name == InName; });
}

UToolMenu::UToolMenu()
	: MenuType(EMultiBoxType::Menu)
	, bRegistered(false)
{
}

FToolMenuSection& UToolMenu::FindOrAddSection(const FName SectionName)
{
	if (FToolMenuSection* Existing = FindSection(SectionName))
	{
		return *Existing;
	}
	return AddSection(SectionName);
}

FToolMenuSection& UToolMenu::AddSection(const FName SectionName, const TAttribute<FText>& InLabel)
{
	// Unnamed sections are never merged.
	if (FToolMenuSection* Existing = SectionName != NAME_None ? FindSection(SectionName) : nullptr)
	{
		if (InLabel.IsSet())
		{
			Existing->Label = InLabel;
		}
		return *Existing;
	}
	FToolMenuSection& Section = Sections.AddDefaulted_GetRef();
	Section.Name = SectionName;
	Section.Label = InLabel;
	Section.Owner = UToolMenus::Get()->CurrentOwner();
	return Section;
}

FToolMenuSection* UToolMenu::FindSection(const FName SectionName)
{
	return Sections.FindByPredicate([SectionName](const FToolMenuSection& Section)
		{ return Section.Name == SectionName; });
}

UToolMenus::UToolMenus() = default;

UToolMenus* UToolMenus::Get()
{
	if (!GToolMenusSingleton)
	{
		FModuleManager::LoadModuleChecked<IToolMenusModule>(TEXT("ToolMenus"));
		GToolMenusSingleton = NewObject<UToolMenus>(GetTransientPackage());
	}
	return GToolMenusSingleton;
}

bool UToolMenus::IsToolMenuUIEnabled()
{
	return FSlateApplication::IsInitialized();
}

FDelegateHandle UToolMenus::RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate)
{
	if (IsToolMenuUIEnabled() && UToolMenus::TryGet())
	{
		InDelegate.Execute();
		return FDelegateHandle();
	}

	FStartupCallbackState& State = GetStartupCallbackState();
	const FDelegateHandle Result = State.Callbacks.Add(InDelegate);
	if (!State.EngineInitHandle.IsValid())
	{
		State.EngineInitHandle = FCoreDelegates::OnPostEngineInit.AddStatic(&UToolMenus::PrivateStartupCallback);
	}
	return Result;
}

void UToolMenus::UnRegisterStartupCallback(const void* UserPointer)
{
	GetStartupCallbackState().Callbacks.RemoveAll(UserPointer);
}

void UToolMenus::UnRegisterStartupCallback(FDelegateHandle InHandle)
{
	GetStartupCallbackState().Callbacks.Remove(InHandle);
}

void UToolMenus::PrivateStartupCallback()
{
	FStartupCallbackState& State = GetStartupCallbackState();
	FCoreDelegates::OnPostEngineInit.Remove(State.EngineInitHandle);
	State.EngineInitHandle.Reset();

	if (IsToolMenuUIEnabled() && UToolMenus::TryGet())
	{
		State.Callbacks.Broadcast();
		State.Callbacks.Clear();
	}
}

UToolMenu* UToolMenus::RegisterMenu(FName Name, const FName Parent, EMultiBoxType Type, bool bWarnIfAlreadyRegistered)
{
	// A menu extended before its owner registered it gets its kind now and keeps the extensions.
	UToolMenu* Menu = FindMenu(Name);
	if (!Menu)
	{
		Menu = NewObject<UToolMenu>(this);
		Menu->MenuName = Name;
		Menus.Add(Menu);
	}
	else if (Menu->bRegistered)
	{
		return Menu;
	}
	Menu->MenuType = Type;
	Menu->bRegistered = true;
	return Menu;
}

UToolMenu* UToolMenus::ExtendMenu(const FName Name)
{
	// Extending a menu that is not registered yet is allowed; the extension waits for it.
	if (UToolMenu* Existing = FindMenu(Name))
	{
		return Existing;
	}
	UToolMenu* Menu = NewObject<UToolMenu>(this);
	Menu->MenuName = Name;
	Menus.Add(Menu);
	return Menu;
}

UToolMenu* UToolMenus::FindMenu(const FName Name)
{
	UToolMenu** Found = Menus.FindByPredicate([Name](const UToolMenu* Menu)
		{ return Menu->MenuName == Name; });
	return Found ? *Found : nullptr;
}

bool UToolMenus::IsMenuRegistered(const FName Name) const
{
	return Menus.ContainsByPredicate([Name](const UToolMenu* Menu)
		{ return Menu->MenuName == Name && Menu->bRegistered; });
}

TSharedRef<SWidget> UToolMenus::GenerateWidget(const FName Name, const FToolMenuContext& InMenuContext)
{
	UToolMenu* Menu = FindMenu(Name);
	if (!Menu || !Menu->bRegistered)
	{
		return SNullWidget::NullWidget;
	}
	// The headless editor's menu entries are toolbar combo buttons, so only toolbars are generated.
	checkf(Menu->MenuType == EMultiBoxType::ToolBar || Menu->MenuType == EMultiBoxType::SlimHorizontalToolBar, TEXT("Menu %s is not a toolbar"), *Name.ToString());
	TUniquePtr<FToolBarBuilder> Builder = Menu->MenuType == EMultiBoxType::SlimHorizontalToolBar ? MakeUnique<FSlimHorizontalToolBarBuilder>(InMenuContext.GetCommandList(), FMultiBoxCustomization::None) : MakeUnique<FToolBarBuilder>(InMenuContext.GetCommandList(), FMultiBoxCustomization::None);
	if (Menu->StyleName != NAME_None)
	{
		Builder->SetStyle(&FCoreStyle::Get(), Menu->StyleName);
	}
	for (const FToolMenuSection& Section : Menu->Sections)
	{
		Builder->BeginSection(Section.Name);
		for (const FToolMenuEntry& Entry : Section.Blocks)
		{
			if (Entry.Type != EMultiBlockType::ToolBarComboButton)
			{
				continue;
			}
			Builder->BeginStyleOverride(Entry.StyleNameOverride);
			const FUIAction* Action = Entry.Action.GetUIAction();
			Builder->AddComboButton(Action ? *Action : FUIAction(), Entry.ToolBarData.ComboButtonContextMenuGenerator.OnGetContent, Entry.Label, Entry.ToolTip, Entry.Icon, Entry.ToolBarData.bSimpleComboBox, Entry.TutorialHighlightName);
			Builder->EndStyleOverride();
		}
		Builder->EndSection();
	}
	return Builder->MakeWidget();
}

void UToolMenus::PushOwner(const FToolMenuOwner InOwner)
{
	OwnerStack.Add(InOwner);
}

void UToolMenus::PopOwner(const FToolMenuOwner InOwner)
{
	check(OwnerStack.Num() > 0 && OwnerStack.Last() == InOwner);
	OwnerStack.Pop();
}

FToolMenuOwner UToolMenus::CurrentOwner() const
{
	return OwnerStack.Num() > 0 ? OwnerStack.Last() : FToolMenuOwner();
}

void UToolMenus::UnregisterOwnerInternal(FToolMenuOwner Owner)
{
	if (!Owner.IsSet())
	{
		return;
	}
	for (UToolMenu* Menu : Menus)
	{
		for (FToolMenuSection& Section : Menu->Sections)
		{
			Section.Blocks.RemoveAll([&Owner](const FToolMenuEntry& Entry)
				{ return Entry.Owner == Owner; });
		}
		Menu->Sections.RemoveAll([&Owner](const FToolMenuSection& Section)
			{ return Section.Owner == Owner && Section.Blocks.IsEmpty(); });
	}
}

bool UE::Headless::HasToolMenusStartupCallbackFor(const void* UserPointer)
{
	return GetStartupCallbackState().Callbacks.IsBoundToObject(UserPointer);
}

const FUIAction* UE::Headless::GetToolMenuEntryAction(const FToolMenuEntry& Entry)
{
	return FPopulateMenuBuilderWithToolMenuEntry::GetAction(Entry).GetUIAction();
}
