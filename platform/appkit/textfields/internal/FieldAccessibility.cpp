#include "platform/appkit/textfields/internal/FieldAccessibility.h"

#include <QAccessibleWidget>
#include <QLineEdit>

namespace {

constexpr const char *mark = "assistiveToolsOnlyRead";

/// A text field without the interface for editing.
class FieldAccessibility : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit FieldAccessibility(QLineEdit *field) : QAccessibleWidget(field, QAccessible::EditableText) { }

    static QAccessibleInterface *make(const QString &className, QObject *object)
    {
        auto *field = qobject_cast<QLineEdit *>(object);
        const bool isMarked = field && className == QLatin1StringView("QLineEdit") && field->property(mark).toBool();
        return isMarked ? new FieldAccessibility(field) : nullptr;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? field()->text() : QAccessibleWidget::text(kind);
    }
    void setText(QAccessible::Text kind, const QString &text) override
    {
        if (kind != QAccessible::Value)
            QAccessibleWidget::setText(kind, text);
        else if (!field()->isReadOnly())
            field()->setText(text);
    }
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override { return field()->hasSelectedText() ? 1 : 0; }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override
    {
        if (index == 0)
            field()->deselect();
    }
    void setSelection(int index, int start, int end) override
    {
        if (index == 0)
            field()->setSelection(start, end - start);
    }
    int cursorPosition() const override { return field()->cursorPosition(); }
    void setCursorPosition(int position) override { field()->setCursorPosition(position); }
    QString text(int start, int end) const override
    {
        const int from = qMin(start, end);
        return field()->text().mid(from, qMax(start, end) - from);
    }
    int characterCount() const override { return int(field()->text().size()); }
    QRect characterRect(int) const override { return rect(); } // there are few, in the middle
    int offsetAtPoint(const QPoint &point) const override
    {
        return field()->cursorPositionAt(field()->mapFromGlobal(point));
    }
    void scrollToSubstring(int start, int) override { field()->setCursorPosition(start); }
    QString attributes(int, int *start, int *end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    QLineEdit *field() const { return static_cast<QLineEdit *>(widget()); }
};

QAccessible::State FieldAccessibility::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = field()->isReadOnly();
    state.editable = !field()->isReadOnly();
    state.selectableText = true;
    state.selected = field()->hasSelectedText();
    return state;
}

void FieldAccessibility::selection(int index, int *start, int *end) const
{
    const bool isThere = index == 0 && field()->hasSelectedText();
    *start = isThere ? field()->selectionStart() : 0;
    *end = isThere ? field()->selectionEnd() : 0;
}

} // namespace

void letAssistiveToolsOnlyRead(QLineEdit *field)
{
    static const bool isInstalled = (QAccessible::installFactory(&FieldAccessibility::make), true);
    Q_UNUSED(isInstalled)
    field->setProperty(mark, true);
    // A tool may have asked for it while it was being made.
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(field)));
}
