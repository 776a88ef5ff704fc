#pragma once

#include <QTextBrowser>

/// Shows safe HTML (updater/core/ReleaseNotes.h) and nothing else: it loads no picture, no page, no style. Where its
/// links lead is for others to open (anchorClicked).
class ReleaseNotesView : public QTextBrowser
{
    Q_OBJECT

public:
    explicit ReleaseNotesView(QWidget *parent);

    void setNotes(const QString &safeHtml);
    QVariant loadResource(int type, const QUrl &name) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QString notes_;
};
