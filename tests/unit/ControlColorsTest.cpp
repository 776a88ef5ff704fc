// The colours that code gives controls, and what is drawn for them.

#include "Wait.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/StyledLabel.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <gtest/gtest.h>

TEST(ControlColors, aNamedColourBringsAnotherThatItReadsOn)
{
    QLineEdit field;
    setBackgroundColor(&field, Qt::white);
    EXPECT_EQ(field.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(Qt::black));
    setBackgroundColor(&field, QColor(20, 40, 80));
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(Qt::white));

    const QColor lightWindow(240, 240, 240);
    QWidget window;
    QLabel label(&window);
    window.setPalette(lightWindow);
    setTextColor(&label, Qt::red);
    EXPECT_EQ(textColor(&label), QColor(Qt::red));
    const QColor shown = label.palette().color(QPalette::WindowText);
    EXPECT_EQ(shown.hsvHue(), 0);
    EXPECT_GE(contrastRatio(shown, lightWindow), 4.5);
    EXPECT_EQ(label.palette().color(QPalette::Window), lightWindow) << "it reads there";
    EXPECT_FALSE(label.autoFillBackground()) << "whatever it stands on shows";
}

TEST(ControlColors, aTextColourThatDoesNotReadOnItsWindowComesNearerToTheTextsOwn)
{
    QWidget window;
    QLabel label(&window);
    for (const auto &[ground, text] :
        {std::pair(QColor(36, 37, 40), QColor(240, 240, 240)), std::pair(QColor(240, 240, 240), QColor(20, 20, 20))}) {
        QPalette palette = window.palette();
        palette.setColor(QPalette::Window, ground);
        palette.setColor(QPalette::WindowText, text);
        window.setPalette(palette);
        for (const QColor &color : {QColor(Qt::yellow), QColor(Qt::blue), QColor(Qt::darkRed)}) {
            setTextColor(&label, color);
            const QColor shown = label.palette().color(QPalette::WindowText);
            EXPECT_EQ(label.palette().color(QPalette::Window), ground) << "no paper";
            EXPECT_GE(contrastRatio(shown, ground), 3) << color.name().toStdString();
            EXPECT_EQ(shown == color, contrastRatio(color, ground) >= 3) << color.name().toStdString();
            EXPECT_EQ(textColor(&label), color);
        }
    }
}

TEST(ControlColors, blackWhiteAndRedAreNamesThatAreDrawnAsTheThemeHasThem)
{
    QWidget window;
    QPalette dark = window.palette();
    dark.setColor(QPalette::Window, QColor(36, 37, 40));
    dark.setColor(QPalette::WindowText, QColor(232, 233, 235));
    dark.setColor(QPalette::Base, QColor(43, 45, 49));
    dark.setColor(QPalette::Text, QColor(231, 232, 234));
    window.setPalette(dark);
    QLabel label(&window);
    QLineEdit field(&window);
    setTextColor(&label, Qt::black);
    EXPECT_EQ(label.palette().color(QPalette::WindowText), dark.color(QPalette::WindowText));
    EXPECT_EQ(textColor(&label), QColor(Qt::black));
    setTextColor(&label, Qt::red);
    EXPECT_GE(contrastRatio(label.palette().color(QPalette::WindowText), dark.color(QPalette::Window)), 4.5);
    EXPECT_EQ(textColor(&label), QColor(Qt::red));
    setBackgroundColor(&field, Qt::white);
    EXPECT_EQ(field.palette().color(QPalette::Base), dark.color(QPalette::Base)) << "no white box";
    EXPECT_EQ(field.palette().color(QPalette::Text), dark.color(QPalette::Text));
    EXPECT_EQ(backgroundColor(&field), QColor(Qt::white));
    EXPECT_EQ(textColor(&field), QColor(Qt::black));
}

TEST(ControlColors, namedColoursFollowAChangeOfThemeAndStayWhatTheyWereSetTo)
{
    const QPalette before = QApplication::palette();
    QLineEdit field;
    setBackgroundColor(&field, Qt::white);
    QPalette dark = before;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Window, Qt::darkGray);
    QApplication::setPalette(dark);
    EXPECT_TRUE(waitUntil([&] { return field.palette().color(QPalette::Window) == QColor(Qt::darkGray); }));
    EXPECT_EQ(field.palette().color(QPalette::Base), QColor(Qt::black));
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(Qt::white));
    EXPECT_EQ(backgroundColor(&field), QColor(Qt::white));
    EXPECT_EQ(textColor(&field), QColor(Qt::black));
    QApplication::setPalette(before);
}
