#pragma once

#include "CoreTypes.h"

class UObject;
class UClass;
class UScriptStruct;
class UEnum;
class FObjectInitializer;

/** Flags describing an object instance. */
enum EObjectFlags
{
	RF_NoFlags = 0x00000000,
	RF_Public = 0x00000001,
	RF_Standalone = 0x00000002,
	RF_MarkAsNative = 0x00000004,
	RF_Transactional = 0x00000008,
	RF_ClassDefaultObject = 0x00000010,
	RF_ArchetypeObject = 0x00000020,
	RF_Transient = 0x00000040,
	RF_MarkAsRootSet = 0x00000080,
	RF_BeginDestroyed = 0x00008000,
	RF_FinishDestroyed = 0x00010000,
	RF_DefaultSubObject = 0x00040000,
	RF_WasLoaded = 0x00080000,
	RF_DuplicateTransient = 0x00800000,
	/** The top bit: with it the flags span all 32 bits, so a complement such as ClearFlags makes is a valid value. */
	RF_AllocatedInSharedPage = 0x80000000,
};

constexpr EObjectFlags operator|(EObjectFlags A, EObjectFlags B)
{
	return EObjectFlags(uint32(A) | uint32(B));
}
constexpr EObjectFlags operator&(EObjectFlags A, EObjectFlags B)
{
	return EObjectFlags(uint32(A) & uint32(B));
}
constexpr EObjectFlags operator~(EObjectFlags A)
{
	return EObjectFlags(~uint32(A));
}
inline EObjectFlags& operator|=(EObjectFlags& A, EObjectFlags B)
{
	return A = A | B;
}
inline EObjectFlags& operator&=(EObjectFlags& A, EObjectFlags B)
{
	return A = A & B;
}

#define RF_AllFlags EObjectFlags(0xffffffff)

/** Flags describing a class. */
enum EClassFlags
{
	CLASS_None = 0x00000000u,
	CLASS_Abstract = 0x00000001u,
	CLASS_DefaultConfig = 0x00000002u,
	CLASS_Config = 0x00000004u,
	CLASS_Transient = 0x00000008u,
	CLASS_Native = 0x00000080u,
	CLASS_NotPlaceable = 0x00000200u,
	CLASS_Interface = 0x00004000u,
	CLASS_MinimalAPI = 0x00080000u,
	CLASS_RequiredAPI = 0x00100000u,
	CLASS_Hidden = 0x01000000u,
	CLASS_Deprecated = 0x02000000u,
	CLASS_Intrinsic = 0x10000000u,
	CLASS_Constructed = 0x20000000u,
};

constexpr EClassFlags operator|(EClassFlags A, EClassFlags B)
{
	return EClassFlags(uint32(A) | uint32(B));
}
constexpr EClassFlags operator&(EClassFlags A, EClassFlags B)
{
	return EClassFlags(uint32(A) & uint32(B));
}
constexpr EClassFlags operator~(EClassFlags A)
{
	return EClassFlags(~uint32(A));
}
inline EClassFlags& operator|=(EClassFlags& A, EClassFlags B)
{
	return A = A | B;
}

