#include "HeaderParser.h"

#include "PropertyParser.h"
#include "SpecifierParser.h"

namespace
{
	using HeaderTool::FToken;

	bool IsAccessSpecifier(const std::string& Text)
	{
		return Text == "public" || Text == "protected" || Text == "private";
	}

	/** The end of the enumerator that starts at Index: its comma, or the end of the body. */
	size_t FindEnumeratorEnd(const std::vector<FToken>& Body, size_t Index)
	{
		int Depth = 0;
		for (; Index < Body.size() && !(Depth == 0 && Body[Index].Text == ","); ++Index)
		{
			Depth += Body[Index].Text == "(" ? 1 : (Body[Index].Text == ")" ? -1 : 0);
		}
		return Index;
	}

	/** The end of the parentheses that open at Open, past the closing one. */
	size_t FindClosingParenthesis(const std::vector<FToken>& Body, size_t Open)
	{
		size_t End = Open + 1;
		int Depth = 1;
		while (End < Body.size() && Depth > 0)
		{
			Depth += Body[End].Text == "(" ? 1 : (Body[End].Text == ")" ? -1 : 0);
			++End;
		}
		return End;
	}
}

void HeaderTool::CollectEnumClassNames(const std::vector<FToken>& Tokens, std::set<std::string>& Out)
{
	for (size_t Index = 0; Index + 4 < Tokens.size(); ++Index)
	{
		if (Tokens[Index].Text == "enum" && Tokens[Index + 1].Text == "class")
		{
			Out.insert(Tokens[Index + 2].Text);
		}
	}
}

HeaderTool::FHeaderParser::FHeaderParser(const std::string& File, std::vector<FToken> Tokens, const std::set<std::string>& InKnownEnums)
	: Reader(File, std::move(Tokens))
	, KnownEnums(InKnownEnums)
{
}

void HeaderTool::FHeaderParser::Parse(FHeader& Header)
{
	while (!Reader.AtEnd())
	{
		if (Reader.IsMacroCall("UCLASS") || Reader.IsMacroCall("USTRUCT") || Reader.IsMacroCall("UINTERFACE"))
		{
			ParseTypeMacro(Header);
		}
		else if (Reader.IsMacroCall("UENUM"))
		{
			ParseEnumMacro(Header);
		}
		else
		{
			Reader.Skip();
		}
	}
}

void HeaderTool::FHeaderParser::ParseTypeMacro(FHeader& Header)
{
	const std::string& Macro = Reader.Next().Text;
	FTypeDecl Type;
	Type.Kind = Macro == "UCLASS" ? ETypeKind::Class : (Macro == "USTRUCT" ? ETypeKind::Struct : ETypeKind::Interface);
	Type.Specifiers = ParseMacroSpecifiers();
	ParseType(Type);
	Header.Types.push_back(std::move(Type));
	if (Header.Types.back().Kind == ETypeKind::Interface)
	{
		ParseNativeInterface(Header);
	}
}

void HeaderTool::FHeaderParser::ParseEnumMacro(FHeader& Header)
{
	Reader.Skip();
	FEnumDecl Enum;
	Enum.Specifiers = ParseMacroSpecifiers();
	ParseEnum(Enum);
	Header.Enums.push_back(std::move(Enum));
}

void HeaderTool::FHeaderParser::ParseType(FTypeDecl& Type)
{
	const std::string Keyword = Reader.Expect(ETokenKind::Identifier, "'class' or 'struct'");
	if (Keyword != "class" && Keyword != "struct")
	{
		Reader.Fail("expected 'class' or 'struct' after reflection macro");
	}
	ParseTypeName(Type);
	ParseBaseList(Type);
	Reader.ExpectSymbol("{");
	ParseBody(Type, Keyword == "struct" ? "public" : "private");
}

