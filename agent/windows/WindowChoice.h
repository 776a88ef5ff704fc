#pragma once

#include <QStringList>
#include <QVariantMap>

/// Which windows can be selected.
struct WindowChoice
{
    bool showsHidden = false; ///< minimised ones too
    QStringList excludedApplications; ///< classes of programs whose windows are left out

    bool operator==(const WindowChoice &) const = default;
};

/// What the agent's effective settings say.
WindowChoice windowChoice(const QVariantMap &settings);
