#pragma once

#include <QList>
#include <QString>

// What the window about an update shows, as plain data.

struct UpdateButton
{
    enum class Place { Leading, Trailing };
    QString name; ///< what the press means; also the control's object name
    QString text; ///< with its mnemonic
    Place place = Place::Trailing;
};

struct UpdatePage
{
    enum class Content { None, Notes, Progress };

    QString name;
    QString heading;
    QString text;
    QString detail = {}; ///< in English, for who wants to know more
    Content content = Content::None;
    QList<UpdateButton> buttons = {}; ///< from left to right
    QString defaultButton = {}; ///< has the focus; Return presses it
    QString escapeButton = {}; ///< pressed by Escape and by closing the window; empty: those do nothing
};
