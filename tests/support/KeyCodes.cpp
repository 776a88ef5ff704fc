#include "KeyCodes.h"

#include <QFile>

namespace {

KeyCodeRow rowIn(const QByteArray &line)
{
    const QStringList fields = QString::fromUtf8(line).chopped(1).split('\t');
    const QString character = fields.at(4);
    KeyCodeRow row{quint16(fields.at(0).toInt()), fields.at(1).toInt(), fields.at(3),
        character.isEmpty() ? QString() : QString(QChar(character.mid(2).toInt(nullptr, 16))), {}, fields.at(6) == "1"};
    for (const QString &alias : fields.at(5).split(',', Qt::SkipEmptyParts))
        row.aliases += alias.toInt();
    return row;
}

QList<KeyCodeRow> readRows()
{
    QFile file(qEnvironmentVariable("LUMAROO_SOURCE") + "/tests/data/keycodes.tsv");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    QList<KeyCodeRow> rows;
    for (file.readLine(); !file.atEnd();)
        rows += rowIn(file.readLine());
    return rows;
}

} // namespace

const QList<KeyCodeRow> &keyCodeRows()
{
    static const QList<KeyCodeRow> rows = readRows();
    return rows;
}
