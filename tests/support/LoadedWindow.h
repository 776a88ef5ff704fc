#pragma once

#include "TestBundle.h"
#include "platform/appkit/controls/NSTabViewDelegate.h"
#include "platform/appkit/textfields/NSControlTextEditingDelegate.h"
#include "platform/appkit/web/WebFrameLoadDelegate.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <memory>

/// The pane's window as its interface file makes it, in one language, with an owner that notes which actions are
/// performed.
class LoadedWindow : public NSTabViewDelegate, public NSControlTextEditingDelegate, public WebFrameLoadDelegate
{
public:
    explicit LoadedWindow(const QString &language = QStringLiteral("en"));
    ~LoadedWindow() override;

    QWidget *root() const { return root_.get(); }
    QWidget *page(int index) const;
    /// Shows the window and waits until it has the keyboard.
    void show() const;
    void showPage(int index) const;

    template <typename T = QWidget>
    T *find(const QString &name) const
    {
        return root_->objectName() == name ? qobject_cast<T *>(root_.get()) : root_->findChild<T *>(name);
    }

    struct PerformedAction
    {
        QString selector;
        QPointer<QObject> sender;
    };
    const QList<PerformedAction> &performedActions() const { return performedActions_; }
    void forgetPerformedActions() { performedActions_.clear(); }
    /// What loading has complained about.
    const QStringList &complaints() const { return complaints_; }

    void tabViewDidSelectTabViewItem(QTabWidget *tabView, QWidget *tabViewItem) override;
    bool controlTextShouldBeginEditing(QWidget *control, FieldEditor *fieldEditor) override;
    bool controlTextViewDoCommandBySelector(QWidget *control, FieldEditor *textView, const QString &command) override;
    void webViewDidStartProvisionalLoadForFrame(WebView *webView, WebFrame *frame) override;

private:
    TestBundle bundle_;
    QObject owner_;
    std::unique_ptr<QWidget> root_;
    QList<PerformedAction> performedActions_;
    QStringList complaints_;
};

/// Every action that a control of the window may have.
QStringList actionsOfThePane();
