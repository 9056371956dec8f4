#include "Components/SceneCaptureComponent.h"
#include "Components/SceneCaptureComponent2D.h"
#include "Components/SceneComponent.h"
#include "DetailsViewDriver.h"
#include "Engine/Engine.h"
#include "Engine/Texture.h"
#include "Engine/TextureRenderTarget2D.h"
#include "HeadlessEditorSession.h"
#include "PropertyHandle.h"
#include "UObject/EnumProperty.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "Widgets/Input/SCheckBox.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace
{
	FString TextOf(const FText& Text)
	{
		return Text.ToString();
	}

	template <typename PropertyType>
	PropertyType* FindTyped(const UStruct* Struct, const TCHAR* Name)
	{
		return CastField<PropertyType>(Struct->FindPropertyByName(FName(Name)));
	}

	/** The two neighbouring bitfields of a scene capture, read by the compiler's own code. */
	struct FCaptureFlags
	{
		bool bEveryFrame = false;
		bool bOnMovement = false;

		static FCaptureFlags Of(const USceneCaptureComponent* Capture)
		{
			return {Capture->bCaptureEveryFrame != 0, Capture->bCaptureOnMovement != 0};
		}
		static void Set(USceneCaptureComponent* Capture, bool bEveryFrame, bool bOnMovement)
		{
			Capture->bCaptureEveryFrame = bEveryFrame;
			Capture->bCaptureOnMovement = bOnMovement;
		}
		bool operator==(const FCaptureFlags& Other) const { return bEveryFrame == Other.bEveryFrame && bOnMovement == Other.bOnMovement; }
	};

	std::ostream& operator<<(std::ostream& Stream, const FCaptureFlags& Flags)
	{
		return Stream << "{EveryFrame " << Flags.bEveryFrame << ", OnMovement " << Flags.bOnMovement << "}";
	}

	FBoolProperty* FindCaptureFlag(const TCHAR* Name)
	{
		return FindTyped<FBoolProperty>(USceneCaptureComponent::StaticClass(), Name);
	}

	/** A word whose one-bit field sits in its third byte, between two wide fields. */
	struct FWideFlags
	{
		uint32 Low : 17;
		uint32 bHigh : 1;
		uint32 Rest : 14;
	};

	void SetHighBit(void* Object)
	{
		static_cast<FWideFlags*>(Object)->bHigh = 1;
	}

	void SetNoBit(void* Object)
	{
	}

	void SetTwoBits(void* Object)
	{
		static_cast<FWideFlags*>(Object)->Low = 3;
	}
}

TEST(Reflection, RenderTargetClassDefaultsAreReadableThroughProperties)
{
	const UObject* Defaults = UTextureRenderTarget2D::StaticClass()->GetDefaultObject();
	ASSERT_NE(Defaults, nullptr);
	EXPECT_TRUE(Defaults->HasAnyFlags(RF_ClassDefaultObject));

	FIntProperty* SizeX = FindTyped<FIntProperty>(UTextureRenderTarget2D::StaticClass(), TEXT("SizeX"));
	ASSERT_NE(SizeX, nullptr);
	EXPECT_EQ(SizeX->GetPropertyValue_InContainer(Defaults), 1);
	EXPECT_EQ(SizeX->GetMetaData(TEXT("Category")), TEXT("TextureRenderTarget2D"));
	EXPECT_TRUE(SizeX->HasAllPropertyFlags(CPF_Edit | CPF_BlueprintVisible | CPF_BlueprintReadOnly));

	FByteProperty* Format = FindTyped<FByteProperty>(UTextureRenderTarget2D::StaticClass(), TEXT("RenderTargetFormat"));
	ASSERT_NE(Format, nullptr);
	ASSERT_NE(Format->Enum, nullptr);
	EXPECT_EQ(Format->GetCPPType(), TEXT("TEnumAsByte<ETextureRenderTargetFormat>"));
	FString FormatText;
	Format->ExportTextItem_Direct(FormatText, Format->ContainerPtrToValuePtr<void>(Defaults), nullptr, nullptr, PPF_None);
	EXPECT_EQ(FormatText, TEXT("RTF_RGBA16f"));

	FStructProperty* ClearColor = FindTyped<FStructProperty>(UTextureRenderTarget2D::StaticClass(), TEXT("ClearColor"));
	ASSERT_NE(ClearColor, nullptr);
	EXPECT_EQ(ClearColor->Struct, StaticStruct<FLinearColor>());
	EXPECT_EQ(*ClearColor->ContainerPtrToValuePtr<FLinearColor>(Defaults), FLinearColor(0.0f, 0.0f, 0.0f, 1.0f));
	FString ColorText;
	ClearColor->ExportTextItem_Direct(ColorText, ClearColor->ContainerPtrToValuePtr<void>(Defaults), nullptr, nullptr, PPF_None);
	EXPECT_EQ(ColorText, TEXT("(R=0.000000,G=0.000000,B=0.000000,A=1.000000)"));
}