/** Flags describing a property; values match the engine's. */
enum EPropertyFlags : uint64
{
	CPF_None = 0,
	CPF_Edit = 0x0000000000000001,
	CPF_ConstParm = 0x0000000000000002,
	CPF_BlueprintVisible = 0x0000000000000004,
	CPF_ExportObject = 0x0000000000000008,
	CPF_BlueprintReadOnly = 0x0000000000000010,
	CPF_Net = 0x0000000000000020,
	CPF_EditFixedSize = 0x0000000000000040,
	CPF_Parm = 0x0000000000000080,
	CPF_OutParm = 0x0000000000000100,
	CPF_ZeroConstructor = 0x0000000000000200,
	CPF_ReturnParm = 0x0000000000000400,
	CPF_DisableEditOnTemplate = 0x0000000000000800,
	CPF_NonNullable = 0x0000000000001000,
	CPF_Transient = 0x0000000000002000,
	CPF_Config = 0x0000000000004000,
	CPF_DisableEditOnInstance = 0x0000000000010000,
	CPF_EditConst = 0x0000000000020000,
	CPF_GlobalConfig = 0x0000000000040000,
	CPF_InstancedReference = 0x0000000000080000,
	CPF_DuplicateTransient = 0x0000000000200000,
	CPF_SaveGame = 0x0000000001000000,
	CPF_NoClear = 0x0000000002000000,
	CPF_ReferenceParm = 0x0000000008000000,
	CPF_BlueprintAssignable = 0x0000000010000000,
	CPF_Deprecated = 0x0000000020000000,
	CPF_IsPlainOldData = 0x0000000040000000,
	CPF_RepSkip = 0x0000000080000000,
	CPF_RepNotify = 0x0000000100000000,
	CPF_Interp = 0x0000000200000000,
	CPF_NonTransactional = 0x0000000400000000,
	CPF_EditorOnly = 0x0000000800000000,
	CPF_NoDestructor = 0x0000001000000000,
	CPF_AutoWeak = 0x0000004000000000,
	CPF_ContainsInstancedReference = 0x0000008000000000,
	CPF_AssetRegistrySearchable = 0x0000010000000000,
	CPF_SimpleDisplay = 0x0000020000000000,
	CPF_AdvancedDisplay = 0x0000040000000000,
	CPF_Protected = 0x0000080000000000,
	CPF_BlueprintCallable = 0x0000100000000000,
	CPF_BlueprintAuthorityOnly = 0x0000200000000000,
	CPF_TextExportTransient = 0x0000400000000000,
	CPF_NonPIEDuplicateTransient = 0x0000800000000000,
	CPF_ExposeOnSpawn = 0x0001000000000000,
	CPF_PersistentInstance = 0x0002000000000000,
	CPF_UObjectWrapper = 0x0004000000000000,
	CPF_HasGetValueTypeHash = 0x0008000000000000,
	CPF_NativeAccessSpecifierPublic = 0x0010000000000000,
	CPF_NativeAccessSpecifierProtected = 0x0020000000000000,
	CPF_NativeAccessSpecifierPrivate = 0x0040000000000000,
	CPF_SkipSerialization = 0x0080000000000000,
	// Headless addition: marks an object property declared as TObjectPtr<T> so GetCPPType can name it.
	CPF_TObjectPtrWrapper = 0x0100000000000000,
};

constexpr EPropertyFlags operator|(EPropertyFlags A, EPropertyFlags B)
{
	return EPropertyFlags(uint64(A) | uint64(B));
}
constexpr EPropertyFlags operator&(EPropertyFlags A, EPropertyFlags B)
{
	return EPropertyFlags(uint64(A) & uint64(B));
}
constexpr EPropertyFlags operator~(EPropertyFlags A)
{
	return EPropertyFlags(~uint64(A));
}
inline EPropertyFlags& operator|=(EPropertyFlags& A, EPropertyFlags B)
{
	return A = A | B;
}

/** Flags describing a package. */
enum EPackageFlags
{
	PKG_None = 0x00000000,
	PKG_NewlyCreated = 0x00000001,
	PKG_CompiledIn = 0x00000010,
	PKG_ContainsScript = 0x00200000,
};

constexpr EPackageFlags operator|(EPackageFlags A, EPackageFlags B)
{
	return EPackageFlags(uint32(A) | uint32(B));
}

namespace EInternal
{
	enum Type
	{
		EC_InternalUseOnlyConstructor
	};
}

/** Reflection accessors; the header tool specialises them for each reflected struct and enum. */
template <class T>
UScriptStruct* StaticStruct();
template <typename T>
UEnum* StaticEnum();
template <class T>
UClass* StaticClass()
{
	return T::StaticClass();
}

// Reflection markers: read by the header tool, empty for the compiler.
#define UPROPERTY(...)
#define UFUNCTION(...)
#define UPARAM(...)
#define UMETA(...)
#define UCLASS(...)
#define USTRUCT(...)
#define UENUM(...)
#define UINTERFACE(...)
#define UDELEGATE(...)

// GENERATED_BODY() expands to the macro the header tool wrote for this line of this file.
#define BODY_MACRO_COMBINE_INNER(A, B, C, D) A##B##C##D
#define BODY_MACRO_COMBINE(A, B, C, D) BODY_MACRO_COMBINE_INNER(A, B, C, D)
#define GENERATED_BODY_LEGACY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY_LEGACY);
#define GENERATED_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY);
#define GENERATED_USTRUCT_BODY(...) GENERATED_BODY()
#define GENERATED_UCLASS_BODY(...) GENERATED_BODY_LEGACY()
#define GENERATED_UINTERFACE_BODY(...) GENERATED_BODY_LEGACY()
#define GENERATED_IINTERFACE_BODY(...) GENERATED_BODY_LEGACY()

/**
 * Declares the reflection members of a class whose reflection data is written by hand rather than
 * by the header tool (the classes of CoreUObject itself, as the engine's DECLARE_CLASS does).
 */
#define DECLARE_CLASS_INTRINSIC_NO_CTOR(TClass, TSuperClass, TRequiredAPI) \
public: \
	typedef TSuperClass Super; \
	typedef TClass ThisClass; \
	TRequiredAPI static UClass* StaticClass(); \
	static UObject* __NewInstance(const FObjectInitializer& ObjectInitializer);
