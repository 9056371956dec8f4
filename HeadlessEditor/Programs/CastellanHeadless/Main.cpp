// Boots the headless editor with the CastellanEditor module and prints what a user would see.

#include "CastellanEditor.h"
#include "Framework/Docking/TabManager.h"
#include "HeadlessEditorSession.h"
#include "Modules/ModuleManager.h"
#include "Report.h"
#include "WidgetDriver.h"
#include "Widgets/Docking/SDockTab.h"

#include <cstdio>
#include <string>

namespace
{
	void Print(const FString& Text)
	{
		std::fputs(Text.ToUtf8().c_str(), stdout);
	}

	int PrintUsage()
	{
		std::fputs(
			"Usage: castellan-headless <command>\n"
			"Commands:\n"
			"  wizard   open the Livestream Wizard tab and print what the module registered and the wizard\n",
			stderr);
		return 2;
	}

	int RunWizard()
	{
		FHeadlessEditorSession Session;
		Print(CastellanReport::DescribeRegistrations());

		FModuleManager::GetModuleChecked<FCastellanEditorModule>(TEXT("CastellanEditor")).PluginButtonClicked();
		const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(FCastellanEditorModule::LivestreamWizardTabName));
		if (!Tab.IsValid())
		{
			std::fputs("The LivestreamWizard tab did not open.\n", stderr);
			return 1;
		}
		Print(TEXT("\nLivestreamWizard tab:\n"));
		Print(FWidgetDriver::DescribeTree(Tab->GetContent()));
		return 0;
	}
}

int main(int ArgumentCount, char** Arguments)
{
	if (ArgumentCount < 2)
	{
		return PrintUsage();
	}
	const std::string Command = Arguments[1];
	if (Command == "wizard")
	{
		return RunWizard();
	}
	return PrintUsage();
}
