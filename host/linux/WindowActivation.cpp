#include "host/linux/WindowActivation.h"

#include "platform/appkit/WindowRequests.h"

#include <QRegularExpression>
#include <QWidget>
#include <QWindow>

namespace {

constexpr auto waylandToken = "XDG_ACTIVATION_TOKEN";
constexpr auto x11Token = "DESKTOP_STARTUP_ID";

/// A startup id ends in "_TIME" and the X server's time of the user's click.
quint32 timeOf(const QString &token)
{
    static const QRegularExpression pattern(QStringLiteral("_TIME(\\d+)$"));
    return pattern.match(token).captured(1).toUInt();
}

} // namespace

QString takeActivationToken()
{
    const char *variable = qEnvironmentVariableIsEmpty(waylandToken) ? x11Token : waylandToken;
    return qEnvironmentVariable(variable);
}

void activateWindowWithToken(QWidget *window, const QString &token)
{
    // Qt takes the token for its next activation from the environment.
    if (!token.isEmpty())
        qputenv(waylandToken, token.toUtf8());
    window->activateWindow();
    // Qt names its own last time of use, which a window manager may find too old; the start's time is the user's newest
    // wish.
    if (const quint32 time = timeOf(token))
        askForActivation(window->windowHandle(), time);
}
