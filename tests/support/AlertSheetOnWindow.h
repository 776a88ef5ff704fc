#pragma once

#include "KeyPress.h"
#include "OpenAlert.h"
#include "Wait.h"
#include "platform/appkit/alerts/NSAlert.h"
#include "platform/appkit/controls/Controls.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWindow>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

/// A window to ask on.
class AWindow : public QWidget
{
public:
    AWindow() : field(new QLineEdit(this)), box(new QCheckBox("Box", this))
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(new QLineEdit(this));
        layout->addWidget(field);
        layout->addWidget(box);
        setWindowTitle("Some settings");
        setGeometry(400, 300, 700, 500);
    }

    void showActive()
    {
        show();
        field->setFocus();
        ASSERT_TRUE(waitUntil([this] { return hasKeyboard(this) && field->hasFocus(); }));
    }
    bool isExposed() const { return windowHandle()->isExposed(); }

    QLineEdit *field;
    QCheckBox *box;
};

/// Sheets on it, and their answers.
class AnAlertSheet : public testing::Test
{
protected:
    struct Answer
    {
        int returnCode;
        QString context;
        int suppression;
        bool operator==(const Answer &) const = default;
    };

    ~AnAlertSheet() override { delete window; }

    static std::unique_ptr<NSAlert> alert(const QString &message)
    {
        auto alert = std::make_unique<NSAlert>();
        alert->setMessageText(message);
        alert->setInformativeText("Please choose another key.");
        alert->setShowsSuppressionButton(true);
        return alert;
    }
    void begin(std::unique_ptr<NSAlert> alert, const QString &context = "context")
    {
        begin(std::move(alert), window, context);
    }
    void begin(std::unique_ptr<NSAlert> alert, QWidget *view, const QString &context = "context")
    {
        const auto didEnd = [this](NSAlert *ended, int returnCode, const QString &contextInfo) {
            answers += Answer{returnCode, contextInfo, ended->suppressionButtonState()};
            atEnd();
        };
        NSAlert::beginSheetModalForWindowModalDelegateDidEndSelectorContextInfo(
            std::move(alert), view, delegate.get(), didEnd, context);
    }
    /// A sheet on the shown window, up and with the keyboard.
    void showSheet()
    {
        window->showActive();
        begin(alert("First"));
        ASSERT_TRUE(alertComesUp());
    }
    QString shownMessage() { return textsOfAlert().first(); }

    AWindow *window = new AWindow;
    std::unique_ptr<QObject> delegate = std::make_unique<QObject>();
    QList<Answer> answers;
    std::function<void()> atEnd = [] {};
};

inline constexpr int pressed = NSAlertFirstButtonReturn;
