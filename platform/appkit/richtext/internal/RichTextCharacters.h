#pragma once

#include <QByteArrayView>
#include <QString>

/// Bytes of code page 1252 as text; those it leaves undefined become the replacement character.
QString textFromCodePage1252(QByteArrayView bytes);

/// The character that a control word or control symbol of rich text stands for, or null.
QChar namedCharacter(QByteArrayView name);

/// The text with everything in the replacement character's place that is no character of running text: halves of
/// surrogate pairs, control characters, and the code points that a text document uses as its own marks.
QString withoutForeignCharacters(QString text);
