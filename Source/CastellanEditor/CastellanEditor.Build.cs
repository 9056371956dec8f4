// Copyright Nimbrel. All Rights Reserved.

using UnrealBuildTool;

public class CastellanEditor : ModuleRules
{
	public CastellanEditor(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = ModuleRules.PCHUsageMode.UseExplicitOrSharedPCHs;

		PrivateDependencyModuleNames.AddRange(
			new string[]
			{
				"Core",
				"Slate",
				"SlateCore",
				"UnrealEd",
				"ToolMenus",
				"Projects",
				"PropertyEditor",
				"Castellan",
				"KyroSpout",
				"KyroNDI",
				"KyroScreenCapture",
			}
		);
	}
}
