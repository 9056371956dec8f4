#include "Views/EditorViews.h"

#include "Views/DetailsViews.h"
#include "Views/PanelViews.h"
#include "Views/WizardViews.h"

const TArray<FEditorView>& FEditorViews::GetAll()
{
	static const TArray<FEditorView> Views = []()
	{
		TArray<FEditorView> All;
		All.Append(MakeLivestreamWizardViews());
		All.Append(MakePanelViews());
		All.Append(MakeDetailsViews());
		return All;
	}();
	return Views;
}

const FEditorView* FEditorViews::Find(const FString& Name)
{
	return GetAll().FindByPredicate([&Name](const FEditorView& View)
		{ return View.Name.Equals(Name, ESearchCase::CaseSensitive); });
}
