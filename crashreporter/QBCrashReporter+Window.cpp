// How the window comes up.

#include "crashreporter/QBCrashReporter.h"

#include "KTXConstants.h"
#include "crashreporter/QBAppBundle.h"
#include "crashreporter/QBSystemInformation.h"
#include "crashreporter/ReportParts.h"
#include "platform/appkit/NSWindow.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/foundation/accounts/ABAddressBook.h"
#include "platform/foundation/accounts/NSFullUserName.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/bundles/NSFileManager.h"
#include "platform/foundation/propertylists/Description.h"

namespace {

const QString crashLogTab = QStringLiteral("de.morvane.qbcrashreporter.crashlog-tab");

QString nameOf(const NSBundle &bundle)
{
    return stringByDeletingPathExtension(displayNameAtPath(bundle.bundlePath()));
}

/// Null where the system knows none.
QString emailAddress()
{
    const std::optional<ABPerson> me = ABAddressBook::sharedAddressBook()->me();
    const std::optional<ABMultiValue> emails = me ? me->valueForProperty(kABEmailProperty) : std::nullopt;
    const QString primary = emails ? emails->primaryIdentifier() : QString();
    return primary.isEmpty() ? QString() : emails->valueAtIndex(emails->indexForIdentifier(primary));
}

QString systemInformation(const NSBundle &appBundle)
{
    // The version is the main bundle's, which is not the pane's.
    const QVariant version = NSBundle::mainBundle()->infoDictionary().value(QStringLiteral("CFBundleVersion"));
    return QStringLiteral("Application: ") + nameOf(appBundle) + u' ' + description(version)
        + QStringLiteral("\nModel: ") + reportedMachine() + QStringLiteral("\nCPU Speed: ") + reportedProcessorSpeed()
        + QStringLiteral(" GHz\nSystem Version: ") + QBSystemVersionString() + QStringLiteral("\n\nPreferences:\n")
        + reportedPreferences(&appBundle);
}

} // namespace

std::optional<QString> &QBCrashReporter::pendingReport()
{
    static std::optional<QString> report;
    return report;
}

void QBCrashReporter::awakeFromNib()
{
    appBundle_ = QBAppBundle();
    appID_ = KTXLMAppID;
    setStringValue(sendButton_, localized(QStringLiteral("WANT_TO_SEND_CRASH_SEND")));
    setStringValue(remindButton_, localized(QStringLiteral("WANT_TO_SEND_CRASH_SEND_LATER")));
    setStringValue(discardButton_, localized(QStringLiteral("WANT_TO_SEND_CRASH_DONT_SEND")));
    showTexts();
    if (pendingReport()) {
        setString(crashLogField_, *pendingReport());
        pendingReport().reset();
    } else {
        showSystemInformation();
    }
    orderFront();
}

void QBCrashReporter::showTexts()
{
    const bool isCrash = pendingReport().has_value();
    QString explanation =
        localized(isCrash ? QStringLiteral("CRASH_EXPLANATION_TEXT") : QStringLiteral("FEEDBACK_EXPLANATION_TEXT"));
    setStringValue(explanationField_, explanation.replace(QStringLiteral("%%APPNAME"), nameOf(*appBundle_)));
    QString message =
        localized(isCrash ? QStringLiteral("CRASH_MESSAGE_TEXT") : QStringLiteral("FEEDBACK_MESSAGE_TEXT"));
    message.replace(QStringLiteral("%%LONGUSERNAME"), NSFullUserName());
    const QString email = emailAddress();
    message.replace(
        QStringLiteral("%%EMAILADDRESS"), email.isEmpty() ? localized(QStringLiteral("MISSING_EMAIL_ADDRESS")) : email);
    setString(informationField_, message);
}

void QBCrashReporter::showSystemInformation()
{
    setHidden(remindButton_, true);
    setLabelOfTabViewItemAtIndex(switchTabView_, indexOfTabViewItemWithIdentifier(switchTabView_, crashLogTab),
        localized(QStringLiteral("SYSTEM_INFO_TAB_NAME")));
    setString(crashLogField_, systemInformation(*appBundle_));
}

void QBCrashReporter::orderFront()
{
    if (reportWindow_)
        reportWindow_.get()->installEventFilter(this);
    // Below the template, where the user writes.
    if (NSTextView *field = informationField_.get())
        field->moveCursor(QTextCursor::End);
    setLevel(reportWindow_.get(), CGWindowLevelForKey(kCGModalPanelWindowLevelKey));
    makeKeyAndOrderFront(reportWindow_.get());
}
