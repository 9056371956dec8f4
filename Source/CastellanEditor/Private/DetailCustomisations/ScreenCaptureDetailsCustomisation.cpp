// Copyright Nimbrel. All Rights Reserved.

#include "ScreenCaptureDetailsCustomisation.h"

#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "IDetailChildrenBuilder.h"
#include "PropertyHandle.h"
#include "ScreenCaptureHelpers.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "KyroScreenCapture"

TSharedRef<IPropertyTypeCustomization> FScreenCaptureDetailsCustomisation::MakeInstance()
{
	return MakeShareable(new FScreenCaptureDetailsCustomisation);
}

void FScreenCaptureDetailsCustomisation::CustomizeHeader(TSharedRef<IPropertyHandle> StructPropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils& Utils)
{
}

void FScreenCaptureDetailsCustomisation::CustomizeChildren(TSharedRef<IPropertyHandle> StructPropertyHandle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& Utils)
{
	const TSharedPtr<IPropertyHandle> ActiveProperty = StructPropertyHandle->GetChildHandle(TEXT("Active"));
	const TSharedPtr<IPropertyHandle> ScreenCaptureTypeProperty = StructPropertyHandle->GetChildHandle(TEXT("ScreenCaptureType"));
	const TSharedPtr<IPropertyHandle> CaptureCursorProperty = StructPropertyHandle->GetChildHandle(TEXT("CaptureCursor"));
	const TSharedPtr<IPropertyHandle> RenderTargetProperty = StructPropertyHandle->GetChildHandle(TEXT("RenderTarget"));
	const TSharedPtr<IPropertyHandle> HideRenderTargetProperty = StructPropertyHandle->GetChildHandle(TEXT("bHideRenderTarget"));

	bool bHideRenderTarget = false;
	if (HideRenderTargetProperty.IsValid())
	{
		HideRenderTargetProperty->GetValue(bHideRenderTarget);
	}
	if (!bHideRenderTarget)
	{
		ChildBuilder.AddProperty(ActiveProperty.ToSharedRef());
		ChildBuilder.AddProperty(RenderTargetProperty.ToSharedRef());
	}
	ChildBuilder.AddProperty(ScreenCaptureTypeProperty.ToSharedRef());

	CaptureTypeProperty = StructPropertyHandle->GetChildHandle(TEXT("ScreenCaptureType"));
	check(CaptureTypeProperty);
	CaptureTypeProperty->SetOnPropertyValueChanged(FSimpleDelegate::CreateSP(this, &FScreenCaptureDetailsCustomisation::OnCaptureTypeChanged));
	OnCaptureTypeChanged();

	// Both pickers are built; the capture type only decides which one shows.
	AddSourcePickerRow(ChildBuilder, StructPropertyHandle, ESourcePickerKind::Monitor);
	AddSourcePickerRow(ChildBuilder, StructPropertyHandle, ESourcePickerKind::Window);

	ChildBuilder.AddProperty(CaptureCursorProperty.ToSharedRef());
}

void FScreenCaptureDetailsCustomisation::AddSourcePickerRow(IDetailChildrenBuilder& ChildBuilder, TSharedRef<IPropertyHandle> StructPropertyHandle, ESourcePickerKind Kind)
{
	const TSharedPtr<IPropertyHandle> NameProperty = GetSourceNameProperty(StructPropertyHandle, Kind);
	check(NameProperty->IsValidHandle());
	NameProperty->MarkHiddenByCustomization();
	RefreshOptionList(Kind);
	const FText Label = GetSourceFilterText(Kind);
	const FString Value = InitialiseSourceName(Kind, NameProperty);
	const TSharedPtr<FString>* Initial = FindOptionItem(Value, Kind);

	// clang-format off
	ChildBuilder.AddCustomRow(Label)
	.Visibility(TAttribute<EVisibility>::CreateSP(this, &FScreenCaptureDetailsCustomisation::GetSourceRowVisibility, Kind))
	.NameContent()
	[
		NameProperty->CreatePropertyNameWidget()
	]
	.ValueContent()
	.MinDesiredWidth(250.0f)
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(0.0f, 2.0f)
		[
			SNew(SComboBox<TSharedPtr<FString>>)
			.OptionsSource(GetOptionList(Kind))
			.InitiallySelectedItem(Initial ? *Initial : nullptr)
			.OnGenerateWidget(this, &FScreenCaptureDetailsCustomisation::MakeOptionWidget)
			.OnSelectionChanged(this, &FScreenCaptureDetailsCustomisation::OnSourceSelectionChanged, NameProperty)
			[
				SNew(STextBlock)
				.Text(this, &FScreenCaptureDetailsCustomisation::GetSourceNameText, NameProperty)
				.Margin(FMargin(2.0f, 0.0f))
				.Font(IDetailLayoutBuilder::GetDetailFont())
				.Justification(ETextJustify::Center)
			]
		]
	];
	// clang-format on
}

