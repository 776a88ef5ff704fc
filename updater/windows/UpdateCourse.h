#pragma once

#include "updater/UpdateEngine.h"
#include "updater/core/UpdateCheck.h"
#include "updater/core/UpdatePreparation.h"
#include "updater/windows/UpdatePages.h"
#include "updater/windows/UpdateWindow.h"

/// One bundle's way from a check to the restart with a new version, and the window that shows it.
class UpdateCourse : public QObject, public UpdateEngine
{
    Q_OBJECT

public:
    explicit UpdateCourse(NSBundle *bundle);

    void checkForUser(const QUrl &feed) override;
    void checkBySchedule(const QUrl &feed) override;
    void stopScheduledCheck() override;

private:
    enum class Asker { User, Schedule };

    UpdateProblem refusal() const;
    void check(const QUrl &feed, Asker asker);
    void takeResult(const UpdateCheckResult &result);
    void answer(const UpdatePage &page);
    void offer(const AppcastItem &item);
    void loadNotes();
    void takeNotes(const QString &problem);
    void takeProgress(qint64 received, qint64 total);
    void takePreparation(const UpdateProblem &problem);
    void tellThatItOnlyWaits();
    bool isInstalled() const;
    void relaunch(const UpdatePage &whereTheSettingsStay);

    void press(const QString &button);
    void cancel();
    void skip();
    void close();
    void openPage();
    bool openInBrowser(const QUrl &address);
    void install();
    void installAndRestart();

    QString bundlePath() const;
    UpdatePlaces places() const;
    UpdateWindow &window();
    bool isOpen() const { return window_ && window_->isVisible(); }

    NSBundle *bundle_;
    UpdatePages pages_;
    QUrl feed_;
    Asker asker_ = Asker::User;
    AppcastItem item_; ///< that is offered, or is on its way
    QByteArray notesBytes_;
    std::unique_ptr<UpdateWindow> window_;
    std::unique_ptr<UpdateCheck> check_; ///< each for as long as it is under way
    std::unique_ptr<Download> notes_;
    std::unique_ptr<UpdatePreparation> preparation_;
};
