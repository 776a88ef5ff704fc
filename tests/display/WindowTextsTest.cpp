// What the pane's window says: in every language, none jumping.

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

class TheWindowIn : public testing::TestWithParam<std::string>
{
protected:
    LoadedWindow window{QString::fromStdString(GetParam())};
};

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
