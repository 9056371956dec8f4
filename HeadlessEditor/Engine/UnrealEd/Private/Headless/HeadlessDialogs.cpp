#include "HeadlessDialogs.h"

#include "Dialogs/SChoiceDialog.h"
#include "Widgets/SWindow.h"

TSharedRef<SWidget> UE::Headless::MakeMessageDialogWidget(EAppMsgType::Type MessageType, const FText& Message, const FText* OptTitle)
{
	// The title Core gives a message box opened without one.
	const FText Title = OptTitle ? *OptTitle : NSLOCTEXT("MessageDialog", "DefaultMessageTitle", "Message");
	// As the editor opens a message box: a window sized to its content that can only be closed.
	TSharedRef<SWindow> Window = SNew(SWindow).Title(Title).SizingRule(ESizingRule::Autosized).AutoCenter(EAutoCenter::PreferredWorkArea).SupportsMinimize(false).SupportsMaximize(false);
	Window->SetContent(SNew(SChoiceDialog).Message(Message).WrapMessageAt(512.0f).MessageType(MessageType));
	return Window;
}
