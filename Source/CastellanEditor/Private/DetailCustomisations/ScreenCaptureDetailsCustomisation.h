// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IPropertyTypeCustomization.h"
#include "Types/SlateEnums.h"

class IDetailChildrenBuilder;
class IPropertyHandle;
class SWidget;
struct EVisibility;

/** Which source a picker row edits; the numbering is the capture type's. */
enum class ESourcePickerKind : uint8
{
	Monitor = 0,
	Window = 1,
};

/** Shows the screen-capture options with a monitor picker and a window picker, one visible at a time. */
class FScreenCaptureDetailsCustomisation : public IPropertyTypeCustomization
{
public:
	static TSharedRef<IPropertyTypeCustomization> MakeInstance();

	virtual void CustomizeHeader(TSharedRef<IPropertyHandle> StructPropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils& Utils) override;
	virtual void CustomizeChildren(TSharedRef<IPropertyHandle> StructPropertyHandle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& Utils) override;

private:
	void AddSourcePickerRow(IDetailChildrenBuilder& ChildBuilder, TSharedRef<IPropertyHandle> StructPropertyHandle, ESourcePickerKind Kind);
	TSharedPtr<IPropertyHandle> GetSourceNameProperty(TSharedRef<IPropertyHandle> StructPropertyHandle, ESourcePickerKind Kind);
	void RefreshOptionList(ESourcePickerKind Kind);
	FText GetSourceFilterText(ESourcePickerKind Kind) const;
	EVisibility GetSourceRowVisibility(ESourcePickerKind Kind) const;
	const TArray<TSharedPtr<FString>>* GetOptionList(ESourcePickerKind Kind);
	FString InitialiseSourceName(ESourcePickerKind Kind, TSharedPtr<IPropertyHandle> NameProperty);
	const TSharedPtr<FString>* FindOptionItem(FString Value, ESourcePickerKind Kind);
	FText GetSourceNameText(TSharedPtr<IPropertyHandle> NameProperty) const;
	void OnSourceSelectionChanged(TSharedPtr<FString> SelectedItem, ESelectInfo::Type SelectInfo, TSharedPtr<IPropertyHandle> NameProperty);
	TSharedRef<SWidget> MakeOptionWidget(TSharedPtr<FString> StringItem);
	void OnCaptureTypeChanged();

	TSharedPtr<IPropertyHandle> CaptureTypeProperty;
	uint8 CachedCaptureType = 0;
	TArray<TSharedPtr<FString>> MonitorOptionList;
	TArray<TSharedPtr<FString>> WindowOptionList;
	TArray<TSharedPtr<FString>> EmptyOptionList;
};
