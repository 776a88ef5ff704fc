#pragma once

#include "tutorial/GuidePage.h"

#include <QWidget>

class KeyCaps;
class ProgressDots;
class QBoxLayout;
class QLabel;
class QPushButton;
class StyledLabel;

/// The window that tells what to do. It stands above the others and is none of those that can be selected.
class GuideWindow : public QWidget
{
    Q_OBJECT

public:
    GuideWindow();

    void setPage(const GuidePage &page);
    /// What is said of the page, for assistive programs.
    QString spokenText() const;
    /// Where the keyboard starts: the button that Return presses, or the first one there is.
    void focusButton();

Q_SIGNALS:
    void wished(Wish wish);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QPushButton *makeButton(const char *name);
    QWidget *makeHeader();
    QWidget *makeRemark();
    QBoxLayout *makeButtons();
    void setButton(QPushButton *button, const GuidePage::Button &content);
    void setRemark(const GuidePage &page);
    void giveRoom();

    int tallest_ = 0; ///< page so far
    StyledLabel *progress_ = nullptr;
    ProgressDots *dots_ = nullptr;
    StyledLabel *title_ = nullptr;
    KeyCaps *caps_ = nullptr;
    QLabel *text_ = nullptr;
    QLabel *sign_ = nullptr;
    QLabel *remark_ = nullptr;
    StyledLabel *keys_ = nullptr; ///< that do what the buttons do
    QPushButton *back_ = nullptr;
    QPushButton *skip_ = nullptr;
    QPushButton *second_ = nullptr;
    QPushButton *first_ = nullptr;
};
