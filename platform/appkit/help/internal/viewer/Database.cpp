#include "platform/appkit/help/internal/viewer/Database.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

namespace {

bool passesItsCheck(QSqlDatabase database)
{
    if (!database.open())
        return false;
    QSqlQuery check(database);
    const bool isWhole = check.exec(QStringLiteral("PRAGMA quick_check(1)")) && check.next()
        && check.value(0).toString() == QLatin1StringView("ok");
    check.clear();
    database.close();
    return isWhole;
}

} // namespace

bool isWholeDatabase(const QString &path)
{
    const QString connection = QStringLiteral("lumaroo-help-check");
    bool isWhole = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(path);
        database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        isWhole = passesItsCheck(database);
    }
    QSqlDatabase::removeDatabase(connection);
    return isWhole;
}
