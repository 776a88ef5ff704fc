#pragma once

#include <QString>

class QWidget;

/// What the desktop gave this program at its start so that its window may come to the front, or empty.
QString takeActivationToken();

/// Asks the desktop to make a window the active one, on behalf of the start that `token` stands for.
void activateWindowWithToken(QWidget *window, const QString &token);