void HeaderTool::FHeaderParser::ParseTypeName(FTypeDecl& Type)
{
	// An export macro stands between the keyword and the name.
	while (Reader.Peek().Kind == ETokenKind::Identifier && Reader.Peek(1).Kind == ETokenKind::Identifier && Reader.Peek(1).Text != "final")
	{
		Reader.Skip();
	}
	Type.Name = Reader.Expect(ETokenKind::Identifier, "type name");
	if (Reader.Peek().Text == "final")
	{
		Reader.Skip();
	}
}

void HeaderTool::FHeaderParser::ParseBaseList(FTypeDecl& Type)
{
	if (Reader.Peek().Text != ":")
	{
		return;
	}
	Reader.Skip();
	if (IsAccessSpecifier(Reader.Peek().Text))
	{
		Reader.Skip();
	}
	// The first base is the reflected one; others (interfaces, mixins) are not recorded.
	Type.Super = Reader.Expect(ETokenKind::Identifier, "base type");
	while (Reader.Peek().Text != "{" && !Reader.AtEnd())
	{
		Reader.Skip();
	}
}

void HeaderTool::FHeaderParser::ParseBody(FTypeDecl& Type, std::string Access)
{
	int Depth = 1;
	while (!Reader.AtEnd() && Depth > 0)
	{
		const FToken& Token = Reader.Peek();
		if (Token.Kind == ETokenKind::Symbol && (Token.Text == "{" || Token.Text == "}"))
		{
			Depth += Token.Text == "{" ? 1 : -1;
			Reader.Skip();
		}
		else if (Depth == 1)
		{
			ParseBodyMember(Type, Access);
		}
		else
		{
			Reader.Skip();
		}
	}
	if (Type.BodyLine == 0)
	{
		Reader.Fail(Type.Name + " has no GENERATED_BODY()");
	}
}

void HeaderTool::FHeaderParser::ParseBodyMember(FTypeDecl& Type, std::string& Access)
{
	const std::string& Text = Reader.Peek().Text;
	if (IsAccessSpecifier(Text) && Reader.Peek(1).Text == ":")
	{
		Access = Text;
		Reader.Skip(2);
	}
	else if (Text.rfind("GENERATED_", 0) == 0 && Reader.Peek(1).Text == "(")
	{
		ParseGeneratedBody(Type, Access);
	}
	else if (Reader.IsMacroCall("UPROPERTY"))
	{
		ParsePropertyMacro(Type, Access);
	}
	else if (Reader.IsMacroCall("UFUNCTION") || Reader.IsMacroCall("UMETA"))
	{
		Reader.Skip(2);
		Reader.ReadBalanced("(", ")");
	}
	else
	{
		Type.bHasInitializerConstructor = Type.bHasInitializerConstructor || IsInitializerConstructor(Type);
		Reader.Skip();
	}
}

void HeaderTool::FHeaderParser::ParseGeneratedBody(FTypeDecl& Type, std::string& Access)
{
	const FToken& Macro = Reader.Peek();
	Type.BodyLine = Macro.Line;
	Type.bLegacyBody = Macro.Text == "GENERATED_UCLASS_BODY" || Macro.Text == "GENERATED_UINTERFACE_BODY" || Macro.Text == "GENERATED_IINTERFACE_BODY";
	Reader.Skip(2);
	Reader.ReadBalanced("(", ")");
	// What follows the macro has the access the macro's expansion leaves.
	Access = Type.bLegacyBody || Type.Kind == ETypeKind::Struct ? "public" : "private";
}

void HeaderTool::FHeaderParser::ParsePropertyMacro(FTypeDecl& Type, const std::string& Access)
{
	FPropertyDecl Property;
	Property.Access = Access;
	Property.Line = Reader.Next().Line;
	Property.Specifiers = ParseMacroSpecifiers();
	ParsePropertyDeclaration(Reader, KnownEnums, Property);
	Type.Properties.push_back(std::move(Property));
}

