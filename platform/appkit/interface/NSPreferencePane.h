#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/interface/InterfaceOwner.h"

#include <QObject>
#include <QWidget>
#include <QtPlugin>
#include <memory>

class NSBundle;

enum NSPreferencePaneUnselectReply { NSUnselectCancel = 0, NSUnselectNow = 1, NSUnselectLater = 2 };

/// A pane of the settings application, as its host drives it:
/// `initialize` of the principal class (once), construction, initWithBundle, loadMainView (which calls
/// mainViewDidLoad), then at each showing willSelect, the view appears, didSelect; at each leaving shouldUnselect and,
/// unless that keeps the pane, willUnselect, the view goes, didUnselect; at last destruction.
class LM_APPKIT NSPreferencePane : public QObject
{
    Q_OBJECT

public:
    NSPreferencePane();
    /// Destroys the main view with it, if nobody else has.
    ~NSPreferencePane() override;

    /// Called once, right after construction. False means that the pane cannot be used: the host releases it and shows
    /// its error page.
    virtual bool initWithBundle(NSBundle *bundle);
    NSBundle *bundle() const { return bundle_; }

    /// Loads the main view from the interface file, connects it, and calls mainViewDidLoad; called once, by the host,
    /// in one go with initWithBundle. Null when the interface file cannot be loaded.
    QWidget *loadMainView();
    QWidget *mainView() const { return mainView_; }
    /// The interface file's name: NSMainNibFile of the Info dictionary, or "Main".
    virtual QString mainNibName() const;

    /// The view is loaded and all outlets are connected; it is not on screen yet.
    virtual void mainViewDidLoad() { }
    /// The pane is about to be shown; afterwards it is on screen.
    virtual void willSelect() { }
    virtual void didSelect() { }
    /// The user wants to leave. NSUnselectLater keeps the pane shown until replyToShouldUnselect.
    virtual NSPreferencePaneUnselectReply shouldUnselect() { return NSUnselectNow; }
    /// The pane is about to go from the screen; afterwards it is gone from it.
    virtual void willUnselect() { }
    virtual void didUnselect() { }

Q_SIGNALS:
    /// The answer that shouldUnselect deferred with NSUnselectLater.
    void replyToShouldUnselect(bool shouldUnselect);

protected:
    /// What the interface file can reach; asked once, by loadMainView.
    virtual InterfaceOwner interfaceOwner()
    {
        return {this, QString::fromLatin1(metaObject()->className()), {}, {}, nullptr, nullptr, nullptr};
    }

private:
    NSBundle *bundle_ = nullptr;
    std::unique_ptr<QObject> actionsEndWith_;
    QPointer<QWidget> mainView_;
};

/// What a pane's plug-in exports: its principal class.
class NSPrincipalClass
{
public:
    virtual ~NSPrincipalClass() = default;
    /// Called once per process, before the class's first use.
    virtual void initialize() = 0;
    /// A new, uninitialised pane; the caller owns it.
    virtual NSPreferencePane *alloc() = 0;
};

#define NSPrincipalClass_iid "com.quorvane.NSPrincipalClass/1"
Q_DECLARE_INTERFACE(NSPrincipalClass, NSPrincipalClass_iid)
