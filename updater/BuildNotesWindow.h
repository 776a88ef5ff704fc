#pragma once

#include <QDialog>
#include <QTimer>

class NSBundle;

/// The notes of the build that runs: what is new in it, for those who had an older one.
///
/// In an interface file it is a dialog beside the view's layout. Its property `notesFile` is a page for the WebView in
/// it, by its path below the bundle's resources; `hideSetting` is the setting ("domain/key", where the number of the
/// build follows the key) that is true where the user has hidden the notes of a build.
///
/// It opens by itself, once, when its view is first shown after an update: when the build is above the one whose notes
/// were due last (UpdateRecord.h). A first installation is no update. It waits until the view has the focus and no
/// sheet or other modal window is up, and closes with the view.
class BuildNotesWindow : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(QString notesFile MEMBER notesFile_)
    Q_PROPERTY(QString hideSetting MEMBER hideSetting_)

public:
    BuildNotesWindow(QWidget *parent, const NSBundle *bundle);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    int build() const;
    bool isHiddenByUser() const;
    void takeShowing();
    void openSoon();
    void openIfDue();

    const NSBundle *bundle_;
    QString notesFile_;
    QString hideSetting_;
    bool isDue_ = false;
    QTimer soon_;
};
