#pragma once

#include "BusRecorder.h"
#include "CapturedLog.h"
#include "TestBundle.h"

#include "pane/KTXLumarooPreferencePane.h"

#include <gtest/gtest.h>

/// The pane with its calls to the agent's control written down, and carried out only where a test wishes it; everything
/// else is the real thing.
class RecordingPane : public KTXLumarooPreferencePane
{
public:
    explicit RecordingPane(QStringList *calls) : calls_(calls) { }

    /// From now on these operations of the agent's control are carried out, too.
    void carryOut(const QStringList &operations) { carriedOut_ += operations; }
    void switchToTab(const NSNotification &notification) override;
    QStringList outletNames();
    /// Called where the pane would show the agent's state.
    std::function<void()> atAgentVisuals = [] {};
    /// Called when a change has been flushed and announced, before the operation that did so goes on.
    std::function<void()> atAgentTold = [] {};
    /// What the hot key fields asked about as a command, since a test cleared it.
    QStringList commands;

    void updateAgentVisuals() override;
    void setAgentVisualsOn(const NSNotification &notification) override;
    void setAgentVisualsOff() override;
    void relaunch() override;
    void stopAgent() override;
    bool startAgent() override;
    using KTXLumarooPreferencePane::agentPSN;
    bool controlTextViewDoCommandBySelector(QWidget *control, FieldEditor *textView, const QString &command) override;

protected:
    void syncPrefsAndNotifyAgent() override;
    void updatePreferences(const NSNotification &notification) override;

private:
    bool recordedAndWished(const QString &operation);

    QStringList *calls_;
    QStringList carriedOut_;
};

/// The agent's settings domain, as another process would see and change it.
class StoreOnDisk
{
public:
    static QString path();
    void clear() const;
    /// Sets a value and flushes it.
    void set(const QString &key, const QVariant &value) const;
    void set(const QString &key, int value) const { set(key, QVariant(qlonglong(value))); }
    void set(const QString &key, bool value) const { set(key, QVariant(value)); }
    void set(const QVariantMap &domain) const;
    /// What the file itself holds.
    QVariantMap domain() const;
    QVariant value(const QString &key) const { return domain().value(key); }
    /// The same, but for the date that the pane's first check for a crash has left there.
    QVariantMap domainBesideDateOfCheck() const;
};

/// A pane on a store, a bus and an interface file that are real, all cleared for each test.
///
/// Its bundle is a copy of the product's, so that a test can change it before the pane is first asked for.
class PaneOnRealStore : public testing::Test
{
protected:
    PaneOnRealStore();
    ~PaneOnRealStore() override;

    const StoreOnDisk &store() const { return store_; }
    BusRecorder &bus() { return bus_; }
    const TestBundle &bundle() const { return bundle_; }
    /// Replaces entries of the bundle's Info dictionary; an entry without a value is removed.
    void changeInfo(const QVariantMap &changes) const;

    /// The pane, initialised and with its view loaded at the first request.
    RecordingPane &pane();
    /// The pane, initialised but without its view.
    RecordingPane &paneWithoutView();
    void destroyPane() { pane_.reset(); }
    /// Shows the pane's view in a window of its own and waits until it, or a sheet on it, has the keyboard.
    void showWindow();
    /// One showing as the host drives it, up to the end of what it deferred.
    void showPane();

    template <typename T = QWidget>
    T *control(const char *name)
    {
        QWidget *root = pane().mainView();
        const QString objectName = QString::fromLatin1(name);
        return root->objectName() == objectName ? qobject_cast<T *>(root) : root->findChild<T *>(objectName);
    }
    /// The hot key field of a row.
    QWidget *keyField(int row);
    QString text(const char *name) { return stringValue(control(name)); }

    /// The calls to the agent's control and the notification handlers, by name, in order.
    QStringList calls;

private:
    StoreOnDisk store_;
    BusRecorder bus_;
    TestBundle bundle_;
    std::unique_ptr<RecordingPane> pane_;
};
