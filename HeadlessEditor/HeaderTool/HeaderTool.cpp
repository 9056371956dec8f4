// Plays Unreal Header Tool's part for the headless editor: reads the reflected types of a module's
// headers and writes, per header, the "<Base>.generated.h" that GENERATED_BODY() expands through and
// the "<Base>.gen.cpp" that registers classes, structs, enums and their properties at load.

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
	enum class ETokenKind
	{
		Identifier,
		Number,
		String,
		Symbol
	};

	struct FToken
	{
		ETokenKind Kind;
		std::string Text;
		int Line;
	};

	[[noreturn]] void Fail(const std::string& File, int Line, const std::string& Message)
	{
		throw std::runtime_error(File + ":" + std::to_string(Line) + ": error: " + Message);
	}

	/** Splits C++ source into tokens; comments and preprocessor lines are dropped. */
	std::vector<FToken> Tokenize(const std::string& Source)
	{
		std::vector<FToken> Tokens;
		int Line = 1;
		bool bLineStart = true;
		for (size_t Index = 0; Index < Source.size();)
		{
			const char Ch = Source[Index];
			if (Ch == '\n')
			{
				++Line;
				bLineStart = true;
				++Index;
				continue;
			}
			if (std::isspace(static_cast<unsigned char>(Ch)))
			{
				++Index;
				continue;
			}
			if (Ch == '#' && bLineStart)
			{
				while (Index < Source.size() && Source[Index] != '\n')
				{
					if (Source[Index] == '\\' && Index + 1 < Source.size() && Source[Index + 1] == '\n')
					{
						++Line;
						++Index;
					}
					++Index;
				}
				continue;
			}
			bLineStart = false;
			if (Source.compare(Index, 2, "//") == 0)
			{
				while (Index < Source.size() && Source[Index] != '\n')
				{
					++Index;
				}
				continue;
			}
			if (Source.compare(Index, 2, "/*") == 0)
			{
				const size_t End = Source.find("*/", Index + 2);
				const size_t Stop = End == std::string::npos ? Source.size() : End + 2;
				Line += static_cast<int>(std::count(Source.begin() + Index, Source.begin() + Stop, '\n'));
				Index = Stop;
				continue;
			}
			if (Ch == '"' || Ch == '\'')
			{
				std::string Text;
				++Index;
				while (Index < Source.size() && Source[Index] != Ch)
				{
					if (Source[Index] == '\\' && Index + 1 < Source.size())
					{
						Text += Source[Index++];
					}
					Text += Source[Index++];
				}
				++Index;
				Tokens.push_back({Ch == '"' ? ETokenKind::String : ETokenKind::Number, Text, Line});
				continue;
			}
			if (std::isalpha(static_cast<unsigned char>(Ch)) || Ch == '_')
			{
				const size_t Start = Index;
				while (Index < Source.size() && (std::isalnum(static_cast<unsigned char>(Source[Index])) || Source[Index] == '_'))
				{
					++Index;
				}
				Tokens.push_back({ETokenKind::Identifier, Source.substr(Start, Index - Start), Line});
				continue;
			}
			if (std::isdigit(static_cast<unsigned char>(Ch)) || (Ch == '.' && Index + 1 < Source.size() && std::isdigit(static_cast<unsigned char>(Source[Index + 1]))))
			{
				const size_t Start = Index;
				while (Index < Source.size() && (std::isalnum(static_cast<unsigned char>(Source[Index])) || Source[Index] == '.'))
				{
					++Index;
				}
				Tokens.push_back({ETokenKind::Number, Source.substr(Start, Index - Start), Line});
				continue;
			}
			if (Source.compare(Index, 2, "::") == 0)
			{
				Tokens.push_back({ETokenKind::Symbol, "::", Line});
				Index += 2;
				continue;
			}
			Tokens.push_back({ETokenKind::Symbol, std::string(1, Ch), Line});
			++Index;
		}
		return Tokens;
	}

	/** Key/value specifiers of a UCLASS(...) or UPROPERTY(...); meta=(...) entries go to Meta. */
	struct FSpecifiers
	{
		std::vector<std::pair<std::string, std::string>> Items;
		std::vector<std::pair<std::string, std::string>> Meta;

		bool Has(const std::string& Key) const
		{
			for (const auto& Item : Items)
			{
				if (EqualsNoCase(Item.first, Key))
				{
					return true;
				}
			}
			return false;
		}
		std::string Get(const std::string& Key) const
		{
			for (const auto& Item : Items)
			{
				if (EqualsNoCase(Item.first, Key))
				{
					return Item.second;
				}
			}
			return {};
		}
		static bool EqualsNoCase(const std::string& A, const std::string& B)
		{
			return A.size() == B.size() && std::equal(A.begin(), A.end(), B.begin(), [](char X, char Y)
											   { return std::tolower(X) == std::tolower(Y); });
		}
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
		std::string TypeName;
		bool bObjectPtr = false;
		std::unique_ptr<FPropertyType> Inner;
	};

	struct FPropertyDecl
	{
		std::string Name;
		FPropertyType Type;
		FSpecifiers Specifiers;
		std::string Access;
		int Line = 0;
	};

	struct FEnumDecl
	{
		std::string Name;
		std::string Underlying;
		std::string Form;
		std::vector<std::string> Entries;
		std::vector<std::pair<std::string, std::string>> EntryMeta;
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
		int BodyLine = 0;
		bool bLegacyBody = false;
		bool bHasInitializerConstructor = false;
		std::vector<FPropertyDecl> Properties;
	};

	struct FHeader
	{
		std::string Path;
		std::string IncludePath;
		std::string Base;
		std::string FileId;
		std::vector<FTypeDecl> Types;
		std::vector<FEnumDecl> Enums;
	};

	std::string StripPrefix(const std::string& Name)
	{
		if (Name.size() > 1 && std::string("UAFIE").find(Name[0]) != std::string::npos && std::isupper(static_cast<unsigned char>(Name[1])))
		{
			return Name.substr(1);
		}
		return Name;
	}

	/** Parses one header's reflected declarations. */
	class FParser
	{
	public:
		FParser(const std::string& InFile, std::vector<FToken> InTokens, const std::set<std::string>& InKnownEnums)
			: File(InFile)
			, Tokens(std::move(InTokens))
			, KnownEnums(InKnownEnums)
		{
		}

		void Parse(FHeader& Header)
		{
			while (Pos < Tokens.size())
			{
				const std::string& Text = Tokens[Pos].Text;
				if (IsMacroCall("UCLASS") || IsMacroCall("USTRUCT") || IsMacroCall("UINTERFACE"))
				{
					const ETypeKind Kind = Text == "UCLASS" ? ETypeKind::Class : (Text == "USTRUCT" ? ETypeKind::Struct : ETypeKind::Interface);
					++Pos;
					FTypeDecl Type;
					Type.Kind = Kind;
					Type.Specifiers = ParseSpecifiers();
					ParseType(Type);
					Header.Types.push_back(std::move(Type));
					if (Kind == ETypeKind::Interface)
					{
						ParseNativeInterface(Header);
					}
				}
				else if (IsMacroCall("UENUM"))
				{
					++Pos;
					FEnumDecl Enum;
					Enum.Specifiers = ParseSpecifiers();
					ParseEnum(Enum);
					Header.Enums.push_back(std::move(Enum));
				}
				else
				{
					++Pos;
				}
			}
		}

	private:
		const FToken& Peek(size_t Offset = 0) const
		{
			static const FToken End{ETokenKind::Symbol, "", 0};
			return Pos + Offset < Tokens.size() ? Tokens[Pos + Offset] : End;
		}
		bool IsMacroCall(const char* Name) const { return Peek().Text == Name && Peek(1).Text == "("; }
		int Line() const { return Peek().Line; }
		std::string Expect(ETokenKind Kind, const std::string& What)
		{
			if (Pos >= Tokens.size() || Tokens[Pos].Kind != Kind)
			{
				Fail(File, Line(), "expected " + What + ", found '" + Peek().Text + "'");
			}
			return Tokens[Pos++].Text;
		}
		void ExpectSymbol(const std::string& Symbol)
		{
			if (Peek().Text != Symbol)
			{
				Fail(File, Line(), "expected '" + Symbol + "', found '" + Peek().Text + "'");
			}
			++Pos;
		}

		/** Reads tokens up to the matching closing bracket (the opening one already consumed). */
		std::vector<FToken> ReadBalanced(const std::string& Open, const std::string& Close)
		{
			std::vector<FToken> Result;
			int Depth = 1;
			while (Pos < Tokens.size())
			{
				const FToken& Token = Tokens[Pos++];
				if (Token.Kind == ETokenKind::Symbol && Token.Text == Open)
				{
					++Depth;
				}
				else if (Token.Kind == ETokenKind::Symbol && Token.Text == Close && --Depth == 0)
				{
					return Result;
				}
				Result.push_back(Token);
			}
			Fail(File, Line(), "unbalanced '" + Open + "'");
		}

		static std::string Join(const std::vector<FToken>& List, size_t Begin, size_t End)
		{
			std::string Result;
			for (size_t Index = Begin; Index < End; ++Index)
			{
				Result += List[Index].Text;
			}
			return Result;
		}

		/** Splits "A, B=C, meta=(D=E)" into specifiers. */
		static void SplitSpecifiers(const std::vector<FToken>& List, std::vector<std::pair<std::string, std::string>>& Out, std::vector<std::pair<std::string, std::string>>* Meta)
		{
			size_t Index = 0;
			while (Index < List.size())
			{
				size_t End = Index;
				int Depth = 0;
				while (End < List.size() && !(Depth == 0 && List[End].Text == "," && List[End].Kind == ETokenKind::Symbol))
				{
					if (List[End].Kind == ETokenKind::Symbol && List[End].Text == "(")
					{
						++Depth;
					}
					else if (List[End].Kind == ETokenKind::Symbol && List[End].Text == ")")
					{
						--Depth;
					}
					++End;
				}
				if (End > Index)
				{
					const std::string Key = List[Index].Text;
					std::string Value;
					if (Index + 1 < End && List[Index + 1].Text == "=")
					{
						if (Meta && FSpecifiers::EqualsNoCase(Key, "meta") && Index + 2 < End && List[Index + 2].Text == "(")
						{
							const std::vector<FToken> Inner(List.begin() + static_cast<long>(Index) + 3, List.begin() + static_cast<long>(End) - 1);
							SplitSpecifiers(Inner, *Meta, nullptr);
						}
						else
						{
							Value = Join(List, Index + 2, End);
						}
					}
					if (!(Meta && FSpecifiers::EqualsNoCase(Key, "meta")))
					{
						Out.emplace_back(Key, Value);
					}
				}
				Index = End + 1;
			}
		}

		FSpecifiers ParseSpecifiers()
		{
			ExpectSymbol("(");
			FSpecifiers Result;
			SplitSpecifiers(ReadBalanced("(", ")"), Result.Items, &Result.Meta);
			return Result;
		}

		void ParseType(FTypeDecl& Type)
		{
			const std::string Keyword = Expect(ETokenKind::Identifier, "'class' or 'struct'");
			if (Keyword != "class" && Keyword != "struct")
			{
				Fail(File, Line(), "expected 'class' or 'struct' after reflection macro");
			}
			while (Peek().Kind == ETokenKind::Identifier && Peek(1).Kind == ETokenKind::Identifier && Peek(1).Text != "final")
			{
				++Pos;
			}
			Type.Name = Expect(ETokenKind::Identifier, "type name");
			if (Peek().Text == "final")
			{
				++Pos;
			}
			if (Peek().Text == ":")
			{
				++Pos;
				if (Peek().Text == "public" || Peek().Text == "protected" || Peek().Text == "private")
				{
					++Pos;
				}
				Type.Super = Expect(ETokenKind::Identifier, "base type");
				while (Peek().Text != "{" && Pos < Tokens.size())
				{
					++Pos;
				}
			}
			ExpectSymbol("{");
			ParseBody(Type, Keyword == "struct" ? "public" : "private");
		}

		void ParseBody(FTypeDecl& Type, std::string Access)
		{
			int Depth = 1;
			while (Pos < Tokens.size() && Depth > 0)
			{
				const FToken& Token = Tokens[Pos];
				if (Token.Kind == ETokenKind::Symbol && Token.Text == "{")
				{
					++Depth;
					++Pos;
					continue;
				}
				if (Token.Kind == ETokenKind::Symbol && Token.Text == "}")
				{
					--Depth;
					++Pos;
					continue;
				}
				if (Depth != 1)
				{
					++Pos;
					continue;
				}
				if ((Token.Text == "public" || Token.Text == "protected" || Token.Text == "private") && Peek(1).Text == ":")
				{
					Access = Token.Text;
					Pos += 2;
				}
				else if (Token.Text.rfind("GENERATED_", 0) == 0 && Peek(1).Text == "(")
				{
					Type.BodyLine = Token.Line;
					Type.bLegacyBody = Token.Text == "GENERATED_UCLASS_BODY" || Token.Text == "GENERATED_UINTERFACE_BODY" || Token.Text == "GENERATED_IINTERFACE_BODY";
					Pos += 2;
					ReadBalanced("(", ")");
					Access = Type.bLegacyBody || Type.Kind == ETypeKind::Struct ? "public" : "private";
				}
				else if (IsMacroCall("UPROPERTY"))
				{
					++Pos;
					FPropertyDecl Property;
					Property.Access = Access;
					Property.Line = Token.Line;
					Property.Specifiers = ParseSpecifiers();
					if (ParseProperty(Property))
					{
						Type.Properties.push_back(std::move(Property));
					}
				}
				else if (IsMacroCall("UFUNCTION") || IsMacroCall("UMETA"))
				{
					Pos += 2;
					ReadBalanced("(", ")");
				}
				else if (Token.Text == Type.Name && Peek(1).Text == "(" && ((Peek(2).Text == "const" && Peek(3).Text == "FObjectInitializer") || Peek(2).Text == "FObjectInitializer"))
				{
					Type.bHasInitializerConstructor = true;
					++Pos;
				}
				else
				{
					++Pos;
				}
			}
			if (Type.BodyLine == 0)
			{
				Fail(File, Line(), Type.Name + " has no GENERATED_BODY()");
			}
		}

		/** The I-class that follows a UINTERFACE's U-class. */
		void ParseNativeInterface(FHeader& Header)
		{
			const std::string Expected = "I" + Header.Types.back().Name.substr(1);
			while (Pos < Tokens.size() && !(Peek().Text == "class" && (Peek(1).Text == Expected || Peek(2).Text == Expected)))
			{
				++Pos;
			}
			if (Pos >= Tokens.size())
			{
				Fail(File, Line(), "UINTERFACE without its class " + Expected);
			}
			FTypeDecl Native;
			Native.Kind = ETypeKind::NativeInterface;
			ParseType(Native);
			Header.Types.push_back(std::move(Native));
		}

		bool ParseProperty(FPropertyDecl& Property)
		{
			std::vector<FToken> Decl;
			int Angle = 0;
			bool bCut = false;
			bool bBitfield = false;
			while (Pos < Tokens.size() && Peek().Text != ";")
			{
				const FToken& Token = Tokens[Pos++];
				if (Token.Kind == ETokenKind::Symbol && Token.Text == "<")
				{
					++Angle;
				}
				else if (Token.Kind == ETokenKind::Symbol && Token.Text == ">")
				{
					--Angle;
				}
				else if (Angle == 0 && Token.Kind == ETokenKind::Symbol && (Token.Text == "=" || Token.Text == "{" || Token.Text == ":"))
				{
					bBitfield = bBitfield || Token.Text == ":";
					bCut = true;
					if (Token.Text == "{")
					{
						ReadBalanced("{", "}");
					}
				}
				if (!bCut && !(Token.Kind == ETokenKind::Identifier && (Token.Text == "class" || Token.Text == "struct" || Token.Text == "enum" || Token.Text == "mutable")))
				{
					Decl.push_back(Token);
				}
			}
			++Pos;
			if (Decl.size() < 2 || Decl.back().Kind != ETokenKind::Identifier)
			{
				Fail(File, Property.Line, "cannot read the UPROPERTY declaration");
			}
			Property.Name = Decl.back().Text;
			Decl.pop_back();
			if (bBitfield)
			{
				std::cerr << File << ":" << Property.Line << ": warning: bitfield " << Property.Name << " is not reflected (full bool properties only)\n";
				return false;
			}
			size_t Index = 0;
			Property.Type = ParsePropertyType(Decl, Index, Property.Line);
			if (Index != Decl.size())
			{
				Fail(File, Property.Line, "unsupported property type for " + Property.Name);
			}
			return true;
		}

		FPropertyType ParsePropertyType(const std::vector<FToken>& Decl, size_t& Index, int DeclLine)
		{
			while (Index < Decl.size() && Decl[Index].Text == "const")
			{
				++Index;
			}
			if (Index >= Decl.size())
			{
				Fail(File, DeclLine, "missing property type");
			}
			FPropertyType Type;
			const std::string Head = Decl[Index++].Text;
			auto ReadTemplateArgumentName = [&]()
			{
				if (Index >= Decl.size() || Decl[Index].Text != "<")
				{
					Fail(File, DeclLine, "expected '<' after " + Head);
				}
				++Index;
				std::string Name = Decl[Index++].Text;
				while (Index + 1 < Decl.size() && Decl[Index].Text == "::")
				{
					Name += "::" + Decl[Index + 1].Text;
					Index += 2;
				}
				if (Index >= Decl.size() || Decl[Index].Text != ">")
				{
					Fail(File, DeclLine, "expected '>' in " + Head);
				}
				++Index;
				return Name;
			};
			static const std::map<std::string, EPropertyKind> Simple = {
				{"bool", EPropertyKind::Bool}, {"uint8", EPropertyKind::Byte}, {"int32", EPropertyKind::Int}, {"uint32", EPropertyKind::UInt32}, {"int64", EPropertyKind::Int64}, {"uint64", EPropertyKind::UInt64}, {"float", EPropertyKind::Float}, {"double", EPropertyKind::Double}, {"FString", EPropertyKind::Str}, {"FName", EPropertyKind::Name}, {"FText", EPropertyKind::Text}};
			const auto Found = Simple.find(Head);
			if (Found != Simple.end())
			{
				Type.Kind = Found->second;
				Type.CppType = Head;
			}
			else if (Head == "TArray")
			{
				++Index;
				Type.Kind = EPropertyKind::Array;
				Type.Inner = std::make_unique<FPropertyType>(ParsePropertyType(Decl, Index, DeclLine));
				if (Index >= Decl.size() || Decl[Index].Text != ">")
				{
					Fail(File, DeclLine, "expected '>' closing TArray");
				}
				++Index;
				Type.CppType = "TArray<" + Type.Inner->CppType + ">";
			}
			else if (Head == "TObjectPtr" || Head == "TSubclassOf" || Head == "TEnumAsByte")
			{
				Type.TypeName = ReadTemplateArgumentName();
				Type.CppType = Head + "<" + Type.TypeName + ">";
				Type.Kind = Head == "TObjectPtr" ? EPropertyKind::Object : (Head == "TSubclassOf" ? EPropertyKind::Class : EPropertyKind::ByteEnum);
				Type.bObjectPtr = Head == "TObjectPtr";
			}
			else if (Decl[Index - 1].Kind == ETokenKind::Identifier)
			{
				std::string Name = Head;
				while (Index + 1 < Decl.size() && Decl[Index].Text == "::")
				{
					Name += "::" + Decl[Index + 1].Text;
					Index += 2;
				}
				Type.TypeName = Name;
				Type.CppType = Name;
				if (Index < Decl.size() && Decl[Index].Text == "*")
				{
					++Index;
					Type.Kind = EPropertyKind::Object;
					Type.CppType = Name + "*";
				}
				else if (KnownEnums.count(Name) || (Name.size() > 1 && Name[0] == 'E' && std::isupper(static_cast<unsigned char>(Name[1]))))
				{
					Type.Kind = EPropertyKind::Enum;
				}
				else if (Name.size() > 1 && Name[0] == 'F' && std::isupper(static_cast<unsigned char>(Name[1])))
				{
					Type.Kind = EPropertyKind::Struct;
				}
				else
				{
					Fail(File, DeclLine, "unsupported property type '" + Name + "'");
				}
			}
			else
			{
				Fail(File, DeclLine, "unsupported property type '" + Head + "'");
			}
			return Type;
		}

		void ParseEnum(FEnumDecl& Enum)
		{
			if (Peek().Text == "namespace")
			{
				++Pos;
				Enum.Name = Expect(ETokenKind::Identifier, "namespace name");
				Enum.Form = "Namespaced";
				ExpectSymbol("{");
				if (Expect(ETokenKind::Identifier, "'enum'") != "enum")
				{
					Fail(File, Line(), "expected an enum inside namespace " + Enum.Name);
				}
				Expect(ETokenKind::Identifier, "enum name");
			}
			else
			{
				if (Expect(ETokenKind::Identifier, "'enum'") != "enum")
				{
					Fail(File, Line(), "expected 'enum' after UENUM");
				}
				Enum.Form = "Regular";
				if (Peek().Text == "class")
				{
					++Pos;
					Enum.Form = "EnumClass";
				}
				Enum.Name = Expect(ETokenKind::Identifier, "enum name");
			}
			if (Peek().Text == ":")
			{
				++Pos;
				Enum.Underlying = Expect(ETokenKind::Identifier, "underlying type");
			}
			ExpectSymbol("{");
			const std::vector<FToken> Body = ReadBalanced("{", "}");
			for (size_t Index = 0; Index < Body.size();)
			{
				if (Body[Index].Kind != ETokenKind::Identifier)
				{
					Fail(File, Body[Index].Line, "cannot read enumerator in " + Enum.Name);
				}
				const std::string Entry = Body[Index].Text;
				Enum.Entries.push_back(Entry);
				int Depth = 0;
				for (; Index < Body.size() && !(Depth == 0 && Body[Index].Text == ","); ++Index)
				{
					if (Body[Index].Text == "UMETA" && Index + 1 < Body.size() && Body[Index + 1].Text == "(")
					{
						size_t End = Index + 2;
						int MetaDepth = 1;
						while (End < Body.size() && MetaDepth > 0)
						{
							MetaDepth += Body[End].Text == "(" ? 1 : (Body[End].Text == ")" ? -1 : 0);
							++End;
						}
						std::vector<std::pair<std::string, std::string>> Items;
						SplitSpecifiers(std::vector<FToken>(Body.begin() + static_cast<long>(Index) + 2, Body.begin() + static_cast<long>(End) - 1), Items, nullptr);
						for (const auto& Item : Items)
						{
							Enum.EntryMeta.emplace_back(Entry + "." + Item.first, Item.second.empty() ? "true" : Item.second);
						}
						Index = End - 1;
						continue;
					}
					Depth += Body[Index].Text == "(" ? 1 : (Body[Index].Text == ")" ? -1 : 0);
				}
				++Index;
			}
		}

		std::string File;
		std::vector<FToken> Tokens;
		const std::set<std::string>& KnownEnums;
		size_t Pos = 0;
	};

	std::string Quote(const std::string& Value)
	{
		std::string Text = Value;
		if (Text.size() >= 2 && Text.front() == '"' && Text.back() == '"')
		{
			Text = Text.substr(1, Text.size() - 2);
		}
		std::string Result = "TEXT(\"";
		for (char Ch : Text)
		{
			if (Ch == '"')
			{
				Result += "\\\"";
			}
			else
			{
				Result += Ch;
			}
		}
		return Result + "\")";
	}

	std::string PropertyFlags(const FPropertyDecl& Property)
	{
		static const std::vector<std::pair<std::string, std::string>> Map = {
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
		std::string Flags = Property.Access == "public" ? "CPF_NativeAccessSpecifierPublic" : (Property.Access == "protected" ? "CPF_NativeAccessSpecifierProtected" : "CPF_NativeAccessSpecifierPrivate");
		for (const auto& Item : Property.Specifiers.Items)
		{
			for (const auto& Entry : Map)
			{
				if (FSpecifiers::EqualsNoCase(Item.first, Entry.first))
				{
					Flags += " | " + Entry.second;
				}
			}
		}
		if (Property.Type.Kind == EPropertyKind::Class)
		{
			Flags += " | CPF_UObjectWrapper";
		}
		if (Property.Type.bObjectPtr)
		{
			Flags += " | CPF_TObjectPtrWrapper";
		}
		return "EPropertyFlags(" + Flags + ")";
	}

	std::string ClassRef(const std::string& Name)
	{
		return "Z_Construct_UClass_" + Name + "_NoRegister()";
	}

	/** An expression creating the property; Owner and Offset are C++ expressions. */
	std::string PropertyExpression(const FPropertyType& Type, const std::string& Owner, const std::string& Name, const std::string& Flags, const std::string& Offset)
	{
		const std::string Args = Owner + ", " + Name + ", " + Flags + ", " + Offset;
		switch (Type.Kind)
		{
			case EPropertyKind::Bool:
				return "new FBoolProperty(" + Args + ")";
			case EPropertyKind::Byte:
				return "new FByteProperty(" + Args + ", nullptr)";
			case EPropertyKind::Int:
				return "new FIntProperty(" + Args + ")";
			case EPropertyKind::UInt32:
				return "new FUInt32Property(" + Args + ")";
			case EPropertyKind::Int64:
				return "new FInt64Property(" + Args + ")";
			case EPropertyKind::UInt64:
				return "new FUInt64Property(" + Args + ")";
			case EPropertyKind::Float:
				return "new FFloatProperty(" + Args + ")";
			case EPropertyKind::Double:
				return "new FDoubleProperty(" + Args + ")";
			case EPropertyKind::Str:
				return "new FStrProperty(" + Args + ")";
			case EPropertyKind::Name:
				return "new FNameProperty(" + Args + ")";
			case EPropertyKind::Text:
				return "new FTextProperty(" + Args + ")";
			case EPropertyKind::ByteEnum:
				return "new FByteProperty(" + Args + ", StaticEnum<" + Type.TypeName + ">())";
			case EPropertyKind::Enum:
				return "new FEnumProperty(" + Args + ", StaticEnum<" + Type.TypeName + ">(), sizeof(" + Type.TypeName + "))";
			case EPropertyKind::Object:
				return "new FObjectProperty(" + Args + ", " + ClassRef(Type.TypeName) + ")";
			case EPropertyKind::Class:
				return "new FClassProperty(" + Args + ", " + ClassRef(Type.TypeName) + ")";
			case EPropertyKind::Struct:
				return "new FStructProperty(" + Args + ", StaticStruct<" + Type.TypeName + ">())";
			case EPropertyKind::Array:
			{
				const std::string Inner = PropertyExpression(*Type.Inner, Owner, Name, "EPropertyFlags(CPF_None)", "0");
				return "new FArrayProperty(" + Args + ", " + Inner + ", UE::CoreUObject::Private::TScriptArrayOps<" + Type.CppType + ">::Get())";
			}
		}
		return {};
	}

	void CollectClassReferences(const FPropertyType& Type, std::set<std::string>& Out)
	{
		if (Type.Kind == EPropertyKind::Object || Type.Kind == EPropertyKind::Class)
		{
			Out.insert(Type.TypeName);
		}
		if (Type.Inner)
		{
			CollectClassReferences(*Type.Inner, Out);
		}
	}

	std::string MetaDataStatements(const std::string& Target, const std::vector<std::pair<std::string, std::string>>& Meta, const std::string& Indent)
	{
		std::string Result;
		for (const auto& Item : Meta)
		{
			Result += Indent + Target + "->SetMetaData(" + Quote(Item.first) + ", " + Quote(Item.second.empty() ? "true" : Item.second) + ");\n";
		}
		return Result;
	}

	std::string ClassFlags(const FTypeDecl& Type, std::string& OutConfig, std::string& OutWithin)
	{
		std::string Flags = "CLASS_Native";
		for (const auto& Item : Type.Specifiers.Items)
		{
			const std::string& Key = Item.first;
			if (FSpecifiers::EqualsNoCase(Key, "Abstract"))
			{
				Flags += " | CLASS_Abstract";
			}
			else if (FSpecifiers::EqualsNoCase(Key, "Transient"))
			{
				Flags += " | CLASS_Transient";
			}
			else if (FSpecifiers::EqualsNoCase(Key, "MinimalAPI"))
			{
				Flags += " | CLASS_MinimalAPI";
			}
			else if (FSpecifiers::EqualsNoCase(Key, "DefaultConfig"))
			{
				Flags += " | CLASS_DefaultConfig";
			}
			else if (FSpecifiers::EqualsNoCase(Key, "Config"))
			{
				Flags += " | CLASS_Config";
				OutConfig = Item.second;
			}
			else if (FSpecifiers::EqualsNoCase(Key, "Within"))
			{
				OutWithin = Item.second;
			}
		}
		if (Type.Kind == ETypeKind::Interface)
		{
			Flags += " | CLASS_Interface";
		}
		return "EClassFlags(" + Flags + ")";
	}

	/** Specifiers that are not flags are kept as metadata, as the engine does for BlueprintType and friends. */
	std::vector<std::pair<std::string, std::string>> TypeMetaData(const FTypeDecl& Type)
	{
		static const std::set<std::string> Flags = {"abstract", "transient", "minimalapi", "defaultconfig", "config", "within", "notplaceable", "hidecategories", "showcategories"};
		std::vector<std::pair<std::string, std::string>> Meta;
		for (const auto& Item : Type.Specifiers.Items)
		{
			std::string Lower = Item.first;
			std::transform(Lower.begin(), Lower.end(), Lower.begin(), [](char Ch)
				{ return static_cast<char>(std::tolower(Ch)); });
			if (!Flags.count(Lower))
			{
				Meta.push_back(Item);
			}
		}
		Meta.insert(Meta.end(), Type.Specifiers.Meta.begin(), Type.Specifiers.Meta.end());
		return Meta;
	}

	std::string BodyMacro(const FHeader& Header, const FTypeDecl& Type, const std::string& Api)
	{
		std::ostringstream Out;
		const std::string Name = Type.Name;
		const std::string MacroName = Header.FileId + "_" + std::to_string(Type.BodyLine) + (Type.bLegacyBody ? "_GENERATED_BODY_LEGACY" : "_GENERATED_BODY");
		Out << "#define " << MacroName << " \\\n";
		if (Type.Kind == ETypeKind::Struct)
		{
			Out << "\tfriend struct Z_Construct_UScriptStruct_" << Name << "_Statics; \\\n";
			Out << "\tstatic class UScriptStruct* StaticStruct(); \\\n";
			if (!Type.Super.empty())
			{
				Out << "\ttypedef " << Type.Super << " Super; \\\n";
			}
		}
		else if (Type.Kind == ETypeKind::NativeInterface)
		{
			const std::string UName = "U" + Name.substr(1);
			Out << "protected: \\\n\tvirtual ~" << Name << "() {} \\\n";
			Out << "public: \\\n\ttypedef " << UName << " UClassType; \\\n\ttypedef " << Name << " ThisClass; \\\n";
			Out << (Type.bLegacyBody ? "public:\n" : "private:\n");
			return Out.str();
		}
		else
		{
			const std::string Super = Type.Super.empty() ? "UObject" : Type.Super;
			Out << "public: \\\n";
			Out << "\ttypedef " << Super << " Super; \\\n";
			Out << "\ttypedef " << Name << " ThisClass; \\\n";
			Out << "\tstatic UClass* StaticClass(); \\\n";
			Out << "\tfriend struct Z_Construct_UClass_" << Name << "_Statics; \\\n";
			if (Type.bLegacyBody)
			{
				Out << "\t" << Name << "(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get()); \\\n";
			}
			const bool bInitializerConstructor = Type.bLegacyBody || Type.bHasInitializerConstructor;
			Out << "\tstatic UObject* __NewInstance(const FObjectInitializer& ObjectInitializer) { return new " << Name << (bInitializerConstructor ? "(ObjectInitializer)" : "()") << "; } \\\n";
		}
		Out << (Type.bLegacyBody || Type.Kind == ETypeKind::Struct ? "public:\n" : "private:\n");
		(void)Api;
		return Out.str();
	}

	std::string GeneratedHeader(const FHeader& Header, const std::string& Module)
	{
		std::string Api = Module;
		std::transform(Api.begin(), Api.end(), Api.begin(), [](char Ch)
			{ return static_cast<char>(std::toupper(Ch)); });
		Api += "_API";
		std::ostringstream Out;
		Out << "// Generated by HeaderTool from " << Header.IncludePath << ". Do not edit.\n\n";
		Out << "#include \"UObject/ObjectMacros.h\"\n\n";
		Out << "#ifdef " << Header.FileId << "_generated_h\n#error \"" << Header.Base << ".generated.h already included\"\n#endif\n";
		Out << "#define " << Header.FileId << "_generated_h\n\n";
		for (const FEnumDecl& Enum : Header.Enums)
		{
			if (Enum.Form == "EnumClass")
			{
				Out << "enum class " << Enum.Name << (Enum.Underlying.empty() ? "" : " : " + Enum.Underlying) << ";\n";
				Out << "template <>\n"
					<< Api << " UEnum* StaticEnum<" << Enum.Name << ">();\n\n";
			}
		}
		for (const FTypeDecl& Type : Header.Types)
		{
			if (Type.Kind == ETypeKind::Struct)
			{
				Out << "struct " << Type.Name << ";\n";
				Out << "template <>\n"
					<< Api << " UScriptStruct* StaticStruct<struct " << Type.Name << ">();\n\n";
			}
			Out << BodyMacro(Header, Type, Api) << "\n";
		}
		Out << "#undef CURRENT_FILE_ID\n#define CURRENT_FILE_ID " << Header.FileId << "\n";
		return Out.str();
	}

	std::string GeneratedSource(const FHeader& Header, const std::string& Module)
	{
		std::ostringstream Out;
		const std::string Package = "TEXT(\"/Script/" + Module + "\")";
		Out << "// Generated by HeaderTool from " << Header.IncludePath << ". Do not edit.\n\n";
		Out << "#include \"" << Header.IncludePath << "\"\n";
		Out << "#include \"UObject/GeneratedCppIncludes.h\"\n\n";
		Out << "#include <cstddef>\n\n";
		Out << "// Offsets of reflected members are taken with offsetof, as the engine's STRUCT_OFFSET does.\n";
		Out << "#pragma GCC diagnostic ignored \"-Winvalid-offsetof\"\n\n";

		std::set<std::string> Referenced;
		for (const FTypeDecl& Type : Header.Types)
		{
			for (const FPropertyDecl& Property : Type.Properties)
			{
				CollectClassReferences(Property.Type, Referenced);
			}
		}
		for (const std::string& Name : Referenced)
		{
			Out << "UClass* " << ClassRef(Name) << ";\n";
		}
		Out << "\n";

		for (const FEnumDecl& Enum : Header.Enums)
		{
			const std::string Prefix = Enum.Form == "Regular" ? "" : Enum.Name + "::";
			Out << "template <>\nUEnum* StaticEnum<" << Enum.Name << (Enum.Form == "Namespaced" ? "::Type" : "") << ">()\n{\n";
			Out << "\tstatic UEnum* Enum = nullptr;\n\tif (!Enum)\n\t{\n";
			Out << "\t\tTArray<TPair<FName, int64>> Names;\n";
			for (const std::string& Entry : Enum.Entries)
			{
				Out << "\t\tNames.Emplace(FName(" << Quote(Prefix + Entry) << "), static_cast<int64>(" << Prefix << Entry << "));\n";
			}
			Out << "\t\tUE::CoreUObject::Private::ConstructNativeEnum(Enum, " << Quote(Enum.Name) << ", " << Package << ", UEnum::ECppForm::" << Enum.Form << ", Names);\n";
			Out << MetaDataStatements("Enum", Enum.Specifiers.Meta, "\t\t");
			Out << MetaDataStatements("Enum", Enum.EntryMeta, "\t\t");
			Out << "\t}\n\treturn Enum;\n}\n";
			Out << "static UE::CoreUObject::Private::FRegisterCompiledInInfo Z_CompiledIn_Enum_" << Enum.Name << "(&StaticEnum<" << Enum.Name << (Enum.Form == "Namespaced" ? "::Type" : "") << ">);\n\n";
		}

		for (const FTypeDecl& Type : Header.Types)
		{
			if (Type.Kind == ETypeKind::NativeInterface)
			{
				continue;
			}
			const bool bStruct = Type.Kind == ETypeKind::Struct;
			const std::string Statics = (bStruct ? "Z_Construct_UScriptStruct_" : "Z_Construct_UClass_") + Type.Name + "_Statics";
			Out << "struct " << Statics << "\n{\n\tstatic void AddProperties(UStruct* Owner)\n\t{\n";
			if (!Type.Properties.empty())
			{
				Out << "\t\tFProperty* Property = nullptr;\n";
			}
			for (const FPropertyDecl& Property : Type.Properties)
			{
				const std::string Offset = "static_cast<int32>(offsetof(" + Type.Name + ", " + Property.Name + "))";
				Out << "\t\tProperty = " << PropertyExpression(Property.Type, "Owner", Quote(Property.Name), PropertyFlags(Property), Offset) << ";\n";
				std::vector<std::pair<std::string, std::string>> Meta;
				const std::string Category = Property.Specifiers.Get("Category");
				if (!Category.empty())
				{
					Meta.emplace_back("Category", Category);
				}
				Meta.insert(Meta.end(), Property.Specifiers.Meta.begin(), Property.Specifiers.Meta.end());
				Out << MetaDataStatements("Property", Meta, "\t\t");
				Out << "\t\tOwner->AddCppProperty(Property);\n";
			}
			Out << "\t}\n};\n\n";

			const std::string Meta = MetaDataStatements(bStruct ? "Struct" : "Class", TypeMetaData(Type), "\t\t");
			if (bStruct)
			{
				const std::string Super = Type.Super.empty() ? "nullptr" : "StaticStruct<" + Type.Super + ">()";
				Out << "UScriptStruct* " << Type.Name << "::StaticStruct()\n{\n\treturn ::StaticStruct<" << Type.Name << ">();\n}\n";
				Out << "template <>\nUScriptStruct* StaticStruct<" << Type.Name << ">()\n{\n";
				Out << "\tstatic UScriptStruct* Struct = nullptr;\n\tif (!Struct)\n\t{\n";
				Out << "\t\tUE::CoreUObject::Private::ConstructNativeStruct(Struct, " << Quote(StripPrefix(Type.Name)) << ", " << Package << ", " << Super
					<< ", new UScriptStruct::TCppStructOps<" << Type.Name << ">());\n";
				Out << "\t\t" << Statics << "::AddProperties(Struct);\n"
					<< Meta;
				Out << "\t}\n\treturn Struct;\n}\n";
				Out << "static UE::CoreUObject::Private::FRegisterCompiledInInfo Z_CompiledIn_Struct_" << Type.Name << "(&StaticStruct<" << Type.Name << ">);\n\n";
			}
			else
			{
				std::string Config;
				std::string Within;
				const std::string Flags = ClassFlags(Type, Config, Within);
				const std::string Super = Type.Super.empty() ? "UObject" : Type.Super;
				Out << "UClass* " << ClassRef(Type.Name) << "\n{\n\treturn " << Type.Name << "::StaticClass();\n}\n";
				Out << "UClass* " << Type.Name << "::StaticClass()\n{\n";
				Out << "\tstatic UClass* Class = nullptr;\n\tif (!Class)\n\t{\n";
				Out << "\t\tUE::CoreUObject::Private::ConstructNativeClass(Class, " << Quote(StripPrefix(Type.Name)) << ", " << Package << ", " << Super << "::StaticClass(), sizeof(" << Type.Name << "), " << Flags << ", "
					<< (Config.empty() ? "NAME_None" : "FName(" + Quote(Config) + ")") << ", &" << Type.Name << "::__NewInstance);\n";
				if (!Within.empty())
				{
					Out << "\t\tClass->ClassWithin = UE::CoreUObject::Private::FindNativeClass(" << Quote(Within) << ");\n";
				}
				Out << "\t\t" << Statics << "::AddProperties(Class);\n"
					<< Meta;
				Out << "\t}\n\treturn Class;\n}\n";
				Out << "static UE::CoreUObject::Private::FRegisterCompiledInInfo Z_CompiledIn_Class_" << Type.Name << "(&" << Type.Name << "::StaticClass);\n\n";
			}
		}
		return Out.str();
	}

	std::string ReadFile(const std::string& Path)
	{
		std::ifstream Stream(Path, std::ios::binary);
		if (!Stream)
		{
			throw std::runtime_error("cannot read " + Path);
		}
		std::ostringstream Buffer;
		Buffer << Stream.rdbuf();
		return Buffer.str();
	}

	/** Writes the file only when its content changed; otherwise refreshes its time for the build. */
	void WriteFile(const std::string& Path, const std::string& Content)
	{
		std::ifstream Existing(Path, std::ios::binary);
		if (Existing)
		{
			std::ostringstream Buffer;
			Buffer << Existing.rdbuf();
			Existing.close();
			if (Buffer.str() == Content)
			{
				std::filesystem::last_write_time(Path, std::filesystem::file_time_type::clock::now());
				return;
			}
		}
		std::ofstream Stream(Path, std::ios::binary | std::ios::trunc);
		Stream << Content;
		if (!Stream)
		{
			throw std::runtime_error("cannot write " + Path);
		}
	}

	std::string IncludePathOf(const std::string& Path)
	{
		for (const char* Root : {"/Public/", "/Classes/", "/Private/"})
		{
			const size_t At = Path.rfind(Root);
			if (At != std::string::npos)
			{
				return Path.substr(At + std::string(Root).size());
			}
		}
		return Path.substr(Path.find_last_of('/') + 1);
	}
}

