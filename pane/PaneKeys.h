#pragma once

#include "pane/KeyCodeTable.h"
#include "pane/PaneKeyCaps.h"

#include <QObject>
#include <QPointer>
#include <QVariant>
#include <functional>

class NSBundle;
class QLineEdit;
class QWidget;

/// What the page of the keys offers beside the fields' own work: it tells which action has a key that is pressed in
/// vain, and gives actions their first keys back. It finds its controls in the pane's view by their names.
class PaneKeys : public QObject
{
    Q_OBJECT

public:
    /// What it needs of the pane. The table may be null before the settings are read.
    struct Pane
    {
        std::function<KeyCodeTable()> keyCodes;
        std::function<void()> showWhatIsStored; ///< flushes and announces what was stored, then reads it again
    };

    PaneKeys(QWidget *view, const NSBundle *bundle, Pane pane, QObject *parent);

    /// A key was pressed in the field of a row, before anything comes of it. A line tells which other row has it; the
    /// line goes with the next press, and so does the way back once a key is to be taken.
    void tellOfPress(int row, VirtualKeyCode keyCode);
    /// The agent heard the key of a row. The same line tells it who looks at the page, which makes that a trial.
    void tellOfTrial(int row);
    /// Stores the first keys of all actions.
    void restoreAll();
    /// The same for one action; where another one has that key, a line says so and nothing changes.
    void restore(int row);
    /// Brings back what the last restoring replaced.
    void undo();

private:
    struct Stored
    {
        QString key;
        QVariant value; ///< no value where there was none
    };

    bool eventFilter(QObject *object, QEvent *event) override;
    void showMenu(QLineEdit *field, QPoint place);
    void storeDefaults(const QList<int> &rows);
    void offerUndo(bool offers);
    void tell(const QString &text, QWidget *field = nullptr);
    int otherRowWith(VirtualKeyCode keyCode, int row) const;
    QString usedBy(const char *sentence, VirtualKeyCode keyCode, int row) const;
    QString actionName(int row) const;
    QString localized(const char *text) const;
    QWidget *control(const char *name) const;

    QPointer<QWidget> view_;
    const NSBundle *bundle_;
    Pane pane_;
    PaneKeyCaps caps_;
    QList<Stored> replaced_;
    QPointer<QWidget> toldField_;
    AddedDescription told_;
};
