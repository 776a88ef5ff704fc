// How controls look where no desktop theme draws them.

#include "Wait.h"
#include "host/Appearance.h"
#include "platform/appkit/controls/StyledLabel.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <gtest/gtest.h>
#include <set>

namespace {

/// The strongest contrast that a line across a control's left edge, `reach` pixels long, has with the window.
double outlineContrast(QWidget &control, int y, int reach)
{
    const QColor window = control.palette().color(QPalette::Window);
    QWidget ground;
    control.setParent(&ground);
    ground.resize(control.sizeHint() + QSize(100, 100));
    control.setGeometry(QRect(QPoint(0, 0), control.sizeHint()));
    const QImage picture = ground.grab(control.geometry()).toImage();
    control.setParent(nullptr);
    double strongest = 0;
    for (int x = 0; x < reach; ++x)
        strongest = std::max(strongest, contrastRatio(picture.pixelColor(x, y), window));
    return strongest;
}

struct ByValue
{
    bool operator()(const QColor &one, const QColor &other) const { return one.rgb() < other.rgb(); }
};

std::set<QColor, ByValue> colorsOf(QWidget &control)
{
    const QImage picture = control.grab().toImage();
    std::set<QColor, ByValue> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixelColor(x, y));
    }
    return colors;
}

} // namespace

TEST(OurLook, outlinesItsControlsVisiblyInBothSchemes)
{
    for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        const Appearance appearance(scheme);
        QCheckBox checkBox("Check");
        QRadioButton radioButton("Radio");
        QPushButton button("Button");
        QToolButton toolButton;
        QLineEdit field;
        QTextEdit text;
        QSlider slider(Qt::Horizontal);
        QComboBox list;
        for (QWidget *control :
            QWidgetList{&checkBox, &radioButton, &button, &toolButton, &field, &text, &slider, &list})
            EXPECT_GE(outlineContrast(*control, control->sizeHint().height() / 2, 4), 3)
                << "dark " << int(scheme) << ' ' << control->metaObject()->className();
    }
}

TEST(OurLook, paintsASliderThatIsDisabledWithoutColour)
{
    const Appearance appearance(ColorScheme::Dark);
    QSlider slider(Qt::Horizontal);
    slider.setValue(slider.maximum());
    slider.setEnabled(false);
    slider.resize(200, slider.sizeHint().height());
    const QImage picture = slider.grab().toImage();
    for (int y = 0; y < picture.height(); ++y)
        EXPECT_LT(picture.pixelColor(50, y).saturation(), 64) << y;
}

TEST(OurLook, fillsWhatIsOnWithTheAccentColour)
{
    for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        const Appearance appearance(scheme);
        const QColor accent = QApplication::palette().color(QPalette::Highlight);
        QCheckBox checkBox;
        QRadioButton radioButton;
        for (QAbstractButton *control : QList<QAbstractButton *>{&checkBox, &radioButton}) {
            control->resize(control->sizeHint());
            EXPECT_EQ(colorsOf(*control).count(accent), 0U);
            control->setChecked(true);
            EXPECT_EQ(colorsOf(*control).count(accent), 1U) << control->metaObject()->className();
        }
    }
}

TEST(OurLook, fillsADefaultButtonWithTheAccentColourUnderReadableLetters)
{
    const Appearance appearance(ColorScheme::Light);
    QDialog dialog;
    QPushButton button("OK", &dialog);
    button.setDefault(true);
    button.resize(button.sizeHint());
    const std::set<QColor, ByValue> colors = colorsOf(button);
    EXPECT_EQ(colors.count(dialog.palette().color(QPalette::Highlight)), 1U);
    EXPECT_EQ(colors.count(dialog.palette().color(QPalette::HighlightedText)), 1U);
}

TEST(OurLook, hasAFieldsOutlineInTheAccentColourWhereTheFocusIs)
{
    const Appearance appearance(ColorScheme::Light);
    QWidget window;
    QLineEdit field(&window);
    field.move(20, 20);
    window.resize(300, 100);
    window.show();
    window.activateWindow();
    field.setFocus();
    ASSERT_TRUE(waitUntil([&] { return field.hasFocus() && window.isActiveWindow(); }));
    EXPECT_EQ(field.grab().toImage().pixelColor(0, field.height() / 2), field.palette().color(QPalette::Link));
}

TEST(OurLook, hasAScrollBarWithoutButtonsWhoseThumbCanBeDragged)
{
    const Appearance appearance(ColorScheme::Light);
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 100);
    bar.setPageStep(100);
    bar.resize(bar.sizeHint().width(), 200);
    const QPoint inThumb(bar.width() / 2, 4);
    QTest::mousePress(&bar, Qt::LeftButton, {}, inThumb);
    QTest::mouseMove(&bar, inThumb + QPoint(0, 50));
    EXPECT_EQ(bar.value(), 50);
    QTest::mouseMove(&bar, inThumb + QPoint(0, 150));
    EXPECT_EQ(bar.value(), 100);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, inThumb + QPoint(0, 150));
    QTest::mouseClick(&bar, Qt::LeftButton, {}, inThumb);
    EXPECT_EQ(bar.value(), 0);
}
