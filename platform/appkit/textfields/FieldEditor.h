#pragma once

#include "platform/appkit/Export.h"

#include <QColor>
#include <QLineEdit>
#include <QPointer>

/// The one editor of a window's text fields. It works on its delegate, the field that is being edited; without one
/// every operation does nothing. Main thread only.
class LM_APPKIT FieldEditor : public QObject
{
    Q_OBJECT

public:
    /// The editor of a view's window, made at the first request; it lives as long as the window. Null for no view.
    static FieldEditor *forWindow(const QWidget *view);
    /// The same without making one: null when the window has none yet.
    static FieldEditor *existingForWindow(const QWidget *view);

    /// The field that is being edited, null for none. Set where a field gains the focus, cleared where it loses it.
    QLineEdit *delegate() const { return delegate_; }
    void setDelegate(QLineEdit *field) { delegate_ = field; }

    /// The ground behind the text; the text's colour is set to go with it.
    void setBackgroundColor(const QColor &color);
    /// The colour of the caret. A field shows a caret only while its text is being typed, in the colour of that text.
    QColor insertionPointColor() const { return insertionPointColor_; }
    void setInsertionPointColor(const QColor &color) { insertionPointColor_ = color; }
    void setSelectedRange(int location, int length);
    void selectAll();

    // Commands: the focus goes on, or back, as Tab moves it.
    void insertTab(QObject *sender);
    void insertBacktab(QObject *sender);

private:
    explicit FieldEditor(QWidget *window) : QObject(window) { }
    void pressInDelegate(Qt::Key key);

    QPointer<QLineEdit> delegate_;
    QColor insertionPointColor_;
};
