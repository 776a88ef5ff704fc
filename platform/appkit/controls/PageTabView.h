#pragma once

#include "platform/appkit/Export.h"

#include <QTabBar>
#include <QTabWidget>

/// The tabs of a window's pages: each a symbol with its name below, all of one width and in the middle. They stay
/// where they are; in a narrow window their names are cut short and then left away.
class LM_APPKIT PageTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit PageTabBar(QTabWidget *tabView);

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showFocus(bool shown);
    void paintTab(QPainter &painter, int index) const;

    QTabWidget *tabView_;
    bool showsFocus_ = false; // that came by a key
};

/// A tab view with such tabs. The symbol of a page is that of its `identifier`.
class LM_APPKIT PageTabView : public QTabWidget
{
    Q_OBJECT

public:
    explicit PageTabView(QWidget *parent = nullptr);
};
