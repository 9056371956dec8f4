#include "PropertyParser.h"

#include <cctype>
#include <map>

namespace
{
	using namespace HeaderTool;

	/** A member declaration split at its initializer or bitfield width. */
	struct FDeclaration
	{
		/** The type and the name. */
		std::vector<FToken> Declarator;
		bool bBitfield = false;
		/** The tokens between the bitfield's ':' and its initializer or ';'. */
		std::vector<FToken> BitfieldWidth;
	};

	bool IsSymbol(const FToken& Token, const char* Text)
	{
		return Token.Kind == ETokenKind::Symbol && Token.Text == Text;
	}

	/** Elaborated-type and storage keywords say nothing about the reflected type. */
	bool IsIgnoredKeyword(const FToken& Token)
	{
		return Token.Kind == ETokenKind::Identifier && (Token.Text == "class" || Token.Text == "struct" || Token.Text == "enum" || Token.Text == "mutable");
	}

	/** Whether Name is a type name with the given prefix letter, e.g. 'F' for FVector. */
	bool HasTypePrefix(const std::string& Name, char Prefix)
	{
		return Name.size() > 1 && Name[0] == Prefix && std::isupper(static_cast<unsigned char>(Name[1]));
	}

	FDeclaration ReadDeclaration(FTokenReader& Reader)
	{
		FDeclaration Result;
		int Angle = 0;
		bool bCut = false;
		bool bInWidth = false;
		while (!Reader.AtEnd() && Reader.Peek().Text != ";")
		{
			const FToken& Token = Reader.Next();
			if (IsSymbol(Token, "<"))
			{
				++Angle;
			}
			else if (IsSymbol(Token, ">"))
			{
				--Angle;
			}
			else if (Angle == 0 && (IsSymbol(Token, "=") || IsSymbol(Token, "{") || IsSymbol(Token, ":")))
			{
				Result.bBitfield = Result.bBitfield || Token.Text == ":";
				bInWidth = Token.Text == ":";
				bCut = true;
				if (Token.Text == "{")
				{
					Reader.ReadBalanced("{", "}");
				}
				continue;
			}
			if (bInWidth)
			{
				Result.BitfieldWidth.push_back(Token);
			}
			else if (!bCut && !IsIgnoredKeyword(Token))
			{
				Result.Declarator.push_back(Token);
			}
		}
		Reader.Skip();
		return Result;
	}

	/**
	 * A one-bit bitfield of an unsigned integer is a bool to reflection, stored in a byte whatever its
	 * integer, as the engine's header tool has it; any other bitfield is refused as it refuses them.
	 */
	FPropertyType ParseBitfieldType(const FDeclaration& Declaration, const std::string& File, const FPropertyDecl& Property)
	{
		const std::vector<FToken>& Width = Declaration.BitfieldWidth;
		if (Width.size() != 1 || Width[0].Text != "1")
		{
			Fail(File, Property.Line, "bitfield " + Property.Name + " must be one bit wide");
		}
		static const std::set<std::string> UnsignedIntegers = {"uint8", "uint16", "uint32", "uint64"};
		const std::vector<FToken>& Type = Declaration.Declarator;
		if (Type.size() != 1 || !UnsignedIntegers.count(Type[0].Text))
		{
			Fail(File, Property.Line, "bitfield " + Property.Name + " must be of an unsigned integer type");
		}
		FPropertyType Result;
		Result.Kind = EPropertyKind::Bool;
		Result.CppType = "uint8";
		Result.bBitfield = true;
		return Result;
	}

	/** Reads a property's type from the tokens of its declarator, the name excluded. */
	class FPropertyTypeParser
	{
	public:
		FPropertyTypeParser(const std::vector<FToken>& InTokens, const std::string& InFile, int InLine, const std::set<std::string>& InKnownEnums)
			: Tokens(InTokens)
			, File(InFile)
			, Line(InLine)
			, KnownEnums(InKnownEnums)
		{
		}

		/** The type the tokens spell, all of them. */
		FPropertyType ParseAll(const std::string& PropertyName)
		{
			FPropertyType Type = Parse();
			if (Index != Tokens.size())
			{
				Fail(File, Line, "unsupported property type for " + PropertyName);
			}
			return Type;
		}

