#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

/// A control of a pane, with the words under which it is found.
struct SearchedControl
{
    QString name; ///< as the window has it, without mnemonics
    QString page; ///< the name of its page, or empty
    QString words; ///< other words for it, from its `searchWords`
    QPointer<QWidget> control;
};

/// What can be searched for in a pane's view: its controls by their names, headings and texts by themselves, in the
/// order of the pages. What its owner hides is left out, as are long texts.
QList<SearchedControl> searchedControls(const QWidget *view);

/// Whether each word of `search` stands within the control's names or other words.
bool controlMatches(const SearchedControl &control, const QString &search);

/// Turns to the page that holds a control, scrolls to it, gives it the focus and marks it for a moment.
void showControl(QWidget *control);
