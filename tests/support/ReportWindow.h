#pragma once

#include "PaneOnRealStore.h"
#include "TestBundle.h"

#include "crashreporter/QBCrashReporter.h"

#include <QPointer>
#include <gtest/gtest.h>

/// The report window of a pane's bundle that a test makes, in a process whose main bundle is the host's, on a store
/// that is cleared for each test.
class ReportWindow : public testing::Test
{
protected:
    ReportWindow();
    ~ReportWindow() override;

    /// Other texts of the bundle, by their keys; called before the first window.
    void setTexts(const QMap<QString, QString> &texts);
    void setAddress(const QUrl &address) { setTexts({{"CRASH_REPORT_CGI_URL", address.toString()}}); }
    static QMap<QString, QString> testTexts();
    /// Takes the interface file out of the bundle.
    void removeInterfaceFile() const;

    QBCrashReporter *openCrash(const QString &report = QStringLiteral("the log"));
    QBCrashReporter *openFeedback();

    /// The window that was opened last; null where it is gone.
    QDialog *window() const { return window_; }
    bool isOpen() const { return window_ && window_->isVisible(); }
    template <typename Part = QWidget>
    Part *part(const char *name) const
    {
        return window_->findChild<Part *>(QLatin1StringView(name));
    }
    QString text(const char *field) const { return part<NSTextView>(field)->string(); }
    void click(const char *button) const { part<QPushButton>(button)->click(); }
    QVariant rememberedDate() const { return store.value(QBCrashReporterLastCrashReportDate); }
    /// Waits until the window has gone and the reporter with it.
    bool reporterGoes() const;

    const StoreOnDisk store{};
    const TestBundle bundle{QStringLiteral("Lumaroo.prefPane")};
    QPointer<QBCrashReporter> reporter;

private:
    QBCrashReporter *opened(QBCrashReporter *(*open)(const QString &report), const QString &report);

    QMap<QString, QString> texts_ = testTexts();
    QPointer<QDialog> window_;
    QList<QPointer<QBCrashReporter>> opened_;
};