	private:
		FPropertyType Parse()
		{
			while (Index < Tokens.size() && Tokens[Index].Text == "const")
			{
				++Index;
			}
			if (Index >= Tokens.size())
			{
				Fail(File, Line, "missing property type");
			}
			const FToken& Head = Tokens[Index++];
			static const std::map<std::string, EPropertyKind> Fundamentals = {
				{"bool", EPropertyKind::Bool}, {"uint8", EPropertyKind::Byte}, {"int32", EPropertyKind::Int}, {"uint32", EPropertyKind::UInt32}, {"int64", EPropertyKind::Int64}, {"uint64", EPropertyKind::UInt64}, {"float", EPropertyKind::Float}, {"double", EPropertyKind::Double}, {"FString", EPropertyKind::Str}, {"FName", EPropertyKind::Name}, {"FText", EPropertyKind::Text}};
			const auto Fundamental = Fundamentals.find(Head.Text);
			if (Fundamental != Fundamentals.end())
			{
				FPropertyType Type;
				Type.Kind = Fundamental->second;
				Type.CppType = Head.Text;
				return Type;
			}
			if (Head.Text == "TArray")
			{
				return ParseArray();
			}
			if (Head.Text == "TObjectPtr" || Head.Text == "TSubclassOf" || Head.Text == "TEnumAsByte")
			{
				return ParseWrapper(Head.Text);
			}
			if (Head.Kind == ETokenKind::Identifier)
			{
				return ParseNamedType(Head.Text);
			}
			Fail(File, Line, "unsupported property type '" + Head.Text + "'");
		}

		FPropertyType ParseArray()
		{
			++Index;
			FPropertyType Type;
			Type.Kind = EPropertyKind::Array;
			Type.Inner = std::make_unique<FPropertyType>(Parse());
			ExpectClosingAngle("expected '>' closing TArray");
			Type.CppType = "TArray<" + Type.Inner->CppType + ">";
			return Type;
		}

		/** TObjectPtr<T>, TSubclassOf<T> or TEnumAsByte<T>. */
		FPropertyType ParseWrapper(const std::string& Wrapper)
		{
			if (Index >= Tokens.size() || Tokens[Index].Text != "<")
			{
				Fail(File, Line, "expected '<' after " + Wrapper);
			}
			++Index;
			if (Index >= Tokens.size())
			{
				Fail(File, Line, "expected '>' in " + Wrapper);
			}
			FPropertyType Type;
			Type.TypeName = ReadQualifiedName(Tokens[Index++].Text);
			ExpectClosingAngle("expected '>' in " + Wrapper);
			Type.CppType = Wrapper + "<" + Type.TypeName + ">";
			Type.Kind = Wrapper == "TObjectPtr" ? EPropertyKind::Object : (Wrapper == "TSubclassOf" ? EPropertyKind::Class : EPropertyKind::ByteEnum);
			Type.bObjectPtr = Wrapper == "TObjectPtr";
			return Type;
		}

		/** A raw object pointer, an enum or a struct, told apart by the '*' and the name's prefix. */
		FPropertyType ParseNamedType(const std::string& Head)
		{
			FPropertyType Type;
			Type.TypeName = ReadQualifiedName(Head);
			Type.CppType = Type.TypeName;
			if (Index < Tokens.size() && Tokens[Index].Text == "*")
			{
				++Index;
				Type.Kind = EPropertyKind::Object;
				Type.CppType = Type.TypeName + "*";
			}
			else if (KnownEnums.count(Type.TypeName) || HasTypePrefix(Type.TypeName, 'E'))
			{
				Type.Kind = EPropertyKind::Enum;
			}
			else if (HasTypePrefix(Type.TypeName, 'F'))
			{
				Type.Kind = EPropertyKind::Struct;
			}
			else
			{
				Fail(File, Line, "unsupported property type '" + Type.TypeName + "'");
			}
			return Type;
		}

		/** First, followed by the "::Name" parts that come next. */
		std::string ReadQualifiedName(const std::string& First)
		{
			std::string Name = First;
			while (Index + 1 < Tokens.size() && Tokens[Index].Text == "::")
			{
				Name += "::" + Tokens[Index + 1].Text;
				Index += 2;
			}
			return Name;
		}

		void ExpectClosingAngle(const std::string& Message)
		{
			if (Index >= Tokens.size() || Tokens[Index].Text != ">")
			{
				Fail(File, Line, Message);
			}
			++Index;
		}

		const std::vector<FToken>& Tokens;
		const std::string& File;
		int Line;
		const std::set<std::string>& KnownEnums;
		size_t Index = 0;
	};
}

void HeaderTool::ParsePropertyDeclaration(FTokenReader& Reader, const std::set<std::string>& KnownEnums, FPropertyDecl& Property)
{
	FDeclaration Declaration = ReadDeclaration(Reader);
	std::vector<FToken>& Declarator = Declaration.Declarator;
	if (Declarator.size() < 2 || Declarator.back().Kind != ETokenKind::Identifier)
	{
		Fail(Reader.GetFile(), Property.Line, "cannot read the UPROPERTY declaration");
	}
	Property.Name = Declarator.back().Text;
	Declarator.pop_back();
	Property.Type = Declaration.bBitfield ? ParseBitfieldType(Declaration, Reader.GetFile(), Property) : FPropertyTypeParser(Declarator, Reader.GetFile(), Property.Line, KnownEnums).ParseAll(Property.Name);
}
