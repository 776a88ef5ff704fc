#include "platform/appkit/controls/NSTextView.h"

#include "platform/appkit/controls/Controls.h"

#include <QTextBlock>

namespace {

/// What the toolkit starts a new block at. Which one it was is the state of the block that follows: where the user
/// removes a line end or adds one, those of the others stay.
const QStringList &lineEnds()
{
    static const QStringList ends{QStringLiteral("\n"), QStringLiteral("\r\n"), QStringLiteral("\r"), QChar(0x2029),
        QChar(0xfdd0), QChar(0xfdd1)};
    return ends;
}

qsizetype lineEndAt(const QString &text, qsizetype place)
{
    const QChar sign = text[place];
    if (sign == u'\r' && text.mid(place + 1, 1) == u"\n")
        return 1;
    return lineEnds().indexOf(sign);
}

QString lineEndBefore(const QTextBlock &block)
{
    return lineEnds().value(qMax(0, block.userState()));
}

} // namespace

QString NSTextView::string() const
{
    QString text = document()->firstBlock().text();
    for (QTextBlock block = document()->firstBlock().next(); block.isValid(); block = block.next())
        text += lineEndBefore(block) + block.text();
    return text;
}

void NSTextView::setString(const QString &text)
{
    QString lines;
    QList<int> ends;
    lines.reserve(text.size());
    for (qsizetype place = 0; place < text.size(); ++place) {
        const qsizetype end = lineEndAt(text, place);
        lines += end < 0 ? text[place] : QChar(u'\n');
        if (end < 0)
            continue;
        ends += int(end);
        place += lineEnds()[end].size() - 1;
    }
    setPlainText(lines);
    QTextBlock block = document()->firstBlock();
    for (const int end : ends) {
        block = block.next();
        block.setUserState(end);
    }
}

QString string(const QObject *textView)
{
    const auto *view = qobject_cast<const NSTextView *>(textView);
    return view ? view->string() : QString();
}

void setString(QObject *textView, const QString &text)
{
    if (auto *view = qobject_cast<NSTextView *>(textView))
        view->setString(text);
}
