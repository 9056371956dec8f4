#pragma once

#include "ReflectionModel.h"
#include "TokenReader.h"

#include <set>
#include <string>
#include <vector>

namespace HeaderTool
{
	/** Adds the names declared by "enum class X" in Tokens, which property types may name. */
	void CollectEnumClassNames(const std::vector<FToken>& Tokens, std::set<std::string>& Out);

	/** Reads one header's reflected declarations: UCLASS, USTRUCT, UINTERFACE and UENUM with their members. */
	class FHeaderParser
	{
	public:
		FHeaderParser(const std::string& File, std::vector<FToken> Tokens, const std::set<std::string>& InKnownEnums);

		/** Adds the header's types and enums to Header. */
		void Parse(FHeader& Header);

	private:
		void ParseTypeMacro(FHeader& Header);
		void ParseEnumMacro(FHeader& Header);

		/** The class or struct declaration after its macro, body included. */
		void ParseType(FTypeDecl& Type);
		/** The name, past an export macro and a final. */
		void ParseTypeName(FTypeDecl& Type);
		/** The base after ':', if any. */
		void ParseBaseList(FTypeDecl& Type);
		void ParseBody(FTypeDecl& Type, std::string Access);
		/** One token or construct at the body's own level. */
		void ParseBodyMember(FTypeDecl& Type, std::string& Access);
		void ParseGeneratedBody(FTypeDecl& Type, std::string& Access);
		void ParsePropertyMacro(FTypeDecl& Type, const std::string& Access);
		bool IsInitializerConstructor(const FTypeDecl& Type) const;
		/** The I-class that follows a UINTERFACE's U-class. */
		void ParseNativeInterface(FHeader& Header);

		void ParseEnum(FEnumDecl& Enum);
		void ParseEnumHead(FEnumDecl& Enum);
		void ParseEnumerators(FEnumDecl& Enum, const std::vector<FToken>& Body);

		FSpecifiers ParseMacroSpecifiers();

		FTokenReader Reader;
		const std::set<std::string>& KnownEnums;
	};
}
