#pragma once

#include <QWidget>

class QLineEdit;
class QToolButton;

/// The viewer's buttons and its search field. Their tooltips name the keys that do the same, which are the window's.
class HelpHeader : public QWidget
{
public:
    explicit HelpHeader(QWidget *parent);

    QToolButton *const back;
    QToolButton *const forward;
    QToolButton *const smaller;
    QToolButton *const larger;
    QLineEdit *const search;

private:
    QToolButton *makeButton(const char *name, const QString &text, const QKeySequence &keys);
    QLineEdit *makeSearchField();
};
