#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/Commands.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "HeadlessTabs.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "UICommandTests"

namespace
{
	int32 GRegisterCommandsCalls = 0;

	class FProbeCommands : public TCommands<FProbeCommands>
	{
	public:
		FProbeCommands()
			: TCommands<FProbeCommands>(TEXT("ProbeCommands"), LOCTEXT("ProbeContext", "Probe"), NAME_None, TEXT("ProbeStyle"))
		{
		}

		virtual void RegisterCommands() override
		{
			++GRegisterCommandsCalls;
			UI_COMMAND(Open, "Open Probe", "Opens the probe", EUserInterfaceActionType::Button, FInputChord());
			UI_COMMAND(Toggle, "Toggle Probe", "Switches the probe", EUserInterfaceActionType::ToggleButton, FInputChord());
		}

		TSharedPtr<FUICommandInfo> Open;
		TSharedPtr<FUICommandInfo> Toggle;
	};

	class FEnsureCounter : public FOutputDevice
	{
	public:
		FEnsureCounter() { GLog->AddOutputDevice(this); }
		virtual ~FEnsureCounter() override { GLog->RemoveOutputDevice(this); }

		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			Count += FString(V).Contains(TEXT("Ensure condition failed")) ? 1 : 0;
		}

		int32 Count = 0;
	};

	class UICommand : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			FSlateApplication::Create();
			GRegisterCommandsCalls = 0;
			FProbeCommands::Register();
		}
		virtual void TearDown() override
		{
			FProbeCommands::Unregister();
			UE::Headless::ResetTabs();
			FSlateApplication::Shutdown();
		}

		const FProbeCommands& Commands() const { return FProbeCommands::Get(); }
	};
}

TEST_F(UICommand, RegisteringAgainKeepsTheFirstContextAndItsCommands)
{
	ASSERT_TRUE(FProbeCommands::IsRegistered());
	EXPECT_EQ(GRegisterCommandsCalls, 1);
	const TSharedPtr<FUICommandInfo> Open = Commands().Open;
	ASSERT_TRUE(Open.IsValid());

	FProbeCommands::Register();
	EXPECT_EQ(GRegisterCommandsCalls, 1);
	EXPECT_EQ(Commands().Open, Open);

	const TSharedPtr<FBindingContext> Context = FInputBindingManager::Get().GetContextByName(TEXT("ProbeCommands"));
	ASSERT_TRUE(Context.IsValid());
	EXPECT_EQ(Context.Get(), &FProbeCommands::GetContext());
	EXPECT_EQ(Context->GetStyleSetName(), FName(TEXT("ProbeStyle")));
	EXPECT_TRUE(Context->GetContextDesc().ToString().Equals(TEXT("Probe")));
}

TEST_F(UICommand, UnregisteringRemovesTheContextAndAllowsAFreshRegistration)
{
	FProbeCommands::Unregister();
	EXPECT_FALSE(FProbeCommands::IsRegistered());
	EXPECT_FALSE(FInputBindingManager::Get().GetContextByName(TEXT("ProbeCommands")).IsValid());

	FProbeCommands::Register();
	EXPECT_EQ(GRegisterCommandsCalls, 2);
	EXPECT_TRUE(FInputBindingManager::Get().GetContextByName(TEXT("ProbeCommands")).IsValid());
}

TEST_F(UICommand, UICommandFillsTheCommandFromItsMacroArguments)
{
	const FUICommandInfo& Open = *Commands().Open;
	EXPECT_EQ(Open.GetCommandName(), FName(TEXT("Open")));
	EXPECT_EQ(Open.GetBindingContext(), FName(TEXT("ProbeCommands")));
	EXPECT_TRUE(Open.GetLabel().ToString().Equals(TEXT("Open Probe")));
	EXPECT_TRUE(Open.GetDescription().ToString().Equals(TEXT("Opens the probe")));
	EXPECT_EQ(Open.GetUserInterfaceType(), EUserInterfaceActionType::Button);
	EXPECT_EQ(Commands().Toggle->GetUserInterfaceType(), EUserInterfaceActionType::ToggleButton);

	TArray<TSharedPtr<FUICommandInfo>> Infos;
	FInputBindingManager::Get().GetCommandInfosFromContext(TEXT("ProbeCommands"), Infos);
	ASSERT_EQ(Infos.Num(), 2);
	EXPECT_TRUE(Infos.Contains(Commands().Open));
	EXPECT_TRUE(Infos.Contains(Commands().Toggle));
}

TEST_F(UICommand, AnActionWithoutCanExecuteCanAlwaysRunAndReadsUnchecked)
{
	const TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
	int32 Runs = 0;
	List->MapAction(Commands().Open, FExecuteAction::CreateLambda([&Runs]()
										 { ++Runs; }));
	EXPECT_TRUE(List->IsActionMapped(Commands().Open));
	EXPECT_TRUE(List->CanExecuteAction(Commands().Open.ToSharedRef()));
	EXPECT_EQ(List->GetCheckState(Commands().Open.ToSharedRef()), ECheckBoxState::Unchecked);
	EXPECT_TRUE(List->ExecuteAction(Commands().Open.ToSharedRef()));
	EXPECT_EQ(Runs, 1);
	EXPECT_EQ(List->GetActionForCommand(Commands().Open)->IsVisible(), EVisibility::Visible);
}

