#pragma once

#include "platform/appkit/web/NSURLRequest.h"

#include <QString>

/// What stands between the user's message and what follows it.
inline const QString reportDivider = QStringLiteral("\n==========\n");

/// The request that brings a report to the makers: a POST of a form with the one field "crashlog", in UTF-8. What
/// would end the field within the text is replaced.
NSMutableURLRequest requestWithReport(const QUrl &address, const QString &report);
