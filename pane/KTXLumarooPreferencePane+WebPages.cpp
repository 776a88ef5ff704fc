#include "pane/KTXLumarooPreferencePane.h"

#include "platform/appkit/web/NSWorkspace.h"
#include "platform/appkit/web/ValidityChecking.h"
#include "platform/appkit/web/WebFrame.h"
#include "platform/foundation/propertylists/Description.h"

namespace {

/// A text that is no address makes one that no page has.
QUrl addressWithString(const QString &text)
{
    return QUrl(text, QUrl::StrictMode);
}

} // namespace

void KTXLumarooPreferencePane::launchURL(const QUrl &url)
{
    if (httpIsValid(url)) {
        NSWorkspace::sharedWorkspace()->openURL(url);
        return;
    }
    displayAlertwitheMessageAndInformationSuppressionPrefValueAndHelpAnchor(
        localized(QStringLiteral("The web page is unavailable")),
        localized(QStringLiteral("Please make sure you are connected to the Internet and try again later.")), {}, {});
}

void KTXLumarooPreferencePane::visit(QObject *)
{
    launchURL(addressWithString(infoDictionary_.value(QStringLiteral("KTXProductPage")).toString()));
}

void KTXLumarooPreferencePane::feedback(QObject *)
{
    launchURL(addressWithString(description(infoDictionary_.value(QStringLiteral("KTXFeedbackPage")))));
}

void KTXLumarooPreferencePane::webViewDidStartProvisionalLoadForFrame(WebView *, WebFrame *frame)
{
    const QUrl address = frame->provisionalDataSource()->initialRequest().url();
    if (address.isLocalFile())
        return;
    launchURL(address);
    frame->stopLoading();
}