TEST_F(UICommand, CanExecuteAndCheckStateAreAskedEachTime)
{
	const TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
	bool bCanRun = false;
	bool bChecked = false;
	int32 Runs = 0;
	List->MapAction(Commands().Toggle, FExecuteAction::CreateLambda([&Runs]()
										   { ++Runs; }),
		FCanExecuteAction::CreateLambda([&bCanRun]()
			{ return bCanRun; }),
		FIsActionChecked::CreateLambda([&bChecked]()
			{ return bChecked; }));

	const TSharedRef<const FUICommandInfo> Toggle = Commands().Toggle.ToSharedRef();
	EXPECT_FALSE(List->CanExecuteAction(Toggle));
	EXPECT_EQ(List->GetCheckState(Toggle), ECheckBoxState::Unchecked);
	// A mapped command counts as handled even when it cannot run; its action is not called.
	EXPECT_TRUE(List->ExecuteAction(Toggle));
	EXPECT_EQ(Runs, 0);

	bCanRun = true;
	bChecked = true;
	EXPECT_TRUE(List->CanExecuteAction(Toggle));
	EXPECT_EQ(List->GetCheckState(Toggle), ECheckBoxState::Checked);
	EXPECT_TRUE(List->ExecuteAction(Toggle));
	EXPECT_EQ(Runs, 1);
}

TEST_F(UICommand, CheckStateAndVisibilityOverloadsReachTheAction)
{
	const TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
	bool bVisible = false;
	List->MapAction(Commands().Toggle, FExecuteAction(), FCanExecuteAction(), FGetActionCheckState::CreateLambda([]()
																				  { return ECheckBoxState::Undetermined; }),
		FIsActionButtonVisible::CreateLambda([&bVisible]()
			{ return bVisible; }));
	EXPECT_EQ(List->GetCheckState(Commands().Toggle.ToSharedRef()), ECheckBoxState::Undetermined);
	const FUIAction* Action = List->GetActionForCommand(Commands().Toggle);
	ASSERT_NE(Action, nullptr);
	EXPECT_EQ(Action->IsVisible(), EVisibility::Collapsed);
	bVisible = true;
	EXPECT_EQ(Action->IsVisible(), EVisibility::Visible);
	// Executing an action with nothing bound does nothing but still counts as handled.
	EXPECT_TRUE(List->ExecuteAction(Commands().Toggle.ToSharedRef()));
}

TEST_F(UICommand, UnmappedCommandsAreNotExecutedButCountAsRunnable)
{
	const TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
	const TSharedRef<const FUICommandInfo> Open = Commands().Open.ToSharedRef();
	EXPECT_FALSE(List->IsActionMapped(Commands().Open));
	EXPECT_FALSE(List->ExecuteAction(Open));
	EXPECT_TRUE(List->CanExecuteAction(Open));
	EXPECT_EQ(List->GetCheckState(Open), ECheckBoxState::Unchecked);
	EXPECT_EQ(List->GetActionForCommand(Commands().Open), nullptr);
}

TEST_F(UICommand, MappingAgainReplacesTheActionAndUnmapRemovesIt)
{
	const TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
	FString Ran;
	List->MapAction(Commands().Open, FExecuteAction::CreateLambda([&Ran]()
										 { Ran += TEXT("A"); }));
	List->MapAction(Commands().Open, FExecuteAction::CreateLambda([&Ran]()
										 { Ran += TEXT("B"); }));
	List->ExecuteAction(Commands().Open.ToSharedRef());
	EXPECT_TRUE(Ran.Equals(TEXT("B")));

	List->UnmapAction(Commands().Open);
	EXPECT_FALSE(List->IsActionMapped(Commands().Open));
	EXPECT_FALSE(List->ExecuteAction(Commands().Open.ToSharedRef()));
	EXPECT_TRUE(Ran.Equals(TEXT("B")));
}

TEST_F(UICommand, MappingANullCommandEnsuresAndMapsNothing)
{
	const TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
	FEnsureCounter Ensures;
	List->MapAction(TSharedPtr<const FUICommandInfo>(), FUIAction());
	EXPECT_EQ(Ensures.Count, 1);
	EXPECT_FALSE(List->IsActionMapped(TSharedPtr<const FUICommandInfo>()));
}

TEST_F(UICommand, ADefaultActionCanExecuteButRunsNothing)
{
	const FUIAction Empty;
	EXPECT_TRUE(Empty.CanExecute());
	EXPECT_FALSE(Empty.Execute());
	EXPECT_EQ(Empty.GetCheckState(), ECheckBoxState::Unchecked);

	bool bRan = false;
	const FUIAction Blocked(FExecuteAction::CreateLambda([&bRan]()
								{ bRan = true; }),
		FCanExecuteAction::CreateLambda([]()
			{ return false; }));
	EXPECT_FALSE(Blocked.Execute());
	EXPECT_FALSE(bRan);
}

#undef LOCTEXT_NAMESPACE
