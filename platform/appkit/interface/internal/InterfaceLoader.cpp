#include "platform/appkit/interface/internal/InterfaceLoader.h"

#include "platform/appkit/colors/NSColorWell.h"
#include "platform/appkit/controls/CardView.h"
#include "platform/appkit/controls/ChoicePicture.h"
#include "platform/appkit/controls/ColumnPage.h"
#include "platform/appkit/controls/ConflictMarker.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/appkit/controls/HeldKeyMarker.h"
#include "platform/appkit/controls/KeyCapsLine.h"
#include "platform/appkit/controls/KeyRepeatField.h"
#include "platform/appkit/controls/NSMatrix.h"
#include "platform/appkit/controls/NSProgressIndicator.h"
#include "platform/appkit/controls/NSSwitch.h"
#include "platform/appkit/controls/NSTextView.h"
#include "platform/appkit/controls/PageTabView.h"
#include "platform/appkit/controls/StyledLabel.h"
#include "platform/appkit/controls/SwitchRow.h"
#include "platform/appkit/controls/WindowsPicture.h"
#include "platform/appkit/interface/internal/InterfaceText.h"
#include "platform/appkit/web/WebView.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/system/NSLog.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QHash>

namespace {

using WidgetMaker = QWidget *(*)(QWidget *parent);

template <typename Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

WidgetMaker ownClass(const QString &className)
{
    static const QHash<QString, WidgetMaker> makers{
        {QStringLiteral("NSMatrix"), &make<NSMatrix>},
        {QStringLiteral("NSColorWell"), &make<NSColorWell>},
        {QStringLiteral("FloatSlider"), &make<FloatSlider>},
        {QStringLiteral("CardView"), &make<CardView>},
        {QStringLiteral("KeyCapsLine"), &make<KeyCapsLine>},
        {QStringLiteral("WindowsPicture"), &make<WindowsPicture>},
        {QStringLiteral("ColumnPage"), &make<ColumnPage>},
        {QStringLiteral("PageTabView"), &make<PageTabView>},
        {QStringLiteral("ConflictMarker"), &make<ConflictMarker>},
        {QStringLiteral("HeldKeyMarker"), &make<HeldKeyMarker>},
        {QStringLiteral("NSSwitch"), &make<NSSwitch>},
        {QStringLiteral("SwitchRow"), &make<SwitchRow>},
        {QStringLiteral("ChoicePicture"), &make<ChoicePicture>},
        {QStringLiteral("KeyRepeatField"), &make<KeyRepeatField>},
        {QStringLiteral("NSTextView"), &make<NSTextView>},
        {QStringLiteral("NSProgressIndicator"), &make<NSProgressIndicator>},
        {QStringLiteral("StyledLabel"), &make<StyledLabel>},
        {QStringLiteral("WebView"), &make<WebView>},
    };
    return makers.value(className);
}

/// While it lives, no plug-ins are found: the base class would load those of Designer, which drag in toolkits that
/// nothing here needs.
class NoPlugIns
{
public:
    NoPlugIns() : paths_(QCoreApplication::libraryPaths()) { QCoreApplication::setLibraryPaths({}); }
    ~NoPlugIns() { QCoreApplication::setLibraryPaths(paths_); }
    Q_DISABLE_COPY_MOVE(NoPlugIns)

private:
    QStringList paths_;
};

/// While it lives, what the toolkit complains about in this thread is logged with the interface file's name.
class ToolkitWarnings
{
public:
    explicit ToolkitWarnings(const QString &file) : file_(file), outer_(current_)
    {
        current_ = this;
        if (!outer_)
            previous_ = qInstallMessageHandler(&ToolkitWarnings::handle);
    }
    ~ToolkitWarnings()
    {
        writeLine();
        current_ = outer_;
        if (!outer_)
            qInstallMessageHandler(previous_);
    }
    Q_DISABLE_COPY_MOVE(ToolkitWarnings)

