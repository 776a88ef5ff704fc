#include "TestInterface.h"

#include "platform/foundation/bundles/NSBundle.h"

#include <QTabWidget>

TestInterface::TestInterface() : bundle(QStringLiteral("Test.prefPane"))
{
    owner.object = this;
    owner.className = QStringLiteral("TestOwner");
    owner.tabViewDelegate = this;
    addAction(QStringLiteral("act:"));
}

TestInterface::~TestInterface()
{
    delete root;
}

void TestInterface::addAction(const QString &selector)
{
    owner.actions.append(
        {selector, [this, selector](QObject *sender) { sent += selector + u' ' + sender->objectName(); }});
}

void TestInterface::write(const QByteArray &children, const QByteArray &rest)
{
    bundle.writeFile(QStringLiteral("Contents/Resources/Test.ui"),
        R"(<?xml version="1.0" encoding="UTF-8"?><ui version="4.0"><class>Test</class><widget class="QWidget" name="root">)"
            + children + "</widget>" + rest + "</ui>");
}

QWidget *TestInterface::load()
{
    delete root;
    root = loadInterfaceFile(NSBundle::bundleWithPath(bundle.path()), QStringLiteral("Test"), owner);
    return root;
}

QWidget *TestInterface::load(const QByteArray &children, const QByteArray &rest)
{
    write(children, rest);
    return load();
}

void TestInterface::tabViewDidSelectTabViewItem(QTabWidget *tabView, QWidget *tabViewItem)
{
    sent += QStringLiteral("selected ") + tabViewItem->objectName();
    Q_ASSERT(tabView->indexOf(tabViewItem) >= 0);
}
