#include "HouseRules.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <functional>
#include <ostream>

namespace {

const QString foundation = QStringLiteral("platform/foundation");
const QString appkit = QStringLiteral("platform/appkit");
const QString shared = QStringLiteral("KTX classes");
const QString crashreporter = QStringLiteral("crashreporter");
const QString updater = QStringLiteral("updater");
const QString updaterCore = QStringLiteral("updater/core");
const QString agent = QStringLiteral("agent");

/// Whom each layer may include beside itself; tests and benches may include all.
const QMap<QString, QStringList> &layers()
{
    static const QMap<QString, QStringList> mayInclude{
        {foundation, {}},
        {appkit, {foundation}},
        {shared, {foundation}},
        {crashreporter, {shared, appkit, foundation}},
        {updater, {updaterCore, appkit, foundation}},
        {updaterCore, {foundation}},
        {QStringLiteral("pane"), {crashreporter, updater, updaterCore, shared, appkit, foundation}},
        {QStringLiteral("host"), {appkit, foundation}},
        {agent, {shared, foundation}},
        {QStringLiteral("tutorial"), {QStringLiteral("host"), shared, appkit, foundation}},
        {QStringLiteral("tools"), {updaterCore, shared, foundation}},
        {QStringLiteral("launcher"), {}},
    };
    return mayInclude;
}

/// The innermost, where one lies within another.
QString layerOf(const QString &file)
{
    QString innermost;
    for (const QString &layer : layers().keys()) {
        if (file.startsWith(layer + u'/') && layer.size() > innermost.size())
            innermost = layer;
    }
    return innermost;
}

bool isLibrary(const QString &layer)
{
    return layer == foundation || layer == appkit;
}

/// The folder below a platform library or the agent that a file stands in; the layer itself for what stands on its top,
/// and nothing outside them.
QString roomOf(const QString &file)
{
    const QString layer = layerOf(file);
    if (!isLibrary(layer) && layer != agent)
        return {};
    const QStringList below = file.mid(layer.size() + 1).split(u'/');
    const bool isOnTop = below.size() == 1 || below.first() == u"linux";
    return isOnTop ? layer : layer + u'/' + below.first();
}

/// The folder that keeps a file to itself, or nothing where everybody may have it.
QString ownerOf(const QString &file)
{
    static const QRegularExpression internal(QStringLiteral("^(.*?)/(linux|x11|internal)/"));
    return internal.match(file).captured(1);
}

/// What stands on a library's own top belongs to no room of it.
bool belongsTo(const QString &owner, const QString &file)
{
    return owner == layerOf(file) && !roomOf(file).isEmpty() ? roomOf(file) == owner : file.startsWith(owner + u'/');
}

bool isTest(const QString &file)
{
    return file.startsWith(u"tests/");
}

bool isHeader(const QString &file)
{
    return file.endsWith(u".h");
}

bool isOnTopOfARoom(const QString &file)
{
    return isHeader(file) && isLibrary(layerOf(file)) && ownerOf(file).isEmpty();
}

/// The headers on top of the rooms that export something, or that another room's code includes.
QSet<QString> contractsByThemselves(const SourceTree &tree)
{
    QSet<QString> contracts;
    for (const QString &file : tree.files()) {
        const QString text = tree.lines(file).join(u'\n');
        if (isOnTopOfARoom(file) && (text.contains(u"LM_FOUNDATION") || text.contains(u"LM_APPKIT")))
            contracts += file;
    }
    for (const Inclusion &inclusion : tree.inclusions()) {
        if (isOnTopOfARoom(inclusion.included) && !isTest(inclusion.file)
            && roomOf(inclusion.file) != roomOf(inclusion.included))
            contracts += inclusion.included;
    }
    return contracts;
}

using Rooms = QMap<QString, QSet<QString>>;

bool leadsTo(const Rooms &included, const QString &from, const QString &to, QSet<QString> &seen)
{
    if (from == to)
        return true;
    if (seen.contains(from))
        return false;
    seen += from;
    const QSet<QString> next = included.value(from);
    return std::any_of(
        next.begin(), next.end(), [&](const QString &room) { return leadsTo(included, room, to, seen); });
}

struct Function
{
    int line; ///< of its opening brace
    int length; ///< of its body
    int statements; ///< lines that end one
};

/// What stands before an opening brace on a line of its own, back to the end of what precedes it.
QString headBefore(const QStringList &lines, int brace)
{
    static const QRegularExpression end(QStringLiteral("[;{}]$|^\\s*(//|#|public:|protected:|private:)"));
    QString head;
    for (int i = brace - 1; i >= 0 && !lines.at(i).trimmed().isEmpty() && !end.match(lines.at(i)).hasMatch(); --i)
        head.prepend(lines.at(i).trimmed() + u' ');
    return head;
}

QList<Function> functionsOf(const QStringList &lines)
{
    static const QRegularExpression opening(QStringLiteral("^( *)\\{$"));
    static const QRegularExpression type(QStringLiteral("^(template <.*> )?(class|struct|enum|union|namespace)\\b"));
    QList<Function> functions;
    for (int i = 0; i < lines.size(); ++i) {
        const QRegularExpressionMatch match = opening.match(lines.at(i));
        if (!match.hasMatch() || type.match(headBefore(lines, i)).hasMatch())
            continue;
        const QString closing = match.captured(1) + u'}';
        Function function{i + 1, 0, 0};
        for (int j = i + 1; j < lines.size() && !lines.at(j).startsWith(closing); ++j) {
            ++function.length;
            function.statements += lines.at(j).endsWith(u';') ? 1 : 0;
        }
        functions += function;
    }
    return functions;
}

constexpr int longestSource = 300;
constexpr int longestHeader = 150;
constexpr int longestFunction = 40;
/// A table is rows in one statement, and what returns it.
constexpr int statementsOfATable = 3;

} // namespace

