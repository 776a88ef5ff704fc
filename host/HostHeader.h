#pragma once

#include <QWidget>

class QLabel;
class QToolButton;
class SearchField;

/// What stands above a pane: the way back to the overview, the pane's name and the search of its controls.
class HostHeader : public QWidget
{
    Q_OBJECT

public:
    explicit HostHeader(QWidget *parent);

    void setTitle(const QString &title);
    QToolButton *backButton() const { return backButton_; }
    SearchField *search() const { return search_; }

private:
    QToolButton *backButton_;
    QLabel *title_;
    SearchField *search_;
};
