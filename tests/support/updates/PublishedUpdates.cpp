#include "PublishedUpdates.h"

#include "Wait.h"
#include "updater/core/Appcast.h"
#include "updater/core/UpdatePreparation.h"

#include <QDir>
#include <QFile>

namespace {

QByteArray itemAsXML(const AppcastItem &item)
{
    return "<item><title>Sample</title><sparkle:version>" + item.version.toUtf8()
        + "</sparkle:version><enclosure url=\"" + item.archive.toEncoded() + "\" length=\""
        + QByteArray::number(item.length) + "\" sparkle:edSignature=\"" + item.signature.toBase64() + "\"/></item>";
}

} // namespace

PublishedUpdates::PublishedUpdates(const QString &parent)
    : UpdatableBundle(parent), server(std::nullopt, published_.path())
{
}

AppcastItem PublishedUpdates::publish(int version) const
{
    return publish(version, archiveOf(version));
}

AppcastItem PublishedUpdates::publish(int version, const QByteArray &archive) const
{
    const QString name = QStringLiteral("Sample-%1.tar").arg(version);
    write(served(name), archive);
    AppcastItem item;
    item.version = QString::number(version);
    item.archive = server.url(u'/' + name);
    item.length = archive.size();
    item.signature = key.signatureOf(archive);
    return item;
}

void PublishedUpdates::tell(const QList<AppcastItem> &items) const
{
    QByteArray feed = "<rss version=\"2.0\" xmlns:sparkle=\"" + appcastNamespace.toUtf8() + "\"><channel>";
    for (const AppcastItem &item : items)
        feed += itemAsXML(item);
    tellText(feed + "</channel></rss>");
}

void PublishedUpdates::tellText(const QByteArray &text) const
{
    write(served(QStringLiteral("appcast.xml")), text);
}

UpdateCheckResult PublishedUpdates::check(const QUrl &address, bool isAskedByUser)
{
    std::optional<UpdateCheckResult> end;
    UpdateCheck checking(bundle(), address, isAskedByUser);
    QObject::connect(&checking, &UpdateCheck::finished, [&](const UpdateCheckResult &result) { end = result; });
    checking.start();
    EXPECT_TRUE(waitUntil([&] { return end.has_value(); }));
    return end.value_or(UpdateCheckResult{{UpdateProblem::Kind::Feed, QStringLiteral("nothing was said")}, {}});
}

QString PublishedUpdates::offered(bool isAskedByUser)
{
    const UpdateCheckResult result = check(isAskedByUser);
    EXPECT_TRUE(result.problem.isNone()) << result.problem.detail.toStdString();
    return result.choice.item ? result.choice.item->version : QString();
}

UpdateProblem PublishedUpdates::download(const AppcastItem &item, const QUrl &from)
{
    std::optional<UpdateProblem> end;
    UpdatePreparation preparation(bundle(), item, from);
    QObject::connect(&preparation, &UpdatePreparation::finished, [&](const UpdateProblem &problem) { end = problem; });
    preparation.start();
    EXPECT_TRUE(waitUntil([&] { return end.has_value(); }));
    return end.value_or(UpdateProblem{UpdateProblem::Kind::Download, QStringLiteral("nothing was said")});
}
