#include "updater/InterfaceClasses.h"

#include "updater/BuildNotesWindow.h"
#include "updater/UpdateStatusLabel.h"

QList<InterfaceClass> updaterInterfaceClasses()
{
    return {
        {QStringLiteral("BuildNotesWindow"),
            [](QWidget *parent, const NSBundle *bundle) { return new BuildNotesWindow(parent, bundle); }},
        {QStringLiteral("UpdateStatusLabel"),
            [](QWidget *parent, const NSBundle *bundle) { return new UpdateStatusLabel(parent, bundle); }},
    };
}
