#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace HeaderTool
{
	using FKeyValueList = std::vector<std::pair<std::string, std::string>>;

	/** Whether two identifiers are the same, ignoring case, as specifiers are matched. */
	bool EqualsNoCase(const std::string& A, const std::string& B);

	/** Key/value specifiers of a UCLASS(...) or UPROPERTY(...); meta=(...) entries go to Meta. */
	struct FSpecifiers
	{
		FKeyValueList Items;
		FKeyValueList Meta;

		/** The value of Key, empty when it has none or is absent. */
		std::string Get(const std::string& Key) const;
	};

	enum class EPropertyKind
	{
		Bool,
		Byte,
		Int,
		UInt32,
		Int64,
		UInt64,
		Float,
		Double,
		Str,
		Name,
		Text,
		ByteEnum,
		Enum,
		Object,
		Class,
		Struct,
		Array
	};

	struct FPropertyType
	{
		EPropertyKind Kind = EPropertyKind::Int;
		std::string CppType;
		/** The named type of an enum, struct, object or class property. */
		std::string TypeName;
		bool bObjectPtr = false;
		/** A one-bit bitfield of an unsigned integer, reflected as a bool as the engine's header tool does. */
		bool bBitfield = false;
		/** The element type of an array. */
		std::unique_ptr<FPropertyType> Inner;
	};

	struct FPropertyDecl
	{
		std::string Name;
		FPropertyType Type;
		FSpecifiers Specifiers;
		/** "public", "protected" or "private". */
		std::string Access;
		int Line = 0;
	};

	enum class EEnumForm
	{
		Regular,
		Namespaced,
		EnumClass
	};

	struct FEnumDecl
	{
		std::string Name;
		std::string Underlying;
		EEnumForm Form = EEnumForm::Regular;
		std::vector<std::string> Entries;
		/** "Entry.Key" and value, from each enumerator's UMETA(...). */
		FKeyValueList EntryMeta;
		FSpecifiers Specifiers;
	};

	enum class ETypeKind
	{
		Class,
		Struct,
		Interface,
		NativeInterface
	};

	struct FTypeDecl
	{
		ETypeKind Kind = ETypeKind::Class;
		std::string Name;
		std::string Super;
		FSpecifiers Specifiers;
		/** The line of GENERATED_BODY(), which names its macro. */
		int BodyLine = 0;
		bool bLegacyBody = false;
		bool bHasInitializerConstructor = false;
		std::vector<FPropertyDecl> Properties;
	};

	/** One reflected header of a module and what it declares. */
	struct FHeader
	{
		std::string Path;
		/** The path the module's sources include it by. */
		std::string IncludePath;
		/** The file name without extension, which names the generated files. */
		std::string Base;
		std::string FileId;
		std::vector<FTypeDecl> Types;
		std::vector<FEnumDecl> Enums;
	};

	/** A header of Module at Path, with the names its generated files use and no declarations yet. */
	FHeader MakeHeader(const std::string& Path, const std::string& Module);

	/** The engine's name of a type: its U, A, F, I or E prefix dropped. */
	std::string StripPrefix(const std::string& Name);
}
