#pragma once

#include "platform/appkit/controls/NSUserDefaultsController.h"
#include "platform/appkit/interface/InterfaceOwner.h"

#include <QList>
#include <QString>
#include <functional>
#include <optional>

class NSBundle;
class QComboBox;
class QLineEdit;
class QTabWidget;
class QToolButton;
class QWidget;
class TextFieldEvents;
class WebView;

/// Connects the objects of one interface file with its owner; what does not fit is one logged line with file and
/// object.
class InterfaceConnections
{
public:
    InterfaceConnections(const QString &file, const NSBundle *bundle, const InterfaceOwner &owner)
        : file_(file), bundle_(bundle), owner_(owner)
    {
    }

    /// Called once, after everything is built: whatever building has changed is told to nobody.
    void connectAll(QWidget *root);

private:
    void connectOutlets(const QList<QObject *> &objects);
    void connectObject(QObject *object);
    void connectAction(QObject *control, const QString &selector);
    void connectDelegate(QObject *object, const QString &delegate);
    void connectTabView(QTabWidget *tabView);
    void bindValue(QObject *control, const QString &setting);
    void bindEnabled(QObject *control, const QString &setting);
    std::optional<DefaultsBinding> bindingTo(const QObject *control, const QString &setting) const;
    void connectTextField(QLineEdit *field);
    void connectWebView(WebView *webView);
    void showMainFrameFile(WebView *webView);
    void giveItemsTheirTags(QComboBox *popUp, const QStringList &tags);
    void useOnlyActionAsDefault(QToolButton *button);
    template <typename Control, typename Signal>
    bool connectSender(QObject *object, Signal signal, const ActionEntry &action);
    void log(const QObject *object, const QString &what) const;

    QString file_;
    const NSBundle *bundle_;
    InterfaceOwner owner_;
    TextFieldEvents *textFieldEvents_ = nullptr; // made for the first field, owned by what the actions end with
};
