#include "pane/ThisCopy.h"

#include "pane/Controls.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QLabel>
#include <QPixmap>

namespace {

constexpr int iconSide = 96;

QWidget *controlNamed(QWidget *view, const char *name)
{
    return view->findChild<QWidget *>(QString::fromLatin1(name));
}

/// By the places that belong to the system's packages.
bool isOfAPackage(const NSBundle *bundle)
{
    const QString path = bundle->bundlePath();
    return path.startsWith(QStringLiteral("/usr/")) && !path.startsWith(QStringLiteral("/usr/local/"));
}

} // namespace

void showIcon(QWidget *view, const NSBundle *bundle)
{
    auto *label = view ? qobject_cast<QLabel *>(controlNamed(view, "appIconView")) : nullptr;
    const QString credits = bundle->pathForResourceOfType(QStringLiteral("Credits"), QStringLiteral("rtfd"));
    QPixmap icon(credits + QStringLiteral("/Lumaroo.png"));
    if (!label || credits.isEmpty() || icon.isNull())
        return;
    const double scale = label->devicePixelRatioF();
    icon = icon.scaled(QSize(iconSide, iconSide) * scale, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    icon.setDevicePixelRatio(scale);
    label->setPixmap(icon);
}

void showWhereUpdatesComeFrom(QWidget *view, const NSBundle *bundle)
{
    const QVariantMap info = bundle->infoDictionary();
    if (!view || !info.value(QStringLiteral("SUPublicEDKey")).toString().isEmpty())
        return;
    for (const char *name :
        {"automaticHeading", "autoUpdateButton", "manualHeading", "manualCard", "statusHeading", "statusCard"})
        setHidden(controlNamed(view, name), true);
    QString copy = info.value(QStringLiteral("CFBundleExecutable")).toString() + u' '
        + info.value(QStringLiteral("CFBundleShortVersionString")).toString();
    if (isOfAPackage(bundle))
        copy += u'\n'
            + bundle->localizedStringForKeyValueTable(
                QString::fromUtf8("The system’s updates bring new versions of this copy."), {}, {});
    setStringValue(controlNamed(view, "thisCopyField"), copy);
    setHidden(controlNamed(view, "thisCopyField"), false);
}
