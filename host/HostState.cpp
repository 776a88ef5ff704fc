#include "host/HostState.h"

#include "platform/foundation/preferences/CFPreferences.h"

namespace {

const QString widthKey = QStringLiteral("WindowWidth");
const QString heightKey = QStringLiteral("WindowHeight");
const QString lastPaneKey = QStringLiteral("LastPane");
const QString lastPagesKey = QStringLiteral("LastPages");
const QString filesToldOfKey = QStringLiteral("FilesToldOf");

} // namespace

const QString HostState::domain = QStringLiteral("com.apple.systempreferences");

QSize HostState::windowSize() const
{
    bool hasWidth = false;
    bool hasHeight = false;
    const int width = CFPreferencesGetAppIntegerValue(widthKey, domain, &hasWidth);
    const int height = CFPreferencesGetAppIntegerValue(heightKey, domain, &hasHeight);
    return hasWidth && hasHeight && width > 0 && height > 0 ? QSize(width, height) : QSize();
}

void HostState::setWindowSize(QSize size)
{
    CFPreferencesSetAppValue(widthKey, qlonglong(size.width()), domain);
    CFPreferencesSetAppValue(heightKey, qlonglong(size.height()), domain);
}

QString HostState::lastPane() const
{
    return CFPreferencesCopyAppValue(lastPaneKey, domain).toString();
}

void HostState::setLastPane(const QString &identifier)
{
    CFPreferencesSetAppValue(lastPaneKey, identifier, domain);
}

QString HostState::lastPage(const QString &pane) const
{
    return CFPreferencesCopyAppValue(lastPagesKey, domain).toMap().value(pane).toString();
}

void HostState::setLastPage(const QString &pane, const QString &page)
{
    QVariantMap pages = CFPreferencesCopyAppValue(lastPagesKey, domain).toMap();
    pages.insert(pane, page);
    CFPreferencesSetAppValue(lastPagesKey, pages, domain);
}

QString HostState::dateOfFileToldOf(const QString &path) const
{
    return CFPreferencesCopyAppValue(filesToldOfKey, domain).toMap().value(path).toString();
}

void HostState::setDateOfFileToldOf(const QString &path, const QString &date)
{
    QVariantMap files = CFPreferencesCopyAppValue(filesToldOfKey, domain).toMap();
    files.insert(path, date);
    CFPreferencesSetAppValue(filesToldOfKey, files, domain);
}

void HostState::flush()
{
    CFPreferencesAppSynchronize(domain);
}
