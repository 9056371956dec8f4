#include "PropertyValueWidgets.h"

#include "DetailLayoutBuilder.h"
#include "Internationalization/Internationalization.h"
#include "Styling/AppStyle.h"
#include "UObject/Class.h"
#include "UObject/EnumProperty.h"
#include "UObject/TextProperty.h"
#include "UObject/UnrealType.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "PropertyEditor"

namespace
{
	using PropertyValueWidgets::FValueWidget;

	FText GetMultipleValuesText()
	{
		return LOCTEXT("MultipleValues", "Multiple Values");
	}

	FValueWidget MakeBool(const TSharedRef<IPropertyHandle>& Handle)
	{
		TSharedRef<SWidget> Box = SNew(SCheckBox)
									  .IsChecked_Lambda([Handle]()
										  {
											  bool bValue = false;
											  const FPropertyAccess::Result Result = Handle->GetValue(bValue);
											  if (Result == FPropertyAccess::MultipleValues)
											  {
												  return ECheckBoxState::Undetermined;
											  }
											  return Result == FPropertyAccess::Success && bValue ? ECheckBoxState::Checked : ECheckBoxState::Unchecked; })
									  .OnCheckStateChanged_Lambda([Handle](ECheckBoxState NewState)
										  { Handle->SetValue(NewState == ECheckBoxState::Checked); });
		// A check box asks for no width of its own.
		return {Box, 0.0f, 0.0f};
	}

	/** The display name of the enumeration's value the handle holds, read through its text form. */
	FText GetEnumValueText(const TSharedRef<IPropertyHandle>& Handle, const UEnum* Enum)
	{
		FString Name;
		if (Handle->GetValueAsFormattedString(Name) == FPropertyAccess::MultipleValues)
		{
			return GetMultipleValuesText();
		}
		for (int32 Index = 0; Index < Enum->NumEnums(); ++Index)
		{
			if (Enum->GetNameStringByIndex(Index) == Name)
			{
				return Enum->GetDisplayNameTextByIndex(Index);
			}
		}
		return FText::FromString(Name);
	}

	/** The drop-down of an enumeration: one entry per value but the trailing _MAX, each setting it. */
	TSharedRef<SWidget> MakeEnumMenu(const TSharedRef<IPropertyHandle>& Handle, const UEnum* Enum)
	{
		TSharedRef<SVerticalBox> Entries = SNew(SVerticalBox);
		for (int32 Index = 0; Index < Enum->NumEnums(); ++Index)
		{
			const FString Name = Enum->GetNameStringByIndex(Index);
			if (Name.EndsWith(TEXT("_MAX")))
			{
				continue;
			}
			Entries->AddSlot().AutoHeight()[SNew(SButton)
												.ButtonStyle(&FAppStyle::Get().GetWidgetStyle<FButtonStyle>("NoBorder"))
												.OnClicked_Lambda([Handle, Name]()
													{
														Handle->SetValueFromFormattedString(Name);
														return FReply::Handled(); })[SNew(STextBlock).Font(IDetailLayoutBuilder::GetDetailFont()).Text(Enum->GetDisplayNameTextByIndex(Index))]];
		}
		return Entries;
	}

	FValueWidget MakeEnum(const TSharedRef<IPropertyHandle>& Handle, const UEnum* Enum)
	{
		TSharedRef<SWidget> Combo = SNew(SComboButton)
										.OnGetMenuContent_Lambda([Handle, Enum]()
											{ return MakeEnumMenu(Handle, Enum); })
										.ButtonContent()[SNew(STextBlock).Font(IDetailLayoutBuilder::GetDetailFont()).Text_Lambda([Handle, Enum]()
											{ return GetEnumValueText(Handle, Enum); })];
		return {Combo, 125.0f, 400.0f};
	}

