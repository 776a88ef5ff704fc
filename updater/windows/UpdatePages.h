#pragma once

#include "updater/core/AppcastItem.h"
#include "updater/core/UpdateProblem.h"
#include "updater/windows/UpdatePage.h"

class NSBundle;

// The presses that pages ask for.
inline const QString pressCancel = QStringLiteral("cancel");
inline const QString pressSkip = QStringLiteral("skip");
inline const QString pressLater = QStringLiteral("later");
inline const QString pressInstall = QStringLiteral("install");
inline const QString pressRestart = QStringLiteral("installAndRestart");
inline const QString pressOpenPage = QStringLiteral("openPage");
inline const QString pressClose = QStringLiteral("close");

/// The pages of the window about a bundle's update, in the user's language.
class UpdatePages
{
public:
    explicit UpdatePages(const NSBundle *bundle) : bundle_(bundle) { }

    QString windowTitle() const;

    UpdatePage checking() const;
    UpdatePage upToDate(const QString &displayVersion) const;
    UpdatePage offer(const AppcastItem &item, const QString &installedVersion) const;
    UpdatePage download(const QString &displayVersion) const;
    UpdatePage preparing(const QString &displayVersion) const;
    UpdatePage ready(const QString &displayVersion) const;
    /// It waits for the end of the settings, which were asked to end and have not.
    UpdatePage installedAtEnd(const QString &displayVersion) const;
    /// It is in place, but the settings cannot come back by themselves.
    UpdatePage installed(const QString &displayVersion) const;
    UpdatePage failure(const UpdateProblem &problem) const;

    /// "1.2 MB of 3.4 MB".
    QString progressText(qint64 received, qint64 total) const;
    QString notesAreMissing() const;
    QString pageIsNotOpened(const QUrl &address) const;

private:
    QString text(const char *english) const;
    UpdateButton button(const QString &press) const;
    QList<UpdateButton> offerButtons(bool isSkippable, bool hasPage, bool isInformational) const;

    const NSBundle *bundle_;
};
