#pragma once

#include "platform/appkit/richtext/internal/RichTextTokens.h"

#include <QColor>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// The fonts and colours that rich text lists at its head and refers to by number.
class RichTextTables
{
public:
    // What stands inside the font table.
    void readFontWord(const RichTextToken &word);
    void readFontText(const QString &text);
    /// The families of a font, best first, with a general one at the end where the table tells its kind; empty for a
    /// number that is not listed.
    QStringList families(int fontNumber) const;

    // What stands inside the colour table.
    void readColorWord(const RichTextToken &word);
    void readColorText(const QString &text);
    /// An invalid colour for the automatic one and for a number that is not listed.
    QColor color(int colorNumber) const;

private:
    void endFont();
    void endColor();

    int fontNumber_ = 0;
    QString fontName_;
    QString fontKind_;
    QHash<int, QStringList> fonts_;

    bool colorIsStated_ = false;
    int red_ = 0;
    int green_ = 0;
    int blue_ = 0;
    QList<QColor> colors_;
};
