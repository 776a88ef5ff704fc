#include "SourceTree.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace {

bool isLeftOut(const QString &path)
{
    return path.startsWith(u"build") || path.startsWith(u'.');
}

QStringList linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

} // namespace

SourceTree::SourceTree(const QString &root)
{
    const QDir top(root);
    QDirIterator found(
        root, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext()) {
        const QString path = found.next();
        const QString name = top.relativeFilePath(path);
        if (!isLeftOut(name))
            lines_[name] = linesOf(path);
    }
}

QStringList SourceTree::files() const
{
    QStringList names;
    for (const auto &[name, lines] : lines_)
        names += name;
    return names;
}

QList<Inclusion> SourceTree::inclusions() const
{
    static const QRegularExpression directive(QStringLiteral("^\\s*#include \"([^\"]+)\""));
    QList<Inclusion> inclusions;
    for (const auto &[name, lines] : lines_) {
        for (int i = 0; i < lines.size(); ++i) {
            const QRegularExpressionMatch match = directive.match(lines.at(i));
            if (match.hasMatch())
                inclusions += {name, i + 1, resolved(name, match.captured(1))};
        }
    }
    return inclusions;
}

/// As the compiler finds it: below the root, beside the file, or in one of the two folders that are searched by name.
QString SourceTree::resolved(const QString &including, const QString &written) const
{
    const QString beside = including.section(u'/', 0, -2) + u'/';
    for (const QString &folder :
        {QString(), beside, QStringLiteral("KTX classes/"), QStringLiteral("tests/support/")}) {
        if (lines_.contains(folder + written))
            return folder + written;
    }
    return {};
}