    void forgetLast() { line_.clear(); }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (current_ && (type == QtWarningMsg || type == QtCriticalMsg))
            current_->take(message);
        else
            previous_(type, context, message);
    }

    /// The names of sender and receiver follow a failed connection as messages of their own.
    void take(const QString &message)
    {
        const QLatin1StringView continuation("QObject::connect:  ");
        if (message.startsWith(continuation) && !line_.isEmpty()) {
            line_ += u' ' + message.mid(continuation.size());
            return;
        }
        writeLine();
        line_ = message;
    }
    void writeLine()
    {
        if (!line_.isEmpty())
            NSLog(QStringLiteral("lumaroo: %1: %2").arg(file_, line_));
        line_.clear();
    }

    static thread_local ToolkitWarnings *current_;
    static QtMessageHandler previous_;
    QString file_;
    QString line_;
    ToolkitWarnings *outer_;
};

thread_local ToolkitWarnings *ToolkitWarnings::current_ = nullptr;
QtMessageHandler ToolkitWarnings::previous_ = nullptr;

} // namespace

InterfaceLoader::InterfaceLoader(
    const QString &file, const QByteArray &xml, const NSBundle *bundle, const QList<InterfaceClass> &classes)
    : file_(file), xml_(xml), bundle_(bundle)
{
    for (const InterfaceClass &ownersClass : classes)
        ownersClasses_.insert(ownersClass.name, ownersClass);
    const QStringList available = availableWidgets();
    toolkitClasses_ = QSet<QString>(available.cbegin(), available.cend());
    toolkitClasses_ += {QStringLiteral("Line"), QStringLiteral("QLayoutWidget")};
}

QWidget *InterfaceLoader::loadInterface(const QByteArray &xml, const QString &file, const NSBundle *bundle,
    const QList<InterfaceClass> &classes, QString *reason)
{
    const NoPlugIns noPlugIns;
    ToolkitWarnings warnings(file);
    InterfaceLoader loader(file, xml, bundle, classes);
    // The texts are in the user's language already.
    loader.setTranslationEnabled(false);
    loader.setWorkingDirectory(bundle->resourcePath());
    QBuffer buffer;
    buffer.setData(xml);
    buffer.open(QIODevice::ReadOnly);
    QWidget *root = loader.load(&buffer);
    if (!root) {
        // The warning says the same.
        warnings.forgetLast();
        *reason = loader.errorString();
    }
    return root;
}

bool InterfaceLoader::isKnown(const QString &className) const
{
    return ownClass(className) || ownersClasses_.contains(className) || toolkitClasses_.contains(className);
}

QString InterfaceLoader::classToUse(const QString &className, const QString &name) const
{
    if (isKnown(className))
        return className;
    const QHash<QString, QString> baseClasses = baseClassesIn(xml_);
    QString known = className;
    // A file may say that two classes extend each other.
    for (int depth = 0; depth < 16 && !isKnown(known); ++depth)
        known = baseClasses.value(known);
    if (!isKnown(known))
        known = QStringLiteral("QWidget");
    NSLog(QStringLiteral("lumaroo: %1: %2: unknown class %3, %4 stands in").arg(file_, name, className, known));
    return known;
}

QWidget *InterfaceLoader::makeOwn(const QString &className, QWidget *parent) const
{
    if (const WidgetMaker maker = ownClass(className))
        return maker(parent);
    const auto ownersClass = ownersClasses_.constFind(className);
    return ownersClass == ownersClasses_.cend() ? nullptr : ownersClass->make(parent, bundle_);
}

QWidget *InterfaceLoader::createWidget(const QString &className, QWidget *parent, const QString &name)
{
    const QString known = classToUse(className, name);
    QWidget *widget = makeOwn(known, parent);
    if (!widget)
        widget = QUiLoader::createWidget(known, parent, name);
    if (widget)
        widget->setObjectName(name);
    return widget;
}
