#pragma once

#include "PublishedUpdates.h"

#include "updater/SUUpdater.h"
#include "updater/core/UpdateRecord.h"

#include <QDialog>

/// The updater of a bundle of version 100 that follows a maker's server, with the window that it shows.
class UpdaterOnScreen : public PublishedUpdates
{
protected:
    UpdaterOnScreen();
    ~UpdaterOnScreen() override;

    SUUpdater *updater() const;
    /// Sets it up to check by schedule.
    void checkBySchedule(double interval = 24 * 60 * 60) const;
    void checkForUser() const { updater()->checkForUpdates(nullptr); }

    /// Writes a feed of one item with further elements in it.
    void tellWith(const AppcastItem &item, const QByteArray &elements) const;
    /// Changes entries of the installed bundle's Info dictionary; for what is not asked before.
    void changeInfo(const QVariantMap &changes) const;
    /// Gives the installed bundle the real installer.
    void putInstaller() const;

    /// The window while it is shown; null otherwise.
    static QDialog *window();
    static QString page();
    /// Waits for a page; false where it does not come.
    static bool shows(const QString &page);
    static bool closes();
    static QString text(const QString &name);
    static bool has(const QString &button);
    /// As the user does: with the keyboard, which the window has to have.
    static void pressWithKeyboard(int evdevCode, const QList<int> &held = {});
    static void press(const QString &button);
    bool wasAsked(const QString &request) const;

    UpdateRecord record;
};
