#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>

/// One row of tests/data/keycodes.tsv.
struct KeyCodeRow
{
    quint16 code;
    int evdev; ///< 0 for codes that no key bears
    QString xkbName;
    QString usCharacter;
    QList<int> aliases;
    bool recordable;
};

const QList<KeyCodeRow> &keyCodeRows();
