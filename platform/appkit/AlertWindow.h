#pragma once

#include <QDialog>
#include <QPointer>
#include <QStringList>
#include <functional>

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
    QString helpTitle;
    std::function<void()> openHelp; ///< empty for no help button
};

/// The window of an alert.
class AlertWindow : public QDialog
{
    Q_OBJECT

public:
    AlertWindow(const AlertContent &content, QWidget *parent);

    /// The index of the button that was pressed, -1 while there is none.
    int pressedButton() const { return pressedButton_; }

    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    QVBoxLayout *makeTexts();
    void addText(QVBoxLayout *texts, const QString &text, bool isMessage);
    QLayout *makeButtonRow();
    QPushButton *makeButton(int index);
    QWidget *makeHelpButton();
    void press(int index);

    AlertContent content_;
    QList<QPushButton *> buttons_;
    int pressedButton_ = -1;
};