TEST(Reflection, ClassesKnowTheirSuperFlagsAndPackage)
{
	UClass* Class = UTextureRenderTarget2D::StaticClass();
	EXPECT_EQ(Class->GetName(), TEXT("TextureRenderTarget2D"));
	EXPECT_EQ(Class->GetPathName(), TEXT("/Script/Engine.TextureRenderTarget2D"));
	EXPECT_EQ(Class->GetSuperClass(), UTextureRenderTarget::StaticClass());
	EXPECT_TRUE(Class->IsChildOf(UTexture::StaticClass()));
	EXPECT_FALSE(UTexture::StaticClass()->IsChildOf(Class));
	EXPECT_TRUE(UTexture::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_FALSE(Class->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_TRUE(UEngine::StaticClass()->HasAnyClassFlags(CLASS_Config));
	EXPECT_EQ(UEngine::StaticClass()->ClassConfigName, FName(TEXT("Engine")));
}

TEST(Reflection, PropertiesIterateOwnFirstThenInherited)
{
	TArray<FString> Names;
	for (TFieldIterator<FProperty> It(UTextureRenderTarget2D::StaticClass()); It; ++It)
	{
		Names.Add(It->GetName());
	}
	const TArray<FString> Expected = {TEXT("SizeX"), TEXT("SizeY"), TEXT("ClearColor"), TEXT("RenderTargetFormat"), TEXT("bAutoGenerateMips"), TEXT("TargetGamma"), TEXT("SRGB")};
	EXPECT_EQ(Names, Expected);
	EXPECT_NE(UTextureRenderTarget2D::StaticClass()->FindPropertyByName(TEXT("TargetGamma")), nullptr);
	EXPECT_EQ(UTextureRenderTarget2D::StaticClass()->FindPropertyByName(TEXT("NoSuchProperty")), nullptr);
}

TEST(Reflection, ShowFlagSettingStructHasNamedTypedMembersAtTheirOffsets)
{
	UScriptStruct* Struct = FEngineShowFlagsSetting::StaticStruct();
	ASSERT_NE(Struct, nullptr);
	EXPECT_EQ(Struct, StaticStruct<FEngineShowFlagsSetting>());
	EXPECT_EQ(Struct->GetName(), TEXT("EngineShowFlagsSetting"));
	EXPECT_EQ(Struct->GetStructureSize(), static_cast<int32>(sizeof(FEngineShowFlagsSetting)));

	FStrProperty* Name = FindTyped<FStrProperty>(Struct, TEXT("ShowFlagName"));
	FBoolProperty* Enabled = FindTyped<FBoolProperty>(Struct, TEXT("Enabled"));
	ASSERT_NE(Name, nullptr);
	ASSERT_NE(Enabled, nullptr);
	EXPECT_EQ(Name->GetOffset_ForInternal(), static_cast<int32>(offsetof(FEngineShowFlagsSetting, ShowFlagName)));
	EXPECT_EQ(Enabled->GetOffset_ForInternal(), static_cast<int32>(offsetof(FEngineShowFlagsSetting, Enabled)));
	EXPECT_EQ(Name->GetOwnerStruct(), Struct);

	// Identical goes through the struct's operator==, which compares names ignoring case.
	FEngineShowFlagsSetting A{TEXT("Fog"), true};
	FEngineShowFlagsSetting B{TEXT("fog"), true};
	FEngineShowFlagsSetting C{TEXT("Fog"), false};
	EXPECT_TRUE(Struct->CompareScriptStruct(&A, &B, 0));
	EXPECT_FALSE(Struct->CompareScriptStruct(&A, &C, 0));
}

TEST(Reflection, ShowFlagSettingsArrayIsEditableThroughItsProperty)
{
	USceneCaptureComponent2D* Capture = NewObject<USceneCaptureComponent2D>();
	FArrayProperty* Array = FindTyped<FArrayProperty>(USceneCaptureComponent2D::StaticClass(), TEXT("ShowFlagSettings"));
	ASSERT_NE(Array, nullptr);
	EXPECT_EQ(Array->GetOwnerStruct(), USceneCaptureComponent::StaticClass());
	EXPECT_EQ(Array->GetCPPType(), TEXT("TArray<FEngineShowFlagsSetting>"));
	FStructProperty* Inner = CastField<FStructProperty>(Array->Inner);
	ASSERT_NE(Inner, nullptr);
	EXPECT_EQ(Inner->Struct, FEngineShowFlagsSetting::StaticStruct());

	FScriptArrayHelper Helper(Array, Array->ContainerPtrToValuePtr<void>(Capture));
	EXPECT_EQ(Helper.Num(), 0);
	EXPECT_EQ(Helper.AddValue(), 0);
	EXPECT_EQ(Helper.AddValue(), 1);
	FindTyped<FStrProperty>(Inner->Struct, TEXT("ShowFlagName"))->SetPropertyValue_InContainer(Helper.GetRawPtr(1), TEXT("Fog"));
	FindTyped<FBoolProperty>(Inner->Struct, TEXT("Enabled"))->SetPropertyValue_InContainer(Helper.GetRawPtr(1), true);
	ASSERT_EQ(Capture->ShowFlagSettings.Num(), 2);
	EXPECT_EQ(Capture->ShowFlagSettings[1].ShowFlagName, TEXT("Fog"));
	EXPECT_TRUE(Capture->ShowFlagSettings[1].Enabled);

	Helper.RemoveValues(0);
	ASSERT_EQ(Capture->ShowFlagSettings.Num(), 1);
	EXPECT_EQ(Capture->ShowFlagSettings[0].ShowFlagName, TEXT("Fog"));

	FString Text;
	Array->ExportTextItem_Direct(Text, Array->ContainerPtrToValuePtr<void>(Capture), nullptr, Capture, PPF_None);
	EXPECT_EQ(Text, TEXT("((ShowFlagName=\"Fog\",Enabled=True))"));

	Helper.EmptyValues();
	EXPECT_TRUE(Capture->ShowFlagSettings.IsEmpty());
	EXPECT_NE(Array->ImportText_Direct(TEXT("((ShowFlagName=\"Bloom\",Enabled=False),(ShowFlagName=\"Game\",Enabled=True))"), Array->ContainerPtrToValuePtr<void>(Capture), Capture, PPF_None), nullptr);
	ASSERT_EQ(Capture->ShowFlagSettings.Num(), 2);
	EXPECT_EQ(Capture->ShowFlagSettings[0].ShowFlagName, TEXT("Bloom"));
	EXPECT_TRUE(Capture->ShowFlagSettings[1].Enabled);
}

TEST(Reflection, ObjectPointerPropertyNamesItsClassAndAcceptsOnlyIt)
{
	USceneCaptureComponent2D* Capture = NewObject<USceneCaptureComponent2D>();
	UTextureRenderTarget2D* Target = NewObject<UTextureRenderTarget2D>();
	FObjectProperty* Property = FindTyped<FObjectProperty>(USceneCaptureComponent2D::StaticClass(), TEXT("TextureTarget"));
	ASSERT_NE(Property, nullptr);
	EXPECT_EQ(Property->PropertyClass, UTextureRenderTarget2D::StaticClass());
	EXPECT_EQ(Property->GetCPPType(), TEXT("TObjectPtr<UTextureRenderTarget2D>"));

	Property->SetObjectPropertyValue(Property->ContainerPtrToValuePtr<void>(Capture), Target);
	EXPECT_EQ(Capture->TextureTarget, Target);
	FString Path;
	Property->ExportTextItem_Direct(Path, Property->ContainerPtrToValuePtr<void>(Capture), nullptr, Capture, PPF_None);
	EXPECT_EQ(Path, Target->GetPathName());
}

TEST(ReflectionDeathTest, ObjectPointerPropertyRefusesAnObjectOfAnotherClass)
{
	USceneCaptureComponent2D* Capture = NewObject<USceneCaptureComponent2D>();
	FObjectProperty* Property = FindTyped<FObjectProperty>(USceneCaptureComponent2D::StaticClass(), TEXT("TextureTarget"));
	ASSERT_NE(Property, nullptr);
	EXPECT_DEATH(Property->SetObjectPropertyValue(Property->ContainerPtrToValuePtr<void>(Capture), Capture), "cannot hold an object of class SceneCaptureComponent2D");
}

TEST(Reflection, EnumClassPropertyReadsNamesAndDisplayNames)
{
	USceneCaptureComponent2D* Capture = NewObject<USceneCaptureComponent2D>();
	FEnumProperty* Mode = FindTyped<FEnumProperty>(USceneCaptureComponent2D::StaticClass(), TEXT("PrimitiveRenderMode"));
	ASSERT_NE(Mode, nullptr);
	UEnum* Enum = Mode->GetEnum();
	EXPECT_EQ(Enum, StaticEnum<ESceneCapturePrimitiveRenderMode>());
	EXPECT_EQ(Enum->GetCppForm(), UEnum::ECppForm::EnumClass);
	EXPECT_EQ(TextOf(Enum->GetDisplayNameTextByValue(static_cast<int64>(ESceneCapturePrimitiveRenderMode::PRM_RenderScenePrimitives))), TEXT("Render Scene Primitives"));
	EXPECT_EQ(Enum->GetNameByIndex(Enum->NumEnums() - 1), FName(TEXT("ESceneCapturePrimitiveRenderMode::ESceneCapturePrimitiveRenderMode_MAX")));

	EXPECT_NE(Mode->ImportText_Direct(TEXT("PRM_UseShowOnlyList"), Mode->ContainerPtrToValuePtr<void>(Capture), Capture, PPF_None), nullptr);
	EXPECT_EQ(Capture->PrimitiveRenderMode, ESceneCapturePrimitiveRenderMode::PRM_UseShowOnlyList);
	EXPECT_EQ(Mode->ImportText_Direct(TEXT("NotAMode"), Mode->ContainerPtrToValuePtr<void>(Capture), Capture, PPF_None), nullptr);
}

TEST(Reflection, PrivatePropertiesAreReachedAtTheirRealOffsets)
{
	USceneComponent* Component = NewObject<USceneComponent>();
	Component->SetRelativeLocation(FVector(1.0, 2.0, 3.0));
	FStructProperty* Location = FindTyped<FStructProperty>(USceneComponent::StaticClass(), TEXT("RelativeLocation"));
	ASSERT_NE(Location, nullptr);
	EXPECT_TRUE(Location->HasAnyPropertyFlags(CPF_NativeAccessSpecifierPrivate));
	EXPECT_EQ(*Location->ContainerPtrToValuePtr<FVector>(Component), FVector(1.0, 2.0, 3.0));
	EXPECT_EQ(TextOf(Location->GetDisplayNameText()), TEXT("Relative Location"));
}

TEST(Reflection, BitfieldsAreBoolPropertiesOfOneByteNextToEachOther)
{
	FBoolProperty* EveryFrame = FindCaptureFlag(TEXT("bCaptureEveryFrame"));
	FBoolProperty* OnMovement = FindCaptureFlag(TEXT("bCaptureOnMovement"));
	ASSERT_NE(EveryFrame, nullptr);
	ASSERT_NE(OnMovement, nullptr);
	EXPECT_FALSE(EveryFrame->IsNativeBool());
	EXPECT_EQ(EveryFrame->GetCPPType(), TEXT("uint8"));
	EXPECT_EQ(EveryFrame->GetSize(), 1);
	EXPECT_EQ(EveryFrame->GetOffset_ForInternal(), OnMovement->GetOffset_ForInternal());
	EXPECT_GT(EveryFrame->GetOffset_ForInternal(), FindTyped<FEnumProperty>(USceneCaptureComponent::StaticClass(), TEXT("PrimitiveRenderMode"))->GetOffset_ForInternal());
	EXPECT_TRUE(EveryFrame->HasAllPropertyFlags(CPF_Edit | CPF_BlueprintVisible | CPF_NativeAccessSpecifierPublic));
	EXPECT_EQ(EveryFrame->GetMetaData(TEXT("Category")), TEXT("SceneCapture"));
	EXPECT_EQ(TextOf(EveryFrame->GetDisplayNameText()), TEXT("Capture Every Frame"));

	FBoolProperty* Enabled = FindTyped<FBoolProperty>(FEngineShowFlagsSetting::StaticStruct(), TEXT("Enabled"));
	ASSERT_NE(Enabled, nullptr);
	EXPECT_TRUE(Enabled->IsNativeBool());
	EXPECT_EQ(Enabled->GetCPPType(), TEXT("bool"));
}

TEST(Reflection, BitfieldPropertyReadsAndWritesOnlyItsOwnBit)
{
	USceneCaptureComponent2D* Capture = NewObject<USceneCaptureComponent2D>();
	Capture->PrimitiveRenderMode = ESceneCapturePrimitiveRenderMode::PRM_UseShowOnlyList;
	FBoolProperty* EveryFrame = FindCaptureFlag(TEXT("bCaptureEveryFrame"));
	FBoolProperty* OnMovement = FindCaptureFlag(TEXT("bCaptureOnMovement"));
	ASSERT_NE(EveryFrame, nullptr);
	ASSERT_NE(OnMovement, nullptr);

	for (const bool bValue : {false, true})
	{
		for (const bool bNeighbour : {false, true})
		{
			FCaptureFlags::Set(Capture, !bValue, bNeighbour);
			EveryFrame->SetPropertyValue_InContainer(Capture, bValue);
			EXPECT_EQ(FCaptureFlags::Of(Capture), (FCaptureFlags{bValue, bNeighbour}));
			EXPECT_EQ(EveryFrame->GetPropertyValue_InContainer(Capture), bValue);
			EXPECT_EQ(OnMovement->GetPropertyValue_InContainer(Capture), bNeighbour);

			FCaptureFlags::Set(Capture, bNeighbour, !bValue);
			OnMovement->SetPropertyValue_InContainer(Capture, bValue);
			EXPECT_EQ(FCaptureFlags::Of(Capture), (FCaptureFlags{bNeighbour, bValue}));
		}
	}
	EXPECT_EQ(Capture->PrimitiveRenderMode, ESceneCapturePrimitiveRenderMode::PRM_UseShowOnlyList);
}

TEST(Reflection, BitfieldTextCopyAndComparisonSeeOnlyItsOwnBit)
{
	USceneCaptureComponent2D* First = NewObject<USceneCaptureComponent2D>();
	USceneCaptureComponent2D* Second = NewObject<USceneCaptureComponent2D>();
	FBoolProperty* EveryFrame = FindCaptureFlag(TEXT("bCaptureEveryFrame"));
	ASSERT_NE(EveryFrame, nullptr);
	FCaptureFlags::Set(First, true, false);
	FCaptureFlags::Set(Second, false, true);

	FString Text;
	EveryFrame->ExportTextItem_Direct(Text, EveryFrame->ContainerPtrToValuePtr<void>(First), nullptr, First, PPF_None);
	EXPECT_EQ(Text, TEXT("True"));
	EXPECT_FALSE(EveryFrame->Identical_InContainer(First, Second));

	EveryFrame->CopyCompleteValue_InContainer(Second, First);
	EXPECT_EQ(FCaptureFlags::Of(Second), (FCaptureFlags{true, true}));
	EXPECT_TRUE(EveryFrame->Identical_InContainer(First, Second));

	EXPECT_NE(EveryFrame->ImportText_Direct(TEXT("False"), EveryFrame->ContainerPtrToValuePtr<void>(Second), Second, PPF_None), nullptr);
	EXPECT_EQ(FCaptureFlags::Of(Second), (FCaptureFlags{false, true}));
	EXPECT_EQ(EveryFrame->ImportText_Direct(TEXT("Maybe"), EveryFrame->ContainerPtrToValuePtr<void>(Second), Second, PPF_None), nullptr);
	EXPECT_EQ(FCaptureFlags::Of(Second), (FCaptureFlags{false, true}));
}

TEST(Reflection, BitfieldPropertyFindsItsBitInWhicheverByteHoldsIt)
{
	FBoolProperty High(nullptr, TEXT("bHigh"), CPF_None, sizeof(uint8), sizeof(FWideFlags), &SetHighBit);
	// Bit 17 of the word is bit 1 of its third byte.
	EXPECT_EQ(High.GetOffset_ForInternal(), 2);

	FWideFlags Flags{0x1FFFF, 0, 0x3FFF};
	High.SetPropertyValue_InContainer(&Flags, true);
	EXPECT_EQ(Flags.bHigh, 1u);
	EXPECT_TRUE(High.GetPropertyValue_InContainer(&Flags));
	High.SetPropertyValue_InContainer(&Flags, false);
	EXPECT_EQ(Flags.bHigh, 0u);
	EXPECT_FALSE(High.GetPropertyValue_InContainer(&Flags));
	EXPECT_EQ(Flags.Low, 0x1FFFFu);
	EXPECT_EQ(Flags.Rest, 0x3FFFu);
}

TEST(ReflectionDeathTest, BitfieldWhoseSetterSetsNoBitOrTwoIsFatal)
{
	EXPECT_DEATH(FBoolProperty(nullptr, TEXT("bNone"), CPF_None, sizeof(uint8), sizeof(FWideFlags), &SetNoBit), "Bitfield bNone sets 0 bits of its owner instead of one");
	EXPECT_DEATH(FBoolProperty(nullptr, TEXT("bTwo"), CPF_None, sizeof(uint8), sizeof(FWideFlags), &SetTwoBits), "Bitfield bTwo sets 2 bits of its owner instead of one");
}

TEST(Reflection, BitfieldIsEditedThroughTheDetailsViewWithoutTouchingItsNeighbour)
{
	FHeadlessEditorOptions Options;
	Options.bStartEditorModule = false;
	FHeadlessEditorSession Session(Options);
	USceneCaptureComponent2D* First = NewObject<USceneCaptureComponent2D>(GetTransientPackage());
	USceneCaptureComponent2D* Second = NewObject<USceneCaptureComponent2D>(GetTransientPackage());
	FCaptureFlags::Set(First, true, false);
	FCaptureFlags::Set(Second, false, true);
	FDetailsViewDriver Driver({First, Second});

	// The second bitfield of the byte: a handle that read or wrote the byte as a bool would miss it.
	const TSharedRef<IPropertyHandle> OnMovement = Driver.GetView().GetPropertyHandle(TEXT("bCaptureOnMovement"));
	ASSERT_TRUE(OnMovement->IsValidHandle());
	bool bValue = false;
	EXPECT_EQ(OnMovement->GetValue(bValue), FPropertyAccess::MultipleValues);
	const TSharedPtr<FHeadlessDetailRow> Row = Driver.FindPropertyRow(TEXT("bCaptureOnMovement"));
	ASSERT_TRUE(Row.IsValid());
	const TSharedPtr<SCheckBox> Box = FDetailsViewDriver::FindValueWidget<SCheckBox>(*Row, TEXT("SCheckBox"));
	ASSERT_TRUE(Box.IsValid());
	EXPECT_EQ(Box->GetCheckedState(), ECheckBoxState::Undetermined);

	EXPECT_EQ(OnMovement->SetValue(true), FPropertyAccess::Success);
	EXPECT_EQ(FCaptureFlags::Of(First), (FCaptureFlags{true, true}));
	EXPECT_EQ(FCaptureFlags::Of(Second), (FCaptureFlags{false, true}));
	EXPECT_EQ(OnMovement->GetValue(bValue), FPropertyAccess::Success);
	EXPECT_TRUE(bValue);
	EXPECT_EQ(Box->GetCheckedState(), ECheckBoxState::Checked);

	const TSharedRef<IPropertyHandle> EveryFrame = Driver.GetView().GetPropertyHandle(TEXT("bCaptureEveryFrame"));
	EXPECT_EQ(EveryFrame->SetValueFromFormattedString(TEXT("True")), FPropertyAccess::Success);
	EXPECT_EQ(FCaptureFlags::Of(Second), (FCaptureFlags{true, true}));
	EXPECT_EQ(OnMovement->SetValue(false), FPropertyAccess::Success);
	EXPECT_EQ(FCaptureFlags::Of(First), (FCaptureFlags{true, false}));
	EXPECT_EQ(FCaptureFlags::Of(Second), (FCaptureFlags{true, false}));
	EXPECT_EQ(OnMovement->GetValue(bValue), FPropertyAccess::Success);
	EXPECT_FALSE(bValue);
	EXPECT_EQ(Box->GetCheckedState(), ECheckBoxState::Unchecked);
}
