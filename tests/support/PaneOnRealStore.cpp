#include "PaneOnRealStore.h"

#include "KeyPress.h"
#include "SeenNotes.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "crashreporter/QBCrashReporter.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QDirIterator>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString productBundle()
{
    return qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/Lumaroo.prefPane");
}

/// Programs are left out: a test that runs one puts it there.
bool isProgram(const QString &path)
{
    return path.contains(QStringLiteral(".app/")) || QFileInfo(path).isExecutable();
}

void copyIntoBundle(const TestBundle &bundle, const QString &folder)
{
    QDirIterator files(productBundle() + u'/' + folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (!isProgram(path))
            bundle.writeFile(path.mid(productBundle().size() + 1), contentOf(path));
    }
}

} // namespace

void RecordingPane::switchToTab(const NSNotification &notification)
{
    *calls_ += QStringLiteral("switchToTab: ") + notification.object.toString();
    KTXLumarooPreferencePane::switchToTab(notification);
}

QStringList RecordingPane::outletNames()
{
    QStringList names;
    for (const OutletEntry &outlet : outlets())
        names += outlet.name;
    return names;
}

void RecordingPane::updatePreferences(const NSNotification &notification)
{
    *calls_ += QStringLiteral("updatePreferences:");
    KTXLumarooPreferencePane::updatePreferences(notification);
}

void RecordingPane::syncPrefsAndNotifyAgent()
{
    KTXLumarooPreferencePane::syncPrefsAndNotifyAgent();
    atAgentTold();
}

bool RecordingPane::controlTextViewDoCommandBySelector(QWidget *control, FieldEditor *textView, const QString &command)
{
    commands += command;
    return KTXLumarooPreferencePane::controlTextViewDoCommandBySelector(control, textView, command);
}

bool RecordingPane::recordedAndWished(const QString &operation)
{
    *calls_ += operation;
    return carriedOut_.contains(operation);
}

void RecordingPane::updateAgentVisuals()
{
    if (recordedAndWished(QStringLiteral("updateAgentVisuals")))
        KTXLumarooPreferencePane::updateAgentVisuals();
    atAgentVisuals();
}

void RecordingPane::setAgentVisualsOn(const NSNotification &notification)
{
    if (recordedAndWished(QStringLiteral("setAgentVisualsOn:")))
        KTXLumarooPreferencePane::setAgentVisualsOn(notification);
}

void RecordingPane::setAgentVisualsOff()
{
    if (recordedAndWished(QStringLiteral("setAgentVisualsOff")))
        KTXLumarooPreferencePane::setAgentVisualsOff();
}

void RecordingPane::relaunch()
{
    if (recordedAndWished(QStringLiteral("relaunch")))
        KTXLumarooPreferencePane::relaunch();
}

void RecordingPane::stopAgent()
{
    if (recordedAndWished(QStringLiteral("stopAgent")))
        KTXLumarooPreferencePane::stopAgent();
}

bool RecordingPane::startAgent()
{
    return !recordedAndWished(QStringLiteral("startAgent")) || KTXLumarooPreferencePane::startAgent();
}

QString StoreOnDisk::path()
{
    return qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/lumaroo/com.quorvane.Lumaroo.plist");
}

void StoreOnDisk::clear() const
{
    set(QVariantMap());
    QFile::remove(path());
}

void StoreOnDisk::set(const QString &key, const QVariant &value) const
{
    CFPreferencesSetAppValue(key, value, KTXLMAppID);
    CFPreferencesAppSynchronize(KTXLMAppID);
}

void StoreOnDisk::set(const QVariantMap &domain) const
{
    NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(domain, KTXLMAppID);
}

QVariantMap StoreOnDisk::domain() const
{
    return readPropertyList(contentOf(path())).value.toMap();
}

QVariantMap StoreOnDisk::domainBesideDateOfCheck() const
{
    QVariantMap values = domain();
    EXPECT_EQ(values.take(QBCrashReporterLastCrashReportDate).typeId(), QMetaType::QDateTime);
    return values;
}

PaneOnRealStore::PaneOnRealStore() : bundle_(QStringLiteral("Lumaroo.prefPane"))
{
    store_.clear();
    letNotesBeSeen();
    bundle_.writeFile(
        QStringLiteral("Contents/Info.plist"), contentOf(productBundle() + QStringLiteral("/Contents/Info.plist")));
    copyIntoBundle(bundle_, QStringLiteral("Contents/Resources"));
}

PaneOnRealStore::~PaneOnRealStore()
{
    pane_.reset();
    store_.clear();
}

void PaneOnRealStore::changeInfo(const QVariantMap &changes) const
{
    QVariantMap info = NSBundle::infoDictionaryOnDisk(bundle_.path());
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (change.value().isValid())
            info.insert(change.key(), change.value());
        else
            info.remove(change.key());
    }
    bundle_.writeInfo(info);
}

RecordingPane &PaneOnRealStore::paneWithoutView()
{
    if (!pane_) {
        pane_ = std::make_unique<RecordingPane>(&calls);
        NSBundle *loaded = NSBundle::bundleWithPath(bundle_.path());
        loaded->setLoaded();
        EXPECT_TRUE(pane_->initWithBundle(loaded));
    }
    return *pane_;
}

RecordingPane &PaneOnRealStore::pane()
{
    if (!paneWithoutView().mainView()) {
        EXPECT_NE(pane_->loadMainView(), nullptr);
        if (!pane_->mainView())
            qFatal("the pane's interface file cannot be loaded");
    }
    return *pane_;
}

void PaneOnRealStore::showWindow()
{
    pane().mainView()->show();
    EXPECT_TRUE(waitUntil([this] {
        const QWidget *active = QApplication::activeWindow();
        if (active && (active == pane().mainView() || active->parentWidget() == pane().mainView()))
            return hasKeyboard(active);
        // A window that the test before left on its way out may have taken the focus.
        pane().mainView()->activateWindow();
        return false;
    }));
}

void PaneOnRealStore::showPane()
{
    pane().willSelect();
    showWindow();
    pane().didSelect();
    runPendingEvents();
}

QWidget *PaneOnRealStore::keyField(int row)
{
    for (QLineEdit *field : pane().mainView()->findChildren<QLineEdit *>()) {
        if (tag(field) == row)
            return field;
    }
    return nullptr;
}
