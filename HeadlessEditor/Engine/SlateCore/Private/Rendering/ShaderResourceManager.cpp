#include "Rendering/ShaderResourceManager.h"

FSlateResourceHandle FSlateShaderResourceManager::GetResourceHandle(const FSlateBrush& Brush, FVector2f LocalSize, float DrawScale)
{
	FSlateShaderResourceProxy* Proxy = GetShaderResource(Brush, LocalSize, DrawScale);
	if (Proxy == nullptr)
	{
		return FSlateResourceHandle();
	}
	// Every handle to a proxy shares one data block, which the proxy empties when it goes.
	if (!Proxy->HandleData.IsValid())
	{
		Proxy->HandleData = MakeShared<FSlateSharedHandleData>(Proxy);
	}
	return FSlateResourceHandle(Proxy->HandleData);
}

FSlateResourceHandle FSlateShaderResourceManager::GetResourceHandle(const FSlateBrush& Brush)
{
	return GetResourceHandle(Brush, FVector2f(0.0f, 0.0f), 1.0f);
}

void FSlateShaderResourceManager::ClearTextureMap()
{
	for (TPair<FName, FSlateShaderResourceProxy*>& Pair : ResourceMap)
	{
		delete Pair.Value;
	}
	ResourceMap.Empty();
}
