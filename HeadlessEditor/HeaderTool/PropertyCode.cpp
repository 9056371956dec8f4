#include "PropertyCode.h"

#include "CodeText.h"

#include <vector>

namespace
{
	using namespace HeaderTool;

	std::string AccessFlag(const std::string& Access)
	{
		return Access == "public" ? "CPF_NativeAccessSpecifierPublic" : (Access == "protected" ? "CPF_NativeAccessSpecifierProtected" : "CPF_NativeAccessSpecifierPrivate");
	}

	/** The flags each UPROPERTY specifier sets, as the engine's header tool sets them. */
	std::string SpecifierFlags(const FSpecifiers& Specifiers)
	{
		static const FKeyValueList Map = {
			{"EditAnywhere", "CPF_Edit"},
			{"EditDefaultsOnly", "CPF_Edit | CPF_DisableEditOnInstance"},
			{"EditInstanceOnly", "CPF_Edit | CPF_DisableEditOnTemplate"},
			{"VisibleAnywhere", "CPF_Edit | CPF_EditConst"},
			{"VisibleDefaultsOnly", "CPF_Edit | CPF_EditConst | CPF_DisableEditOnInstance"},
			{"VisibleInstanceOnly", "CPF_Edit | CPF_EditConst | CPF_DisableEditOnTemplate"},
			{"BlueprintReadWrite", "CPF_BlueprintVisible"},
			{"BlueprintReadOnly", "CPF_BlueprintVisible | CPF_BlueprintReadOnly"},
			{"Transient", "CPF_Transient"},
			{"DuplicateTransient", "CPF_DuplicateTransient"},
			{"NonTransactional", "CPF_NonTransactional"},
			{"Config", "CPF_Config"},
			{"GlobalConfig", "CPF_Config | CPF_GlobalConfig"},
			{"AdvancedDisplay", "CPF_AdvancedDisplay"},
			{"SimpleDisplay", "CPF_SimpleDisplay"},
			{"EditFixedSize", "CPF_EditFixedSize"},
			{"NoClear", "CPF_NoClear"},
			{"Export", "CPF_ExportObject"},
			{"Instanced", "CPF_PersistentInstance | CPF_ExportObject | CPF_InstancedReference"},
			{"Interp", "CPF_Edit | CPF_BlueprintVisible | CPF_Interp"},
			{"SkipSerialization", "CPF_SkipSerialization"},
		};
		std::string Flags;
		for (const auto& Item : Specifiers.Items)
		{
			for (const auto& Entry : Map)
			{
				if (EqualsNoCase(Item.first, Entry.first))
				{
					Flags += " | " + Entry.second;
				}
			}
		}
		return Flags;
	}

	/** The flags the property's C++ type implies. */
	std::string TypeFlags(const FPropertyType& Type)
	{
		std::string Flags;
		if (Type.Kind == EPropertyKind::Class)
		{
			Flags += " | CPF_UObjectWrapper";
		}
		if (Type.bObjectPtr)
		{
			Flags += " | CPF_TObjectPtrWrapper";
		}
		return Flags;
	}

	/** The arguments after the common ones, for the types whose property needs more. */
	std::string ExtraArguments(const FPropertyType& Type, const std::string& Owner, const std::string& Name)
	{
		switch (Type.Kind)
		{
			case EPropertyKind::Byte:
				return "nullptr";
			case EPropertyKind::ByteEnum:
				return "StaticEnum<" + Type.TypeName + ">()";
			case EPropertyKind::Enum:
				return "StaticEnum<" + Type.TypeName + ">(), sizeof(" + Type.TypeName + ")";
			case EPropertyKind::Object:
			case EPropertyKind::Class:
				return ClassRef(Type.TypeName);
			case EPropertyKind::Struct:
				return "StaticStruct<" + Type.TypeName + ">()";
			case EPropertyKind::Array:
				return PropertyExpression(*Type.Inner, Owner, Name, "EPropertyFlags(CPF_None)", "0") + ", UE::CoreUObject::Private::TScriptArrayOps<" + Type.CppType + ">::Get()";
			default:
				return {};
		}
	}

	const char* PropertyClass(EPropertyKind Kind)
	{
		switch (Kind)
		{
			case EPropertyKind::Bool:
				return "FBoolProperty";
			case EPropertyKind::Byte:
			case EPropertyKind::ByteEnum:
				return "FByteProperty";
			case EPropertyKind::Int:
				return "FIntProperty";
			case EPropertyKind::UInt32:
				return "FUInt32Property";
			case EPropertyKind::Int64:
				return "FInt64Property";
			case EPropertyKind::UInt64:
				return "FUInt64Property";
			case EPropertyKind::Float:
				return "FFloatProperty";
			case EPropertyKind::Double:
				return "FDoubleProperty";
			case EPropertyKind::Str:
				return "FStrProperty";
			case EPropertyKind::Name:
				return "FNameProperty";
			case EPropertyKind::Text:
				return "FTextProperty";
			case EPropertyKind::Enum:
				return "FEnumProperty";
			case EPropertyKind::Object:
				return "FObjectProperty";
			case EPropertyKind::Class:
				return "FClassProperty";
			case EPropertyKind::Struct:
				return "FStructProperty";
			case EPropertyKind::Array:
				return "FArrayProperty";
		}
		return "";
	}
}

std::string HeaderTool::PropertyFlags(const FPropertyDecl& Property)
{
	return "EPropertyFlags(" + AccessFlag(Property.Access) + SpecifierFlags(Property.Specifiers) + TypeFlags(Property.Type) + ")";
}

std::string HeaderTool::PropertyExpression(const FPropertyType& Type, const std::string& Owner, const std::string& Name, const std::string& Flags, const std::string& Location)
{
	const std::string Extra = ExtraArguments(Type, Owner, Name);
	return std::string("new ") + PropertyClass(Type.Kind) + "(" + Owner + ", " + Name + ", " + Flags + ", " + Location + (Extra.empty() ? "" : ", " + Extra) + ")";
}