	/** The picker of an object: the object's name, or None; its drop-down clears it. */
	FValueWidget MakeObject(const TSharedRef<IPropertyHandle>& Handle)
	{
		TSharedRef<SWidget> Combo = SNew(SComboButton)
										.OnGetMenuContent_Lambda([Handle]()
											{ return TSharedRef<SWidget>(SNew(SButton)
																			 .ButtonStyle(&FAppStyle::Get().GetWidgetStyle<FButtonStyle>("NoBorder"))
																			 .OnClicked_Lambda([Handle]()
																				 {
																					 Handle->SetValue(static_cast<UObject*>(nullptr));
																					 return FReply::Handled(); })[SNew(STextBlock).Font(IDetailLayoutBuilder::GetDetailFont()).Text(LOCTEXT("ClearAsset", "Clear"))]); })
										.ButtonContent()[SNew(STextBlock).Font(IDetailLayoutBuilder::GetDetailFont()).Text_Lambda([Handle]()
											{
																																 UObject* Object = nullptr;
																																 const FPropertyAccess::Result Result = Handle->GetValue(Object);
																																 if (Result == FPropertyAccess::MultipleValues)
																																 {
																																	 return GetMultipleValuesText();
																																 }
																																 return Object ? FText::FromString(Object->GetName()) : LOCTEXT("NoObject", "None"); })];
		return {Combo, 250.0f, 350.0f};
	}

	FValueWidget MakeArray(const TSharedRef<IPropertyHandle>& Handle)
	{
		TSharedRef<SWidget> Count = SNew(STextBlock)
										.Font(IDetailLayoutBuilder::GetDetailFont())
										.Text_Lambda([Handle]()
											{
												uint32 Num = 0;
												Handle->GetNumChildren(Num);
												return FText::Format(LOCTEXT("NumArrayItemsFmt", "{0} Array elements"), FText::AsNumber(Num)); });
		return {Count, 170.0f, 170.0f};
	}

	/** A decimal number as the editor's number boxes show it: no trailing zeros, but one digit after the point. */
	FString FormatDecimal(const FString& Value)
	{
		int32 Point = INDEX_NONE;
		if (!Value.FindChar(TEXT('.'), Point))
		{
			return Value;
		}
		int32 End = Value.Len();
		while (End > Point + 2 && Value[End - 1] == TEXT('0'))
		{
			--End;
		}
		return Value.Left(End);
	}

	/** Numbers, names and strings are edited as their text. */
	FValueWidget MakeText(const TSharedRef<IPropertyHandle>& Handle, float MinWidth, float MaxWidth)
	{
		const bool bDecimal = CastField<FFloatProperty>(Handle->GetProperty()) || CastField<FDoubleProperty>(Handle->GetProperty());
		TSharedRef<SWidget> Box = SNew(SEditableTextBox)
									  .Font(IDetailLayoutBuilder::GetDetailFont())
									  .Text_Lambda([Handle, bDecimal]()
										  {
											  FString Value;
											  if (Handle->GetValueAsFormattedString(Value) == FPropertyAccess::MultipleValues)
											  {
												  return GetMultipleValuesText();
											  }
											  return FText::FromString(bDecimal ? FormatDecimal(Value) : Value); })
									  .OnTextCommitted_Lambda([Handle](const FText& NewText, ETextCommit::Type CommitType)
										  { Handle->SetValueFromFormattedString(NewText.ToString()); });
		return {Box, MinWidth, MaxWidth};
	}

	bool IsNumeric(const FProperty* Property)
	{
		return CastField<FIntProperty>(Property) || CastField<FUInt32Property>(Property) || CastField<FInt64Property>(Property) || CastField<FUInt64Property>(Property) || CastField<FFloatProperty>(Property) || CastField<FDoubleProperty>(Property);
	}
}

FValueWidget PropertyValueWidgets::Make(const TSharedRef<IPropertyHandle>& Handle)
{
	const FProperty* Property = Handle->GetProperty();
	if (!Property || CastField<FStructProperty>(Property))
	{
		return {SNullWidget::NullWidget, TOptional<float>(), TOptional<float>()};
	}
	if (CastField<FBoolProperty>(Property))
	{
		return MakeBool(Handle);
	}
	if (const FEnumProperty* EnumProperty = CastField<FEnumProperty>(Property))
	{
		return MakeEnum(Handle, EnumProperty->GetEnum());
	}
	if (const FByteProperty* ByteProperty = CastField<FByteProperty>(Property))
	{
		// A plain byte is a small number; an enumeration as a byte picks among its values.
		return ByteProperty->Enum ? MakeEnum(Handle, ByteProperty->Enum) : MakeText(Handle, 75.0f, 75.0f);
	}
	if (CastField<FObjectProperty>(Property))
	{
		return MakeObject(Handle);
	}
	if (CastField<FArrayProperty>(Property))
	{
		return MakeArray(Handle);
	}
	if (IsNumeric(Property))
	{
		return MakeText(Handle, 125.0f, 125.0f);
	}
	return MakeText(Handle, 125.0f, 600.0f);
}

#undef LOCTEXT_NAMESPACE
