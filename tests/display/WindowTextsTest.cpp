// What the pane's window says: in every language, none clipped, none jumping.

#include "LoadedWindow.h"
#include "StringTables.h"
#include "Wait.h"
#include "platform/appkit/controls/StyledLabel.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStyle>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {

constexpr int pages = 6;

/// The size a widget needs for what it shows at the width it has.
QSize neededSize(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label && label->wordWrap())
        return {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
    return widget->sizeHint();
}

bool showsText(const QWidget *widget)
{
    return widget->isVisible()
        && (qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget)
            || qobject_cast<const QComboBox *>(widget));
}

void expectNothingClipped(const LoadedWindow &window)
{
    for (int index = 0; index < pages; ++index) {
        window.showPage(index);
        const auto *page = qobject_cast<const QScrollArea *>(window.page(index));
        const QWidget *column = page->widget();
        EXPECT_LE(column->width(), page->viewport()->width()) << "it scrolls up and down only";
        for (const QWidget *widget : column->findChildren<QWidget *>()) {
            if (!showsText(widget))
                continue;
            const QSize needed = neededSize(widget);
            EXPECT_GE(widget->width(), needed.width()) << widget->objectName().toStdString();
            EXPECT_GE(widget->height(), needed.height()) << widget->objectName().toStdString();
            const QRect place(widget->mapTo(column, QPoint()), widget->size());
            EXPECT_TRUE(column->rect().contains(place)) << widget->objectName().toStdString();
        }
    }
}

class TheWindowIn : public testing::TestWithParam<std::string>
{
protected:
    LoadedWindow window{QString::fromStdString(GetParam())};
};

TEST_P(TheWindowIn, clipsNoText)
{
    window.show();
    expectNothingClipped(window);
}

TEST_P(TheWindowIn, clipsNoTextWhenMirrored)
{
    window.root()->setLayoutDirection(Qt::RightToLeft);
    window.show();
    expectNothingClipped(window);
}

TEST_P(TheWindowIn, keepsItsSizeBetweenPages)
{
    window.show();
    const QSize size = window.root()->size();
    EXPECT_EQ(size, window.root()->sizeHint());
    for (int index = 0; index < pages; ++index) {
        window.showPage(index);
        EXPECT_EQ(window.root()->size(), size) << index;
        EXPECT_EQ(window.root()->sizeHint(), size) << index;
    }
}

TEST_P(TheWindowIn, fitsASmallScreen)
{
    EXPECT_LE(window.root()->sizeHint().width(), 800);
    EXPECT_LE(window.root()->sizeHint().height(), 600);
}

TEST_P(TheWindowIn, fitsTheLongestKeyNameIntoAKey)
{
    window.show();
    window.showPage(1);
    for (const QLineEdit *field : window.page(1)->findChildren<QLineEdit *>()) {
        const QStyle *style = field->style();
        const int edge = 2 * (style->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, field) + 3);
        EXPECT_GE(field->width() - edge, field->fontMetrics().horizontalAdvance(QStringLiteral("BACKSPACE")));
    }
}

INSTANTIATE_TEST_SUITE_P(Language, TheWindowIn, testing::ValuesIn(languagesOfTheProgram()));

TEST(TheWindowsTexts, areGermanForAGermanUser)
{
    const LoadedWindow window(QStringLiteral("de"));
    const QMap<QString, QString> german =
        stringTable(QStringLiteral("pane"), QStringLiteral("de"), QStringLiteral("LumarooPref")).texts;
    EXPECT_EQ(
        window.find<QLabel>(QStringLiteral("nextHeading"))->text(), german.value(QStringLiteral("What to do next")));
    EXPECT_EQ(
        window.find<QComboBox>(QStringLiteral("VerticalPopup"))->itemText(1), german.value(QStringLiteral("Top edge")));
    EXPECT_EQ(window.find(QStringLiteral("overlayColorWell"))->toolTip(),
        german.value(QStringLiteral("Choose the color of the overlay")));
    EXPECT_EQ(window.find<QTabWidget>(QStringLiteral("tabbedView"))->tabText(1), german.value(QStringLiteral("&Keys")));
}

} // namespace