TSharedPtr<IPropertyHandle> FScreenCaptureDetailsCustomisation::GetSourceNameProperty(TSharedRef<IPropertyHandle> StructPropertyHandle, ESourcePickerKind Kind)
{
	switch (Kind)
	{
		case ESourcePickerKind::Monitor:
			return StructPropertyHandle->GetChildHandle(TEXT("MonitorName"));
		case ESourcePickerKind::Window:
			return StructPropertyHandle->GetChildHandle(TEXT("WindowName"));
		default:
			return nullptr;
	}
}

void FScreenCaptureDetailsCustomisation::RefreshOptionList(ESourcePickerKind Kind)
{
	// Appended once per panel build; sources that come or go later show after a rebuild.
	if (Kind == ESourcePickerKind::Monitor)
	{
		for (const FKyroMonitorInfo& Monitor : FScreenCaptureHelpers::GetMonitors())
		{
			MonitorOptionList.Add(MakeShared<FString>(Monitor.Name));
		}
	}
	else if (Kind == ESourcePickerKind::Window)
	{
		for (const FKyroWindowInfo& Window : FScreenCaptureHelpers::GetWindows())
		{
			WindowOptionList.Add(MakeShared<FString>(Window.Name));
		}
	}
}

FText FScreenCaptureDetailsCustomisation::GetSourceFilterText(ESourcePickerKind Kind) const
{
	switch (Kind)
	{
		case ESourcePickerKind::Monitor:
			return LOCTEXT("MonitorName", "MonitorName");
		case ESourcePickerKind::Window:
			return LOCTEXT("WindowName", "WindowName");
		default:
			return FText::GetEmpty();
	}
}

EVisibility FScreenCaptureDetailsCustomisation::GetSourceRowVisibility(ESourcePickerKind Kind) const
{
	return CachedCaptureType == static_cast<uint8>(Kind) ? EVisibility::Visible : EVisibility::Collapsed;
}

const TArray<TSharedPtr<FString>>* FScreenCaptureDetailsCustomisation::GetOptionList(ESourcePickerKind Kind)
{
	switch (Kind)
	{
		case ESourcePickerKind::Monitor:
			return &MonitorOptionList;
		case ESourcePickerKind::Window:
			return &WindowOptionList;
		default:
			return &EmptyOptionList;
	}
}

FString FScreenCaptureDetailsCustomisation::InitialiseSourceName(ESourcePickerKind Kind, TSharedPtr<IPropertyHandle> NameProperty)
{
	FString Name;
	NameProperty->GetValue(Name);
	if (Name.IsEmpty())
	{
		NameProperty->NotifyPreChange();
		if (Kind == ESourcePickerKind::Monitor)
		{
			ensure(NameProperty->SetValueFromFormattedString(*MonitorOptionList[0].Get(), EPropertyValueSetFlags::DefaultFlags) == FPropertyAccess::Result::Success);
		}
		else if (Kind == ESourcePickerKind::Window)
		{
			ensure(NameProperty->SetValueFromFormattedString(*WindowOptionList[0].Get(), EPropertyValueSetFlags::DefaultFlags) == FPropertyAccess::Result::Success);
		}
		NameProperty->NotifyPostChange(EPropertyChangeType::ValueSet);
	}
	NameProperty->GetValue(Name);
	return Name;
}

const TSharedPtr<FString>* FScreenCaptureDetailsCustomisation::FindOptionItem(FString Value, ESourcePickerKind Kind)
{
	if (Kind != ESourcePickerKind::Monitor && Kind != ESourcePickerKind::Window)
	{
		return nullptr;
	}
	for (const TSharedPtr<FString>& Option : *GetOptionList(Kind))
	{
		if (Option->Equals(Value))
		{
			return &Option;
		}
	}
	return nullptr;
}

FText FScreenCaptureDetailsCustomisation::GetSourceNameText(TSharedPtr<IPropertyHandle> NameProperty) const
{
	FString Name;
	NameProperty->GetValue(Name);
	return FText::FromString(Name);
}

void FScreenCaptureDetailsCustomisation::OnSourceSelectionChanged(TSharedPtr<FString> SelectedItem, ESelectInfo::Type SelectInfo, TSharedPtr<IPropertyHandle> NameProperty)
{
	NameProperty->NotifyPreChange();
	ensure(NameProperty->SetValueFromFormattedString(*SelectedItem.Get(), EPropertyValueSetFlags::DefaultFlags) == FPropertyAccess::Result::Success);
	NameProperty->NotifyPostChange(EPropertyChangeType::ValueSet);
}

TSharedRef<SWidget> FScreenCaptureDetailsCustomisation::MakeOptionWidget(TSharedPtr<FString> StringItem)
{
	check(StringItem.IsValid());
	return SNew(STextBlock).Text(FText::FromString(*StringItem));
}

void FScreenCaptureDetailsCustomisation::OnCaptureTypeChanged()
{
	uint8 CaptureType = 0;
	if (CaptureTypeProperty->GetValue(CaptureType) == FPropertyAccess::Success)
	{
		CachedCaptureType = CaptureType;
	}
}

#undef LOCTEXT_NAMESPACE
