#pragma once

#include "host/PaneCatalogue.h"

#include <QWidget>

class PaneGrid;
class QLabel;
class QLineEdit;
class QStandardItemModel;

/// All installed panes as icons with their names, and a field to search them by name and keyword.
class Overview : public QWidget
{
    Q_OBJECT

public:
    explicit Overview(QWidget *parent = nullptr);

    void setPanes(const QList<InstalledPane> &panes);
    /// Makes a pane the one that Enter opens.
    void setCurrentPane(const QString &path);
    void focusSearch();
    void focusPanes();
    /// What is typed into the search, or empty.
    QString searchText() const;

    /// The names of the panes shown now, in their order.
    QStringList shownNames() const;

Q_SIGNALS:
    void paneOpened(const QString &path);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void search(const QString &text);
    void fill();
    void openFirst();

    QList<InstalledPane> panes_;
    QString currentPath_;
    QLineEdit *searchField_;
    PaneGrid *grid_;
    QLabel *emptyNote_;
    QStandardItemModel *model_;
};
