#include "SourceListControls.h"

#include "HeadlessNDISources.h"
#include "HeadlessScreenCaptureSources.h"
#include "HeadlessSpoutSenders.h"

namespace
{
	/** One runtime record per name, in the same order. */
	template <typename RecordType>
	TArray<RecordType> RecordsNamed(const TArray<FString>& Names)
	{
		TArray<RecordType> Records;
		for (const FString& Name : Names)
		{
			Records.AddDefaulted_GetRef().Name = Name;
		}
		return Records;
	}
}

void HeadlessSourceLists::SetSpoutSenderNames(const TArray<FString>& Names)
{
	UE::Headless::SetActiveSpoutSenderNames(Names);
}

void HeadlessSourceLists::SetNDISourceNames(const TArray<FString>& Names)
{
	UE::Headless::SetNDISources(RecordsNamed<FNDISource>(Names));
}

void HeadlessSourceLists::SetMonitorNames(const TArray<FString>& Names)
{
	UE::Headless::SetScreenCaptureMonitors(RecordsNamed<FKyroMonitorInfo>(Names));
}

void HeadlessSourceLists::SetWindowNames(const TArray<FString>& Names)
{
	UE::Headless::SetScreenCaptureWindows(RecordsNamed<FKyroWindowInfo>(Names));
}

void HeadlessSourceLists::Reset()
{
	UE::Headless::SetActiveSpoutSenderNames({});
	UE::Headless::SetNDISources({});
	UE::Headless::SetScreenCaptureMonitors({});
	UE::Headless::SetScreenCaptureWindows({});
}
