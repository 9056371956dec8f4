#include "JsonReport.h"

#include "Containers/StringConv.h"
#include "PrintableText.h"

#include <nlohmann/json.hpp>

namespace
{
	using FJson = nlohmann::ordered_json;

	std::string ToUtf8(const FString& Text)
	{
		return std::string(TCHAR_TO_UTF8(*Text));
	}

	FJson ToJson(const TArray<FString>& Texts)
	{
		FJson Array = FJson::array();
		for (const FString& Text : Texts)
		{
			Array.push_back(ToUtf8(Text));
		}
		return Array;
	}

	/** An object path, or null for none. */
	FJson ObjectPathToJson(const FString& Path)
	{
		return Path.IsEmpty() ? FJson() : FJson(ToUtf8(Path));
	}

	const char* ToJson(ELivestreamWizardOutcome Outcome)
	{
		switch (Outcome)
		{
			case ELivestreamWizardOutcome::Created:
				return "created";
			case ELivestreamWizardOutcome::Refused:
				return "refused";
			default:
				return "failed";
		}
	}

	FJson ToJson(const FEditorMessage& Message)
	{
		if (Message.Kind == FEditorMessage::EKind::MessageBox)
		{
			return {{"kind", "message box"}, {"text", ToUtf8(Message.Text)}};
		}
		return {{"kind", "log"}, {"category", ToUtf8(Message.Category)}, {"verbosity", ToUtf8(ToString(Message.Verbosity))}, {"text", ToUtf8(Message.Text)}};
	}

	FJson ToJson(const FActorSnapshot& Actor)
	{
		FJson Json = {{"name", ToUtf8(Actor.Name)}, {"class", ToUtf8(Actor.ClassName)}, {"location", {Actor.Location.X, Actor.Location.Y, Actor.Location.Z}}};
		if (!Actor.Senders.IsEmpty())
		{
			FJson& Senders = Json["senders"] = FJson::array();
			for (const FSenderSnapshot& Sender : Actor.Senders)
			{
				Senders.push_back({{"name", ToUtf8(Sender.Name)}, {"standalone_name", ToUtf8(Sender.StandaloneName)}, {"enabled", Sender.bEnabled}, {"render_target", ObjectPathToJson(Sender.RenderTarget)}});
			}
		}
		if (Actor.OutputRenderTarget.IsSet())
		{
			Json["render_target"] = ObjectPathToJson(Actor.OutputRenderTarget.GetValue());
		}
		return Json;
	}

	/** JSON text with the characters that act on a terminal written as \u escapes; JSON text holds them only inside strings. */
	std::string EscapeControlCharacters(const std::string& JsonText)
	{
		const FString Text(UTF8_TO_TCHAR(JsonText.c_str()));
		FString Escaped;
		Escaped.Reserve(Text.Len());
		for (const TCHAR Char : Text)
		{
			if (FPrintableText::IsControlCharacter(Char) && Char != TEXT('\n'))
			{
				Escaped += FString::Printf(TEXT("\\u%04x"), static_cast<int32>(Char));
			}
			else
			{
				Escaped.AppendChar(Char);
			}
		}
		return ToUtf8(Escaped);
	}
}

std::string CastellanJsonReport::FormatCreateResult(const FCreateResult& Result)
{
	FJson Json;
	Json["outcome"] = ToJson(Result.Wizard.Outcome);
	Json["done_text"] = Result.Wizard.Outcome == ELivestreamWizardOutcome::Refused ? FJson() : FJson(ToUtf8(Result.Wizard.DoneText));
	Json["warnings"] = ToJson(Result.Wizard.Warnings);
	FJson& Messages = Json["editor_messages"] = FJson::array();
	for (const FEditorMessage& Message : Result.EditorMessages)
	{
		Messages.push_back(ToJson(Message));
	}
	FJson& Actors = Json["level"]["actors"] = FJson::array();
	for (const FActorSnapshot& Actor : Result.Level.Actors)
	{
		Actors.push_back(ToJson(Actor));
	}
	Json["level"]["selected"] = ToJson(Result.Level.SelectedActors);
	FJson& Assets = Json["assets"] = FJson::array();
	for (const FAssetSnapshot& Asset : Result.Level.Assets)
	{
		Assets.push_back({{"path", ToUtf8(Asset.Path)}, {"class", ToUtf8(Asset.ClassName)}, {"dirty", Asset.bPackageDirty}});
	}
	Json["undo_history"] = ToJson(Result.Level.UndoHistory);
	return EscapeControlCharacters(Json.dump(2)) + "\n";
}
