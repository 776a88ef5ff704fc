#pragma once

#include "InstalledProduct.h"
#include "updater/core/Signature.h"
#include "updater/core/WaitingUpdate.h"

#include <QTemporaryDir>

/// The whole product in a folder of its user's own, as a build that updates itself: it knows its maker's key.
class UpdatableProduct : public InstalledProduct
{
protected:
    UpdatableProduct();

    UpdatePlaces places() const { return UpdatePlaces(pane()); }
    /// What stands beside the bundle.
    QStringList beside() const;
    /// An archive, packed by tar into the maker's folder, of the product as it stands here with another version, which
    /// people call 1.1.
    QString archiveOf(int version) const;
    /// What the maker publishes, and what is nobody else's.
    QString published() const { return maker_.filePath(QStringLiteral("published")); }
    QString makersOwn(const QString &name) const { return maker_.filePath(name); }
    /// Has an update wait, as a download would.
    void letUpdateWait(int version) const;
    void spoil(const QString &path) const;

    SigningKey key = SigningKey::generated();

private:
    void leaveOutDebugInformation() const;

    QTemporaryDir maker_;
};
