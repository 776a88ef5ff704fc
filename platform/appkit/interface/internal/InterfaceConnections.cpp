#include "platform/appkit/interface/internal/InterfaceConnections.h"

#include "platform/appkit/colors/NSColorWell.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/appkit/controls/NSMatrix.h"
#include "platform/appkit/controls/NSTabViewDelegate.h"
#include "platform/appkit/controls/PageTurning.h"
#include "platform/appkit/textfields/TextFieldEvents.h"
#include "platform/appkit/web/WebFrameLoadDelegate.h"
#include "platform/appkit/web/WebView.h"
#include "platform/foundation/Boundary.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/system/NSLog.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>

namespace {

/// A property that the interface file has added to an object, not one of its class.
QVariant added(const QObject *object, const char *property)
{
    return object->dynamicPropertyNames().contains(property) ? object->property(property) : QVariant();
}

QList<QObject *> objectsFrom(QWidget *root)
{
    return QList<QObject *>{root} + root->findChildren<QObject *>();
}

} // namespace

void InterfaceConnections::log(const QObject *object, const QString &what) const
{
    const QString name = object->objectName();
    const QString shown = name.isEmpty() ? QString::fromLatin1(object->metaObject()->className()) : name;
    NSLog(QStringLiteral("lumaroo: %1: %2: %3").arg(file_, shown, what));
}

void InterfaceConnections::connectAll(QWidget *root)
{
    // First of all: a page that is read brings and removes objects of the view's own.
    for (WebView *webView : root->findChildren<WebView *>())
        showMainFrameFile(webView);
    const QList<QObject *> objects = objectsFrom(root);
    connectOutlets(objects);
    for (QObject *object : objects)
        connectObject(object);
}

void InterfaceConnections::connectOutlets(const QList<QObject *> &objects)
{
    QHash<QString, QObject *> named;
    for (auto object = objects.crbegin(); object != objects.crend(); ++object)
        named.insert((*object)->objectName(), *object);
    for (const OutletEntry &outlet : owner_.outlets) {
        QObject *object = named.value(outlet.name);
        if (object && !outlet.connect(object)) {
            log(object,
                QStringLiteral("a %1 is no object for this outlet of %2")
                    .arg(QLatin1StringView(object->metaObject()->className()), owner_.className));
        }
    }
}

void InterfaceConnections::connectObject(QObject *object)
{
    if (auto *matrix = qobject_cast<NSMatrix *>(object))
        matrix->adoptCells();
    if (auto *button = qobject_cast<QToolButton *>(object))
        useOnlyActionAsDefault(button);
    if (const QVariant tags = added(object, "tags"); tags.isValid())
        giveItemsTheirTags(qobject_cast<QComboBox *>(object), tags.toStringList());
    if (const QVariant setting = added(object, "binding"); setting.isValid())
        bindValue(object, setting.toString());
    if (const QVariant setting = added(object, "enabledBinding"); setting.isValid())
        bindEnabled(object, setting.toString());
    if (const QVariant selector = added(object, "action"); selector.isValid())
        connectAction(object, selector.toString());
    if (const QVariant delegate = added(object, "delegate"); delegate.isValid())
        connectDelegate(object, delegate.toString());
}

void InterfaceConnections::useOnlyActionAsDefault(QToolButton *button)
{
    if (!button->defaultAction() && button->actions().size() == 1)
        button->setDefaultAction(button->actions().constFirst());
}

void InterfaceConnections::giveItemsTheirTags(QComboBox *popUp, const QStringList &tags)
{
    if (!popUp)
        return;
    if (tags.size() != popUp->count())
        log(popUp, QStringLiteral("%1 tags for %2 items").arg(tags.size()).arg(popUp->count()));
    for (int index = 0; index < std::min(int(tags.size()), popUp->count()); ++index) {
        bool isNumber = false;
        const int itemTag = tags[index].toInt(&isNumber);
        if (isNumber)
            popUp->setItemData(index, itemTag);
        else
            log(popUp, QStringLiteral("%1 is no tag").arg(tags[index]));
    }
}

template <typename Control, typename Signal>
bool InterfaceConnections::connectSender(QObject *object, Signal signal, const ActionEntry &action)
{
    auto *control = qobject_cast<Control *>(object);
    if (!control)
        return false;
    const QByteArray place = QStringLiteral("%1: %2").arg(file_, action.selector).toUtf8();
    const auto perform = [place, control, operation = action.perform] {
        runAtBoundary(place.constData(), [&] { operation(control); });
    };
    QObject::connect(control, signal, owner_.object ? owner_.object : object, perform);
    return true;
}

