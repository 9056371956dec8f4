// Copyright Nimbrel. All Rights Reserved.

using UnrealBuildTool;

public class CastellanEditor : ModuleRules
{
	public CastellanEditor(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = ModuleRules.PCHUsageMode.UseExplicitOrSharedPCHs;

		// The factory's public header exposes UFactory and UKyroNDISoundWave.
		PublicDependencyModuleNames.AddRange(
			new string[]
			{
				"Core",
				"CoreUObject",
				"UnrealEd",
				"KyroNDI",
			}
		);

		PrivateDependencyModuleNames.AddRange(
			new string[]
			{
				"Engine",
				"InputCore",
				"Slate",
				"SlateCore",
				"ToolMenus",
				"Projects",
				"PropertyEditor",
				"PlacementMode",
				"AssetTools",
				"AssetRegistry",
				"Documentation",
				"GameProjectGeneration",
				"Castellan",
				"KyroCamera",
				"Kyro360Camera",
				"KyroSpout",
				"KyroMedia",
				"KyroVirtualWebcam",
				"KyroScreenCapture",
			}
		);
	}
}
