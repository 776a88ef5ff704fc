#include "platform/appkit/controls/Mnemonics.h"

#include <QRegularExpression>

QString withoutMnemonic(QString text)
{
    static const QString escaped(QChar(0x1));
    static const QRegularExpression inBrackets(QStringLiteral(" ?\\(&[^)]\\)"));
    text.replace(QStringLiteral("&&"), escaped).remove(inBrackets).remove(u'&');
    return text.replace(escaped, QStringLiteral("&")).simplified();
}
