#pragma once

#include "platform/appkit/help/internal/HelpViewer.h"

#include <QWidget>
#include <memory>

class HelpCollection;
class HelpHeader;
class HelpPage;
class HelpSidebar;
class QLabel;

/// The help viewer's window: buttons and a search field, the contents at the side, the page.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    HelpWindow();
    ~HelpWindow() override;

    /// Comes to the front with what is asked for.
    void open(const HelpRequest &request);

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectSidebar();
    void connectPage();
    void addShortcuts();
    void openBook(const HelpBook &book);
    void tellProblem(const HelpBook &book, const QString &problem);
    void setPartsEnabled(bool enabled);
    void showTitle();
    void bringToFront(QWidget *alert);
    void openPlace(const QUrl &place);
    void openWebPage(const QUrl &address);
    void remember();

    void goToStart();
    void focusSearch();
    void changeSide();
    void leaveSearchOrClose();

    std::unique_ptr<HelpCollection> book_;
    std::function<bool(const QUrl &)> openURL_;
    HelpHeader *header_;
    HelpSidebar *sidebar_;
    HelpPage *page_;
    QLabel *notice_;
    QSize normalSize_;
    QString bookName_;
};
