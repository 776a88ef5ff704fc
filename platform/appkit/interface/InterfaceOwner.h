#pragma once

#include "platform/appkit/controls/Outlet.h"

#include <QList>
#include <QString>
#include <functional>

class NSBundle;
class NSTabViewDelegate;
class NSControlTextEditingDelegate;
class NSWindowDelegate;
class QWidget;
class WebFrameLoadDelegate;

/// An outlet by its name, and how an object of the interface file is put into it; answers false for an object of the
/// wrong type.
struct OutletEntry
{
    QString name;
    std::function<bool(QObject *object)> connect;
};

/// An action by its selector ("enableChecked:"), and what it calls with the sending control.
struct ActionEntry
{
    QString selector;
    std::function<void(QObject *sender)> perform;
};

/// A class of widgets that an interface file may use beside the toolkit's and this library's, and how one is made for
/// the bundle that the file is in.
struct InterfaceClass
{
    QString name;
    std::function<QWidget *(QWidget *parent, const NSBundle *bundle)> make;
};

/// What an interface file can reach in its owner.
struct InterfaceOwner
{
    QObject *object = nullptr; ///< the owner itself: actions end with its life
    QString className; ///< for log lines
    QList<OutletEntry> outlets;
    QList<ActionEntry> actions;
    NSTabViewDelegate *tabViewDelegate = nullptr;
    NSControlTextEditingDelegate *textDelegate = nullptr;
    NSWindowDelegate *windowDelegate = nullptr;
    WebFrameLoadDelegate *frameLoadDelegate = nullptr;
    QList<InterfaceClass> classes = {};
};

template <typename T>
OutletEntry outletEntry(const QString &name, Outlet<T> &outlet)
{
    return {name, [&outlet](QObject *object) {
                T *typed = qobject_cast<T *>(object);
                if (typed)
                    outlet = Outlet<T>(typed);
                return typed != nullptr;
            }};
}
