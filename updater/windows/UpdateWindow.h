#pragma once

#include "updater/windows/UpdatePage.h"

#include <QDialog>
#include <QPointer>

class QBoxLayout;
class QLabel;
class QProgressBar;
class ReleaseNotesView;

/// The one window about a bundle's update; its pages follow each other.
class UpdateWindow : public QDialog
{
    Q_OBJECT

public:
    UpdateWindow(const QString &title, const QIcon &icon);

    /// Puts a page in place of the one before. The window is shown by the next two.
    void setPage(const UpdatePage &page);
    /// Because the user has asked: in front of all others, with the focus.
    void comeToFront();
    /// Nobody has asked: the focus stays where it is.
    void appearQuietly();

    /// What the page with progress tells; `total` -1: nobody knows how much there is to do.
    void setProgress(qint64 done, qint64 total, const QString &text);
    /// What the page with notes shows, as safe HTML.
    void setNotes(const QString &html);
    /// In place of the page's text.
    void tell(const QString &text);

    void reject() override;

Q_SIGNALS:
    /// By its name.
    void pressed(const QString &button);
    /// A link in the notes.
    void linkChosen(const QUrl &address);

private:
    QWidget *makeBody(const UpdatePage &page);
    QBoxLayout *makeColumn(const UpdatePage &page);
    void addTexts(QBoxLayout *column, const UpdatePage &page);
    void addProgress(QBoxLayout *column, const QString &name);
    void addNotes(QBoxLayout *column);
    QLayout *makeButtons(const UpdatePage &page);
    void announce();
    void fit();
    void focusDefault();

    QIcon icon_;
    QString escapeButton_, defaultButton_;
    bool hasNotes_ = false;
    QPointer<QWidget> body_;
    QPointer<QLabel> text_;
    QPointer<QProgressBar> progress_;
    QPointer<ReleaseNotesView> notes_;
};