bool HeaderTool::FHeaderParser::IsInitializerConstructor(const FTypeDecl& Type) const
{
	return Reader.Peek().Text == Type.Name && Reader.Peek(1).Text == "(" && ((Reader.Peek(2).Text == "const" && Reader.Peek(3).Text == "FObjectInitializer") || Reader.Peek(2).Text == "FObjectInitializer");
}

void HeaderTool::FHeaderParser::ParseNativeInterface(FHeader& Header)
{
	const std::string Expected = "I" + Header.Types.back().Name.substr(1);
	while (!Reader.AtEnd() && !(Reader.Peek().Text == "class" && (Reader.Peek(1).Text == Expected || Reader.Peek(2).Text == Expected)))
	{
		Reader.Skip();
	}
	if (Reader.AtEnd())
	{
		Reader.Fail("UINTERFACE without its class " + Expected);
	}
	FTypeDecl Native;
	Native.Kind = ETypeKind::NativeInterface;
	ParseType(Native);
	Header.Types.push_back(std::move(Native));
}

void HeaderTool::FHeaderParser::ParseEnum(FEnumDecl& Enum)
{
	ParseEnumHead(Enum);
	if (Reader.Peek().Text == ":")
	{
		Reader.Skip();
		Enum.Underlying = Reader.Expect(ETokenKind::Identifier, "underlying type");
	}
	Reader.ExpectSymbol("{");
	ParseEnumerators(Enum, Reader.ReadBalanced("{", "}"));
}

void HeaderTool::FHeaderParser::ParseEnumHead(FEnumDecl& Enum)
{
	if (Reader.Peek().Text == "namespace")
	{
		Reader.Skip();
		Enum.Name = Reader.Expect(ETokenKind::Identifier, "namespace name");
		Enum.Form = EEnumForm::Namespaced;
		Reader.ExpectSymbol("{");
		if (Reader.Expect(ETokenKind::Identifier, "'enum'") != "enum")
		{
			Reader.Fail("expected an enum inside namespace " + Enum.Name);
		}
		Reader.Expect(ETokenKind::Identifier, "enum name");
		return;
	}
	if (Reader.Expect(ETokenKind::Identifier, "'enum'") != "enum")
	{
		Reader.Fail("expected 'enum' after UENUM");
	}
	Enum.Form = EEnumForm::Regular;
	if (Reader.Peek().Text == "class")
	{
		Reader.Skip();
		Enum.Form = EEnumForm::EnumClass;
	}
	Enum.Name = Reader.Expect(ETokenKind::Identifier, "enum name");
}

void HeaderTool::FHeaderParser::ParseEnumerators(FEnumDecl& Enum, const std::vector<FToken>& Body)
{
	for (size_t Index = 0; Index < Body.size();)
	{
		if (Body[Index].Kind != ETokenKind::Identifier)
		{
			Fail(Reader.GetFile(), Body[Index].Line, "cannot read enumerator in " + Enum.Name);
		}
		const std::string& Entry = Body[Index].Text;
		Enum.Entries.push_back(Entry);
		const size_t End = FindEnumeratorEnd(Body, Index);
		for (; Index < End; ++Index)
		{
			if (Body[Index].Text == "UMETA" && Index + 1 < End && Body[Index + 1].Text == "(")
			{
				const size_t Close = FindClosingParenthesis(Body, Index + 1);
				for (const auto& Item : ParseKeyValues(std::vector<FToken>(Body.begin() + static_cast<long>(Index) + 2, Body.begin() + static_cast<long>(Close) - 1)))
				{
					Enum.EntryMeta.emplace_back(Entry + "." + Item.first, Item.second.empty() ? "true" : Item.second);
				}
				Index = Close - 1;
			}
		}
		// Past the comma.
		++Index;
	}
}

HeaderTool::FSpecifiers HeaderTool::FHeaderParser::ParseMacroSpecifiers()
{
	Reader.ExpectSymbol("(");
	return ParseSpecifiers(Reader.ReadBalanced("(", ")"));
}
