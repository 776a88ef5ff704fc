#include "agent/actions/PictureShowing.h"

#include "platform/foundation/processes/LaunchServices.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFileInfo>
#include <QThreadPool>
#include <QUrl>

namespace {

/// What opens it may take its time, and the keys do not wait for that.
void openFolderOf(const QString &path)
{
    QThreadPool::globalInstance()->start(
        [folder = QUrl::fromLocalFile(QFileInfo(path).path())] { LSOpenCFURLRef(folder); });
}

} // namespace

void showFile(const QString &path)
{
    const QString name = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage call = QDBusMessage::createMethodCall(
        name, QStringLiteral("/org/freedesktop/FileManager1"), name, QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    auto *const answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), qApp);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, path] {
        if (answer->isError())
            openFolderOf(path);
        answer->deleteLater();
    });
}
