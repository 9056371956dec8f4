// Boots the headless editor with the CastellanEditor module and shows what a user would see.

#include "CastellanEditor.h"
#include "Framework/Docking/TabManager.h"
#include "HeadlessEditorSession.h"
#include "Modules/ModuleManager.h"
#include "Report.h"
#include "WidgetDriver.h"
#include "WidgetRenderer.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SEditableTextBox.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace
{
	void Print(const FString& Text)
	{
		std::fputs(Text.ToUtf8().c_str(), stdout);
	}

	int PrintUsage()
	{
		std::fputs(
			"Usage: castellan-headless <command> [options]\n"
			"Commands:\n"
			"  wizard   open the Livestream Wizard and print what the module registered and the wizard\n"
			"  menu     print the toolbar button and its drop-down menu\n"
			"  create   fill in the wizard, press Create and print the done page, the level and the assets\n"
			"           --capture \"Kyro Cinecam\"|\"Kyro 360 Camera\"|\"Kyro Viewport Capture\"\n"
			"           --output Spout|NDI|\"Media Output (RTMP, SRT, MP4 etc.)\"|\"Virtual Webcam\" (repeatable)\n"
			"           --name <livestream name>\n"
			"  render   draw the Livestream Wizard tab as the editor shows it and write it as a PNG file\n"
			"           <file.png> [--width <pixels, 480>] [--height <pixels, 720>]\n",
			stderr);
		return 2;
	}

	TSharedRef<SDockTab> OpenWizardTab()
	{
		FModuleManager::GetModuleChecked<FCastellanEditorModule>(TEXT("CastellanEditor")).PluginButtonClicked();
		const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(FCastellanEditorModule::LivestreamWizardTabName));
		check(Tab.IsValid());
		return Tab.ToSharedRef();
	}

	TSharedRef<SWidget> OpenWizard()
	{
		return OpenWizardTab()->GetContent();
	}

	int RunRender(int ArgumentCount, char** Arguments)
	{
		if (ArgumentCount < 3)
		{
			return PrintUsage();
		}
		const FString Path = FString::FromUtf8(Arguments[2]);
		int32 Width = 480;
		int32 Height = 720;
		for (int Index = 3; Index + 1 < ArgumentCount; Index += 2)
		{
			const std::string Option = Arguments[Index];
			const int32 Value = std::atoi(Arguments[Index + 1]);
			if (Value <= 0 || (Option != "--width" && Option != "--height"))
			{
				return PrintUsage();
			}
			(Option == "--width" ? Width : Height) = Value;
		}
		FHeadlessEditorSession Session;
		if (!FWidgetRenderer::RenderWidget(OpenWizardTab(), Width, Height).SavePng(Path))
		{
			std::fputs("Could not write the picture\n", stderr);
			return 1;
		}
		Print(FString::Printf(TEXT("Wrote the Livestream Wizard tab at %dx%d to %s\n"), Width, Height, *Path));
		return 0;
	}

	int RunWizard()
	{
		FHeadlessEditorSession Session;
		Print(CastellanReport::DescribeRegistrations());
		Print(TEXT("\nLivestreamWizard tab:\n"));
		Print(FWidgetDriver::DescribeTree(OpenWizard()));
		return 0;
	}

	int RunMenu()
	{
		FHeadlessEditorSession Session;
		Print(CastellanReport::DescribeToolbarMenu());
		return 0;
	}

	struct FCreateRequest
	{
		FString Capture = TEXT("Kyro Cinecam");
		std::vector<FString> Outputs;
		FString Name;
	};

	bool ParseCreateRequest(int ArgumentCount, char** Arguments, FCreateRequest& OutRequest)
	{
		for (int Index = 2; Index + 1 < ArgumentCount; Index += 2)
		{
			const std::string Option = Arguments[Index];
			const FString Value = FString::FromUtf8(Arguments[Index + 1]);
			if (Option == "--capture")
			{
				OutRequest.Capture = Value;
			}
			else if (Option == "--output")
			{
				OutRequest.Outputs.push_back(Value);
			}
			else if (Option == "--name")
			{
				OutRequest.Name = Value;
			}
			else
			{
				return false;
			}
		}
		return (ArgumentCount % 2) == 0;
	}

	/** Uses the wizard as a user does: pick, tick, type, press Create. */
	bool FillInAndCreate(const TSharedRef<SWidget>& Wizard, const FCreateRequest& Request)
	{
		const TSharedPtr<SComboBox<TSharedPtr<FString>>> Combo = FWidgetDriver::Find<SComboBox<TSharedPtr<FString>>>(Wizard, TEXT("SComboBox"));
		const TArray<TSharedPtr<FString>>& Options = FWidgetDriver::GetComboOptions(Combo.ToSharedRef());
		const TSharedPtr<FString>* Capture = Options.FindByPredicate([&Request](const TSharedPtr<FString>& Option)
			{ return Option->Equals(Request.Capture); });
		if (!Capture)
		{
			std::fprintf(stderr, "Unknown capture type \"%s\".\n", Request.Capture.ToUtf8().c_str());
			return false;
		}
		FWidgetDriver::PickComboItem(Combo.ToSharedRef(), *Capture);

		for (const FString& Output : Request.Outputs)
		{
			const TSharedPtr<SCheckBox> CheckBox = FWidgetDriver::Find<SCheckBox>(Wizard, TEXT("SCheckBox"), Output);
			if (!CheckBox.IsValid())
			{
				std::fprintf(stderr, "Unknown output \"%s\".\n", Output.ToUtf8().c_str());
				return false;
			}
			FWidgetDriver::ToggleCheckBox(CheckBox.ToSharedRef());
		}

		FWidgetDriver::TypeText(FWidgetDriver::Find<SEditableTextBox>(Wizard, TEXT("SEditableTextBox")).ToSharedRef(), FText::FromString(Request.Name));
		return FWidgetDriver::Click(FWidgetDriver::Find<SButton>(Wizard, TEXT("SButton"), FString(TEXT("Create"))).ToSharedRef());
	}

	int RunCreate(int ArgumentCount, char** Arguments)
	{
		FCreateRequest Request;
		if (!ParseCreateRequest(ArgumentCount, Arguments, Request))
		{
			return PrintUsage();
		}
		FHeadlessEditorSession Session;
		const TSharedRef<SWidget> Wizard = OpenWizard();
		if (!FillInAndCreate(Wizard, Request))
		{
			return 1;
		}
		Print(TEXT("After pressing Create, the wizard shows:\n"));
		Print(FWidgetDriver::DescribeTree(Wizard));
		Print(TEXT("\n"));
		Print(CastellanReport::DescribeLevelAndAssets());
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
	if (Command == "menu")
	{
		return RunMenu();
	}
	if (Command == "create")
	{
		return RunCreate(ArgumentCount, Arguments);
	}
	if (Command == "render")
	{
		return RunRender(ArgumentCount, Arguments);
	}
	return PrintUsage();
}
