#pragma once

class QTabWidget;
class QWidget;

/// Told of page changes of a tab view whose `delegate` is the owner, by the user or by code; of none while the
/// interface file loads or is torn down.
class NSTabViewDelegate
{
public:
    virtual ~NSTabViewDelegate() = default;
    virtual void tabViewDidSelectTabViewItem(QTabWidget *tabView, QWidget *tabViewItem) = 0;
};
