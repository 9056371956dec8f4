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
				"InputCore",
				"Slate",
				"SlateCore",
				"UnrealEd",
				"ToolMenus",
				"Projects",
				"PropertyEditor",
				"AssetTools",
				"AssetRegistry",
				"Castellan",
				"KyroCamera",
				"Kyro360Camera",
				"KyroSpout",
				"KyroNDI",
				"KyroMedia",
				"KyroVirtualWebcam",
			}
		);
	}
}