std::ostream &operator<<(std::ostream &stream, const Breach &breach)
{
    return stream << breach.file.toStdString() << ':' << breach.line << ": " << breach.rule.toStdString();
}

QList<Breach> includesAgainstTheLayers(const SourceTree &tree)
{
    QList<Breach> breaches;
    for (const Inclusion &inclusion : tree.inclusions()) {
        const QString from = layerOf(inclusion.file);
        const QString to = layerOf(inclusion.included);
        const bool isFromNoLayer = from.isEmpty() || inclusion.included.isEmpty();
        if (!isFromNoLayer && from != to && !layers().value(from).contains(to))
            breaches +=
                {inclusion.file, inclusion.line, from + QStringLiteral(" does not include ") + inclusion.included};
    }
    return breaches;
}

QList<Breach> includesOfOthersInternals(const SourceTree &tree)
{
    QList<Breach> breaches;
    for (const Inclusion &inclusion : tree.inclusions()) {
        const QString owner = ownerOf(inclusion.included);
        if (!owner.isEmpty() && !isTest(inclusion.file) && !belongsTo(owner, inclusion.file))
            breaches +=
                {inclusion.file, inclusion.line, owner + QStringLiteral(" keeps to itself ") + inclusion.included};
    }
    return breaches;
}

QList<Breach> librariesOutOfTheirPlace(const SourceTree &tree)
{
    static const QRegularExpression header(QStringLiteral("^\\s*#include <(sodium|archive|archive_entry)\\.h>"));
    QList<Breach> breaches;
    for (const QString &file : tree.files()) {
        const QStringList &lines = tree.lines(file);
        for (int i = 0; i < lines.size(); ++i) {
            const QString library = header.match(lines.at(i)).captured(1);
            if (!library.isEmpty() && layerOf(file) != updaterCore)
                breaches += {file, i + 1, QStringLiteral("%1.h is for %2 alone").arg(library, updaterCore)};
        }
    }
    return breaches;
}

QList<Breach> circlesBetweenRooms(const SourceTree &tree)
{
    Rooms included;
    QList<Breach> breaches;
    for (const Inclusion &inclusion : tree.inclusions()) {
        const QString from = roomOf(inclusion.file);
        const QString to = roomOf(inclusion.included);
        const bool isBetweenRooms = from != to && !from.isEmpty() && layerOf(from + u'/') == layerOf(to + u'/');
        const bool isOnTop = from == layerOf(inclusion.file) || to == layerOf(inclusion.included);
        if (!isBetweenRooms || isOnTop)
            continue;
        QSet<QString> seen;
        if (leadsTo(included, to, from, seen))
            breaches += {inclusion.file, inclusion.line, QStringLiteral("%1 includes %2 already").arg(to, from)};
        else
            included[from] += to;
    }
    return breaches;
}

QList<Breach> headersThatExportNothing(const SourceTree &tree)
{
    QSet<QString> contracts = contractsByThemselves(tree);
    // What a contract includes is a part of it.
    for (qsizetype before = -1; before != contracts.size();) {
        before = contracts.size();
        for (const Inclusion &inclusion : tree.inclusions()) {
            if (contracts.contains(inclusion.file))
                contracts += inclusion.included;
        }
    }
    QList<Breach> breaches;
    for (const QString &file : tree.files()) {
        if (isOnTopOfARoom(file) && !contracts.contains(file))
            breaches += {file, 1, QStringLiteral("is no contract: exports nothing, and nobody outside includes it")};
    }
    return breaches;
}

QList<Breach> filesThatAreTooLong(const SourceTree &tree)
{
    QList<Breach> breaches;
    for (const QString &file : tree.files()) {
        const int longest = isHeader(file) ? longestHeader : longestSource;
        if (tree.lines(file).size() > longest)
            breaches += {file, longest + 1, QStringLiteral("is longer than %1 lines").arg(longest)};
    }
    return breaches;
}

QList<Breach> functionsThatAreTooLong(const SourceTree &tree)
{
    QList<Breach> breaches;
    for (const QString &file : tree.files()) {
        for (const Function &function : functionsOf(tree.lines(file))) {
            if (function.length > longestFunction && function.statements > statementsOfATable)
                breaches += {file, function.line, QStringLiteral("function of %1 lines").arg(function.length)};
        }
    }
    return breaches;
}
