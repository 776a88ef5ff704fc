#include "pane/KTXLumarooPreferencePane.h"

void KTXLumarooPreferencePane::launchURL(const QUrl &url) { }

void KTXLumarooPreferencePane::visit(QObject *sender) { }

void KTXLumarooPreferencePane::feedback(QObject *sender) { }

void KTXLumarooPreferencePane::webViewDidStartProvisionalLoadForFrame(QObject *webView, QObject *frame) { }
