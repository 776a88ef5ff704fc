#include "LoadedWindow.h"

#include "CapturedLog.h"
#include "KeyPress.h"
#include "StringTables.h"
#include "Wait.h"
#include "platform/appkit/interface/InterfaceFile.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "updater/InterfaceClasses.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTabWidget>

namespace {

const QString nibName = QStringLiteral("LumarooPref");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

QString folderOf(const std::string &language)
{
    return QString::fromStdString(language) + QStringLiteral(".lproj/");
}

/// A bundle finds out about the user's language once, so that each language needs a bundle of its own.
void copyResources(const TestBundle &bundle)
{
    const QString inside = QStringLiteral("Contents/Resources/");
    const QString built = qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/Lumaroo.prefPane/") + inside;
    QStringList files{nibName + QStringLiteral(".ui")};
    for (const QString &page : {QStringLiteral("Pages/AtAGlance.html"), QStringLiteral("Pages/ReleaseNotes.html")}) {
        files += page;
        for (const std::string &language : translations())
            files += folderOf(language) + page;
    }
    for (const std::string &language : translations())
        files += folderOf(language) + nibName + QStringLiteral(".qm");
    for (const QString &file : files)
        bundle.writeFile(inside + file, contentOf(built + file));
}

} // namespace

QStringList actionsOfThePane()
{
    return {QStringLiteral("toggleAgent:"), QStringLiteral("runTutorial:"), QStringLiteral("displayHelp:"),
        QStringLiteral("updateModifierStates:"), QStringLiteral("updateButtonStates:"),
        QStringLiteral("enableChecked:"), QStringLiteral("updatePersistentState:"), QStringLiteral("changeSlider:"),
        QStringLiteral("updateColorInfo:"), QStringLiteral("useSystemColor:"), QStringLiteral("checkForUpdates:"),
        QStringLiteral("autoUpdateChecked:"), QStringLiteral("hideBetaNotes:"), QStringLiteral("visit:"),
        QStringLiteral("feedback:"), QStringLiteral("orderFrontFeedbackWindow:"), QStringLiteral("useFreeModifiers:"),
        QStringLiteral("restoreAllKeys:"), QStringLiteral("undoRestoringKeys:"), QStringLiteral("toggleStartAtLogin:")};
}

LoadedWindow::LoadedWindow(const QString &language) : bundle_(QStringLiteral("Window.prefPane"))
{
    QLocale::setDefault(QLocale(language));
    copyResources(bundle_);
    InterfaceOwner owner;
    owner.object = &owner_;
    owner.className = QStringLiteral("LoadedWindow");
    owner.tabViewDelegate = this;
    owner.textDelegate = this;
    owner.frameLoadDelegate = this;
    owner.classes = updaterInterfaceClasses();
    for (const QString &selector : actionsOfThePane())
        owner.actions += {selector, [this, selector](QObject *sender) {
                              performedActions_ += PerformedAction{selector, sender};
                          }};
    const CapturedLog log;
    root_.reset(loadInterfaceFile(NSBundle::bundleWithPath(bundle_.path()), nibName, owner));
    complaints_ = log.lines();
    if (!root_)
        qFatal("the window does not load: %s", qPrintable(complaints_.join(u'\n')));
}

LoadedWindow::~LoadedWindow()
{
    QLocale::setDefault(QLocale::c());
}

QWidget *LoadedWindow::page(int index) const
{
    return find<QTabWidget>(QStringLiteral("tabbedView"))->widget(index);
}

void LoadedWindow::show() const
{
    root_->show();
    if (!waitUntil([this] { return hasKeyboard(root_.get()); }))
        qFatal("the window does not get the keyboard");
}

void LoadedWindow::showPage(int index) const
{
    find<QTabWidget>(QStringLiteral("tabbedView"))->setCurrentIndex(index);
    runPendingEvents();
}

void LoadedWindow::tabViewDidSelectTabViewItem(QTabWidget *, QWidget *) { }

bool LoadedWindow::controlTextShouldBeginEditing(QWidget *, FieldEditor *)
{
    return false;
}

bool LoadedWindow::controlTextViewDoCommandBySelector(QWidget *, FieldEditor *, const QString &)
{
    return false;
}

void LoadedWindow::webViewDidStartProvisionalLoadForFrame(WebView *, WebFrame *) { }
