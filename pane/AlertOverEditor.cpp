#include "pane/AlertOverEditor.h"

#include "platform/appkit/FieldEditor.h"
#include "platform/appkit/SystemColors.h"

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
