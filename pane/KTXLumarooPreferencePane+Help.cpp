#include "pane/KTXLumarooPreferencePane.h"

#include "pane/HelpBook.h"

void KTXLumarooPreferencePane::buildHelpAnchors()
{
    // A help button's tag is the index; no button has tag 11.
    helpAnchors_ = {
        QStringLiteral("activate"),
        QStringLiteral("movement"),
        QStringLiteral("action"),
        QStringLiteral("updates"),
        QStringLiteral("ordering"),
        QStringLiteral("alerts"),
        QStringLiteral("alerts"),
        QStringLiteral("alerts"),
        QStringLiteral("alerts"),
        QStringLiteral("alerts"),
        QStringLiteral("other"),
        QStringLiteral("other"),
        QStringLiteral("access"),
    };
}

void KTXLumarooPreferencePane::displayHelp(QObject *sender) { }

OSStatus RegisterMyHelpBook()
{
    return fnfErr;
}
