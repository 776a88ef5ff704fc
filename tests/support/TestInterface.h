#pragma once

#include "TestBundle.h"
#include "platform/appkit/controls/NSTabViewDelegate.h"
#include "platform/appkit/interface/InterfaceFile.h"

#include <QPointer>
#include <QStringList>
#include <memory>

/// An interface file made for a test, with an owner that records which actions were sent by whom.
class TestInterface : public QObject, public NSTabViewDelegate
{
    Q_OBJECT

public:
    TestInterface();
    ~TestInterface() override;

    /// Writes Test.ui: `children` are the elements inside the root widget "root", `rest` those after it.
    void write(const QByteArray &children, const QByteArray &rest = {});
    /// Loads Test.ui with this owner, anew each time.
    QWidget *load();
    QWidget *load(const QByteArray &children, const QByteArray &rest = {});

    template <typename Object = QWidget>
    Object *find(const char *name) const
    {
        return root->findChild<Object *>(QString::fromLatin1(name));
    }

    void tabViewDidSelectTabViewItem(QTabWidget *tabView, QWidget *tabViewItem) override;

    /// Adds an action that records "selector sender's name".
    void addAction(const QString &selector);

    TestBundle bundle;
    InterfaceOwner owner;
    QStringList sent; ///< what actions and delegate calls arrived
    QPointer<QWidget> root;
};
