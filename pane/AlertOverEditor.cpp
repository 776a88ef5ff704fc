#include "pane/AlertOverEditor.h"

#include "platform/appkit/colors/SystemColors.h"
#include "platform/appkit/textfields/FieldEditor.h"

void displayOverEditor(FieldEditor *editor, const std::function<void()> &display)
{
    if (!editor)
        return display();
    editor->setBackgroundColor(Qt::white);
    editor->setSelectedRange(0, 0);
    display();
    editor->setBackgroundColor(liveColor(NSColor::selectedTextBackgroundColor()));
    editor->selectAll();
}
