#pragma once

#include "CoreMinimal.h"

/** The kinds of texture a renderer draws brushes from. */
namespace ESlateShaderResource
{
	enum Type
	{
		/** Texture resource */
		NativeTexture,
		/** UTexture object resource */
		TextureObject,
		/** Material resource */
		Material,
		/** Post process buffer */
		PostProcess,
		/** Invalid */
		Invalid,
	};
}

/** A texture a renderer made for brushes to draw. */
class SLATECORE_API FSlateShaderResource
{
public:
	virtual uint32 GetWidth() const = 0;
	virtual uint32 GetHeight() const = 0;
	virtual ESlateShaderResource::Type GetType() const = 0;
	virtual ~FSlateShaderResource() = default;
};

class FSlateShaderResourceProxy;

/** What brushes hold on to: the proxy of their texture, which goes when the renderer frees it. */
class FSlateSharedHandleData
{
public:
	FSlateSharedHandleData(FSlateShaderResourceProxy* InProxy = nullptr)
		: Proxy(InProxy)
	{
	}

	FSlateShaderResourceProxy* Proxy;
};

/** The part of a texture a brush draws: the texture and where the image is in it. */
class SLATECORE_API FSlateShaderResourceProxy
{
public:
	/** The start uv of the texture.  If atlased this is some subUV of the atlas, 0,0 otherwise */
	FVector2f StartUV;
	/** The size of the texture in UV space.  If atlas this some sub uv of the atlas.  1,1 otherwise */
	FVector2f SizeUV;
	/** The resource to be used for rendering */
	FSlateShaderResource* Resource;
	/** The size of the texture in pixels. */
	FIntPoint ActualSize;
	/** The data every handle to this proxy shares. */
	TSharedPtr<FSlateSharedHandleData> HandleData;

	FSlateShaderResourceProxy()
		: StartUV(0.0f, 0.0f)
		, SizeUV(1.0f, 1.0f)
		, Resource(nullptr)
		, ActualSize(0, 0)
	{
	}

	~FSlateShaderResourceProxy()
	{
		if (HandleData.IsValid())
		{
			HandleData->Proxy = nullptr;
		}
	}
};

/** A brush's handle on its texture; invalid once the renderer frees the texture. */
class FSlateResourceHandle
{
	friend class FSlateShaderResourceManager;

public:
	FSlateResourceHandle() {}

	bool IsValid() const { return Data.IsValid() && Data->Proxy; }
	const FSlateShaderResourceProxy* GetResourceProxy() const { return Data.IsValid() ? Data->Proxy : nullptr; }

private:
	FSlateResourceHandle(const TSharedPtr<FSlateSharedHandleData>& InData)
		: Data(InData)
	{
	}

	TSharedPtr<FSlateSharedHandleData> Data;
};
