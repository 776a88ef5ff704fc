#pragma once

#include "BellListener.h"
#include "PaneOnRealStore.h"

#include <QLineEdit>

/// The rows of the page.
enum Row { Up, Right, Down, Left, Under, OpenPrefPane, Screenshot, CloseWindow, Preview, Cancel, Snap, RowCount };

/// Counts the releases of keys that the application gets from now on, whatever becomes of them.
class KeyReleases : public QObject
{
public:
    KeyReleases();
    /// A key that is held repeats: each time it is released and pressed again, as programs see it.
    int withRepeats() const { return withRepeats_; }
    /// When a key is let go.
    int atLast() const { return atLast_; }

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    int withRepeats_ = 0;
    int atLast_ = 0;
};

/// The hot key page on screen, with keys that a test gives it; what a key press changes is compared as a whole.
class PaneOnHotKeyPage : public PaneOnRealStore
{
protected:
    ~PaneOnHotKeyPage() override;

    /// Stores a key for a row, before the page is shown.
    void storeKey(int row, int keyCode) const;
    /// Gives every row a code that no key has, so that every key is free.
    void storeNoKeys() const;
    void showPage();

    QLineEdit *field(int row) { return qobject_cast<QLineEdit *>(keyField(row)); }
    QString shown(int row) { return field(row)->text(); }
    void focus(int row);
    /// The row whose field has the focus, -1 for none.
    int focusedRow();
    int keyCode(int row) { return int(pane().keyCodes()->at(row).number()); }
    QList<int> markedRows();

    /// Presses a key and waits until it has been handled.
    void press(int evdevCode, const QList<int> &held = {});
    void pressIn(int row, int evdevCode, const QList<int> &held = {});

    /// From here on changes are counted.
    void rememberStore();
    /// Since then exactly this key was stored for a row, the agent was told once, and the field shows the label.
    void expectTaken(int row, int keyCode, const QString &label);
    /// Since then nothing was stored and nobody was told anything.
    void expectNothingStored();

    QWidget *window() { return pane().mainView()->window(); }

    BellListener bell;

private:
    QVariantMap before_;
};
