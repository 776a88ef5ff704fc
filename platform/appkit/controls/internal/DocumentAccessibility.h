#pragma once

#include <QAccessibleWidget>
#include <QTextBrowser>

/// What assistive tools are told of a page of text to read: a document with its text.
class DocumentAccessibility : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit DocumentAccessibility(QTextBrowser *view) : QAccessibleWidget(view, QAccessible::Document) { }

    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;
    using QAccessibleWidget::text;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override { return cursor().hasSelection() ? 1 : 0; }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override { return cursor().position(); }
    void setCursorPosition(int position) override { setSelection(0, position, position); }
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

private:
    QTextBrowser *view() const { return static_cast<QTextBrowser *>(widget()); }
    QTextCursor cursor() const { return view()->textCursor(); }
    QString wholeText() const { return view()->toPlainText(); }
};
