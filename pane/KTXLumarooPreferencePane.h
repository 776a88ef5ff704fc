#pragma once

#include "pane/KeyCodeTable.h"
#include "pane/PaneOutlets.h"
#include "platform/appkit/controls/NSTabViewDelegate.h"
#include "platform/appkit/interface/NSPreferencePane.h"
#include "platform/appkit/textfields/NSControlTextEditingDelegate.h"
#include "platform/appkit/textfields/NSWindowDelegate.h"
#include "platform/appkit/web/WebFrameLoadDelegate.h"
#include "platform/foundation/notifications/NSNotification.h"
#include "platform/foundation/processes/ProcessSerialNumber.h"

class NSAlert;
class SUUpdater;

/// The settings pane. Each control edits one key of the agent's settings domain, which is then flushed and announced.
class KTXLumarooPreferencePane : public NSPreferencePane,
                                 public NSTabViewDelegate,
                                 public NSControlTextEditingDelegate,
                                 public NSWindowDelegate,
                                 public WebFrameLoadDelegate,
                                 private PaneOutlets
{
    Q_OBJECT

public:
    // Life cycle, settings
    static void initialize();
    bool initWithBundle(NSBundle *bundle) override;
    void mainViewDidLoad() override;
    void willSelect() override;
    void didSelect() override;
    NSPreferencePaneUnselectReply shouldUnselect() override;
    void didUnselect() override;
    ~KTXLumarooPreferencePane() override;
    int loadedVersion() const { return loadedVersion_; }
    void setLoadedVersion(int version) { loadedVersion_ = version; }
    const QStringList &helpAnchors() const { return helpAnchors_; }
    void readUserPrefs();

    // Hot key table
    QStringList keyCodePrefNames() const { return keyCodePrefNames_; }
    void setKeyCodePrefNames(const QStringList &names) { keyCodePrefNames_ = names; }
    KeyCodeTable defaultKeyCodes() const { return defaultKeyCodes_; }
    void setDefaultKeyCodes(const KeyCodeTable &keyCodes) { defaultKeyCodes_ = keyCodes; }
    KeyCodeTable keyCodes() const { return keyCodes_; }
    void setKeyCodes(const KeyCodeTable &keyCodes) { keyCodes_ = keyCodes; }
    bool hotKeyIsDuplicateAtIndex(int index) const;
    void updateHotKeyFields();
    bool controlTextShouldBeginEditing(QWidget *control, FieldEditor *fieldEditor) override;
    bool controlTextViewDoCommandBySelector(QWidget *control, FieldEditor *textView, const QString &command) override;
    bool controlComesBeforeShortcuts(QWidget *control, const NSEvent &event) override;
    QString controlReasonAgainstKey(QWidget *control, const NSEvent &event) override;
    FieldEditor *windowWillReturnFieldEditorToObject(QWidget *window, QWidget *client) override;

    // Activation modifiers
    QString modifierGlyphs() const;
    void updateModifierStates(QObject *sender);
    void updateButtonStates(QObject *sender);

    // Alerts
    void displayAlertwitheMessageAndInformationSuppressionPrefValueAndHelpAnchor(const QString &message,
        const QString &information, const QString &suppressionPrefValue, const QString &helpAnchor);
    void alertDidEndReturnCodeContextInfo(NSAlert *alert, int returnCode, const QString &contextInfo);

    // Agent, behaviour options, key repeat, overlay colour
    void toggleAgent(QObject *sender);
    void enableChecked(QObject *sender);
    void updatePersistentState(QObject *sender);
    void changeSlider(QObject *sender);
    void updateColorInfo(QObject *sender);
    void useSystemColor(QObject *sender);

    // Tabs and tutorial
    void tabViewDidSelectTabViewItem(QTabWidget *tabView, QWidget *tabViewItem) override;
    virtual void switchToTab(const NSNotification &notification);
    void runTutorial(QObject *sender);

    // Updates, help, web pages
    void checkForUpdates(QObject *sender);
    void autoUpdateChecked(QObject *sender);
    void hideBetaNotes(QObject *sender);
    void displayHelp(QObject *sender);
    void launchURL(const QUrl &url);
    void visit(QObject *sender);
    void feedback(QObject *sender);
    void orderFrontFeedbackWindow(QObject *sender);
    void webViewDidStartProvisionalLoadForFrame(WebView *webView, WebFrame *frame) override;

protected: // privateMethods
    InterfaceOwner interfaceOwner() override;
    QList<OutletEntry> outlets();
    QList<ActionEntry> actions();
    virtual void syncPrefsAndNotifyAgent();
    virtual void updatePreferences(const NSNotification &notification);
    virtual void updateAgentVisuals();
    virtual void setAgentVisualsOn(const NSNotification &notification);
    virtual void setAgentVisualsOff();
    virtual void relaunch();
    virtual void stopAgent();
    virtual bool startAgent();
    ProcessSerialNumber agentPSN() const;
    bool agentIsRunning() const;
    SUUpdater *updater() const;

private:
    // Steps of the life cycle
    void registerObservers();
    void buildKeyTables();
    void buildHelpAnchors();
    void setUpUpdater();
    void startAgentOnFirstRun();
    void relaunchIfNewerCodeIsInstalled();
    void showVersion();
    void showCredits();
    bool userQuitsDespiteConflicts();
    void performAfterDelayZero(const char *operation, std::function<void()> perform);
    static void logIfDebugging(const QString &text);
    QString localized(const QString &text) const;
    // Steps of readUserPrefs, then of editing
    void readKeyRepeatAndAnimation();
    void readSortOrdersAndWrapping();
    void readModifiers();
    void readHotKeys();
    void readOverlayColor();
    void takeHotKey(QWidget *control, VirtualKeyCode keyCode);
    void refuseHotKey(QWidget *control, FieldEditor *fieldEditor, VirtualKeyCode keyCode);
    bool refreshConflictMarkers();
    void warnOfConflicts(const QString &information);
    void warnOfLastModifier();
    void setOnAgainAfterDelayZero(QObject *button);
    void storeModifierMask();
    // Steps of enableChecked:
    void storeAndSync(const QString &key, const QVariant &value);
    void activateByDoubleClick(QObject *checkBox);
    void storeSelectedItem(QObject *popUp);
    void followDesktop();
    void toggleAgentAndTell(QObject *sender);
    void useFreeModifiers();
    void toggleStartAtLogin(QObject *sender);

    quint32 modifierStateMask_ = 0, toggleStateMask_ = 0;
    int loadedVersion_ = 0;
    QStringList helpAnchors_, keyCodePrefNames_;
    QVariantMap infoDictionary_;
    KeyCodeTable defaultKeyCodes_, keyCodes_;
    ProcessSerialNumber agentPSN_;
    class PaneDesktop *desktop_ = nullptr;
    class PaneKeys *keys_ = nullptr;
};