void InterfaceConnections::connectAction(QObject *control, const QString &selector)
{
    const auto isIt = [&selector](const ActionEntry &entry) { return entry.selector == selector; };
    const auto action = std::find_if(owner_.actions.cbegin(), owner_.actions.cend(), isIt);
    if (action == owner_.actions.cend())
        return log(control, QStringLiteral("%1 has no action %2").arg(owner_.className, selector));
    // What the user does, each control's own signal; a well is a button too.
    const bool connected = connectSender<NSMatrix>(control, &NSMatrix::cellClicked, *action)
        || connectSender<NSColorWell>(control, &NSColorWell::colorPicked, *action)
        || connectSender<FloatSlider>(control, &FloatSlider::valueChosen, *action)
        || connectSender<QComboBox>(control, &QComboBox::activated, *action)
        || connectSender<QAbstractButton>(control, &QAbstractButton::clicked, *action)
        || connectSender<QAction>(control, &QAction::triggered, *action);
    if (!connected)
        log(control, QStringLiteral("a %1 sends no action").arg(QLatin1StringView(control->metaObject()->className())));
}

void InterfaceConnections::connectDelegate(QObject *object, const QString &delegate)
{
    const auto *view = qobject_cast<QWidget *>(object);
    if (delegate != QLatin1StringView("owner"))
        log(object, QStringLiteral("%1 is no delegate").arg(delegate));
    else if (auto *tabView = qobject_cast<QTabWidget *>(object))
        connectTabView(tabView);
    else if (auto *field = qobject_cast<QLineEdit *>(object))
        connectTextField(field);
    else if (auto *webView = qobject_cast<WebView *>(object))
        connectWebView(webView);
    // Windows ask their delegate through the text fields.
    else if (!view || !view->isWindow())
        log(object, QStringLiteral("a %1 has no delegate").arg(QLatin1StringView(object->metaObject()->className())));
}

void InterfaceConnections::connectTextField(QLineEdit *field)
{
    if (!owner_.textDelegate)
        return log(field, QStringLiteral("%1 is no delegate of a text field").arg(owner_.className));
    if (!textFieldEvents_)
        textFieldEvents_ = new TextFieldEvents(
            file_, owner_.textDelegate, owner_.windowDelegate, owner_.object ? owner_.object : field->window());
    textFieldEvents_->add(field);
}

void InterfaceConnections::connectTabView(QTabWidget *tabView)
{
    addPageTurningKeys(tabView);
    NSTabViewDelegate *delegate = owner_.tabViewDelegate;
    if (!delegate)
        return log(tabView, QStringLiteral("%1 is no delegate of a tab view").arg(owner_.className));
    const QByteArray place = QStringLiteral("%1: tabView:didSelectTabViewItem:").arg(file_).toUtf8();
    const auto tell = [place, tabView, delegate](int index) {
        QWidget *page = tabView->widget(index);
        if (page)
            runAtBoundary(place.constData(), [&] { delegate->tabViewDidSelectTabViewItem(tabView, page); });
    };
    QObject::connect(tabView, &QTabWidget::currentChanged, owner_.object ? owner_.object : tabView, tell);
}

void InterfaceConnections::connectWebView(WebView *webView)
{
    WebFrameLoadDelegate *delegate = owner_.frameLoadDelegate;
    if (!delegate)
        return log(webView, QStringLiteral("%1 is no delegate of a web view").arg(owner_.className));
    const QByteArray place = QStringLiteral("%1: webView:didStartProvisionalLoadForFrame:").arg(file_).toUtf8();
    const auto tell = [place, webView, delegate](WebFrame *frame) {
        runAtBoundary(place.constData(), [&] { delegate->webViewDidStartProvisionalLoadForFrame(webView, frame); });
    };
    QObject::connect(webView, &WebView::didStartProvisionalLoadForFrame, owner_.object ? owner_.object : webView, tell);
}

void InterfaceConnections::showMainFrameFile(WebView *webView)
{
    const QString file = added(webView, "mainFrameFile").toString();
    const QString path = bundle_->pathForResourceOfType(file, {});
    if (!path.isEmpty())
        webView->setSource(QUrl::fromLocalFile(path));
    else if (!file.isEmpty())
        log(webView, QStringLiteral("%1 is not in the bundle").arg(file));
}