int main(int ArgC, char** ArgV)
{
	std::string Module;
	std::string Output;
	std::vector<std::string> Headers;
	for (int Index = 1; Index < ArgC; ++Index)
	{
		const std::string Arg = ArgV[Index];
		if (Arg == "--module" && Index + 1 < ArgC)
		{
			Module = ArgV[++Index];
		}
		else if (Arg == "--output" && Index + 1 < ArgC)
		{
			Output = ArgV[++Index];
		}
		else
		{
			Headers.push_back(Arg);
		}
	}
	if (Module.empty() || Output.empty())
	{
		std::cerr << "usage: HeaderTool --module <Name> --output <Dir> <headers...>\n";
		return 2;
	}
	try
	{
		std::vector<std::vector<FToken>> AllTokens;
		std::set<std::string> KnownEnums;
		for (const std::string& Path : Headers)
		{
			AllTokens.push_back(Tokenize(ReadFile(Path)));
			const std::vector<FToken>& Tokens = AllTokens.back();
			for (size_t Index = 0; Index + 4 < Tokens.size(); ++Index)
			{
				if (Tokens[Index].Text == "enum" && Tokens[Index + 1].Text == "class")
				{
					KnownEnums.insert(Tokens[Index + 2].Text);
				}
			}
		}
		std::filesystem::create_directories(Output + "/Inc");
		std::filesystem::create_directories(Output + "/Src");
		for (size_t Index = 0; Index < Headers.size(); ++Index)
		{
			FHeader Header;
			Header.Path = Headers[Index];
			Header.IncludePath = IncludePathOf(Header.Path);
			const size_t Slash = Header.Path.find_last_of('/');
			const std::string FileName = Header.Path.substr(Slash == std::string::npos ? 0 : Slash + 1);
			Header.Base = FileName.substr(0, FileName.find_last_of('.'));
			Header.FileId = "FID_" + Module + "_" + Header.IncludePath;
			for (char& Ch : Header.FileId)
			{
				if (!std::isalnum(static_cast<unsigned char>(Ch)))
				{
					Ch = '_';
				}
			}
			FParser(Header.Path, AllTokens[Index], KnownEnums).Parse(Header);
			WriteFile(Output + "/Inc/" + Header.Base + ".generated.h", GeneratedHeader(Header, Module));
			WriteFile(Output + "/Src/" + Header.Base + ".gen.cpp", GeneratedSource(Header, Module));
		}
	}
	catch (const std::exception& Error)
	{
		std::cerr << Error.what() << "\n";
		return 1;
	}
	return 0;
}
