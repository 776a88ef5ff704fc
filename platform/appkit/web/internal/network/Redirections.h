#pragma once

#include <QUrl>

class QNetworkReply;

/// How often a request is led elsewhere before it fails.
inline constexpr int mostRedirections = 20;

/// Where an answer leads; empty where it is the last one, also when it leads where no request may go.
QUrl redirectionOf(const QNetworkReply &reply);
