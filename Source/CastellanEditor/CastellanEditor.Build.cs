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
				"CoreUObject",
				"Engine",
				"Slate",
				"SlateCore",
				"UnrealEd",
				"ToolMenus",
				"Projects",
				"PropertyEditor",
				"Documentation",
				"GameProjectGeneration",
				"Castellan",
				"KyroSpout",
				"KyroNDI",
				"KyroScreenCapture",
				"KyroCamera",
				"Kyro360Camera",
				"KyroMedia",
			}
		);
	}
}
