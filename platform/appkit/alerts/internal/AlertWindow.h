#pragma once

#include <QDialog>
#include <QPointer>
#include <QStringList>
#include <functional>

class OwnKeys;
class QCheckBox;
class QPushButton;
class QVBoxLayout;

/// What an alert shows.
struct AlertContent
{
    struct Button
    {
        QString title;
        QString key;
    };

    QString message;
    QString information;
    QString iconFile;
    QList<Button> buttons;
    int cancelButton = -1; ///< the button that Escape presses, -1 for none
    QString suppressionTitle; ///< of the check box; empty for none
    bool suppressionIsOn = false;
    QString helpTitle;
    std::function<void()> openHelp; ///< empty for no help button
};

/// The window of an alert.
class AlertWindow : public QDialog
{
    Q_OBJECT

public:
    AlertWindow(const AlertContent &content, Qt::WindowModality modality, QWidget *parent);

    /// The index of the button that was pressed, -1 while there is none.
    int pressedButton() const { return pressedButton_; }
    bool suppressionIsOn() const;

    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QVBoxLayout *makeTexts();
    void addText(QVBoxLayout *texts, const QString &text, bool isMessage);
    QLayout *makeButtonRow();
    QPushButton *makeButton(int index);
    QWidget *makeHelpButton();
    QCheckBox *makeSuppressionBox();
    QPushButton *firstFocus() const { return buttons_[qMax(0, content_.cancelButton)]; }
    void press(int index);
    void takeFocusBack();

    AlertContent content_;
    OwnKeys *ownKeys_;
    QList<QPushButton *> buttons_;
    QCheckBox *suppressionBox_ = nullptr;
    int pressedButton_ = -1;
};
