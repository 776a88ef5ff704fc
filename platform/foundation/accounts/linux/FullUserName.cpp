#include "platform/foundation/accounts/NSFullUserName.h"
#include "platform/foundation/accounts/linux/FullUserNameOf.h"

#include <QByteArray>
#include <pwd.h>
#include <unistd.h>

QString fullUserNameOf(const QString &account, const QString &comment)
{
    // Room, telephone numbers and the like follow; "&" stands for the account's name.
    QString name = comment.section(u',', 0, 0).trimmed();
    name.replace(u'&', account.left(1).toUpper() + account.mid(1));
    return name.isEmpty() ? account : name;
}

QString NSFullUserName()
{
    constexpr int roomForAnAccount = 65536;
    QByteArray texts(roomForAnAccount, Qt::Uninitialized);
    passwd entry = {};
    passwd *found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, texts.data(), size_t(texts.size()), &found) != 0 || !found)
        return {};
    return fullUserNameOf(QString::fromLocal8Bit(found->pw_name), QString::fromLocal8Bit(found->pw_gecos));
}
