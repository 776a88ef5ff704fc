// What a search finds by its name, and what has the keyboard then.

#include "host/ControlSearch.h"
#include "Wait.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

TEST(ControlSearch, goesByNeitherCaseNorAccentsNorTheKindOfApostrophe)
{
    const SearchedControl control{"Délai avant la première répétition", "Comportement", "l’écran Północ", nullptr};
    for (const char *search : {"repetition", "RÉPÉTITION", "l'ecran", "polnoc", "delai　comportement"})
        EXPECT_TRUE(controlMatches(control, search)) << search;
    EXPECT_FALSE(controlMatches(control, "retard"));
    EXPECT_FALSE(controlMatches(control, " "));
}

TEST(ControlSearch, givesTheKeyboardToWhatTakesItInOrAfterWhatIsShown)
{
    QWidget window;
    QVBoxLayout rows(&window);
    QPushButton before("Before");
    QLabel heading("Heading");
    QWidget card;
    QVBoxLayout rowsOfCard(&card);
    QPushButton inside("Inside");
    rowsOfCard.addWidget(&inside);
    for (QWidget *row : {static_cast<QWidget *>(&before), static_cast<QWidget *>(&heading), &card})
        rows.addWidget(row);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return window.isActiveWindow(); }));
    for (QWidget *shown : {static_cast<QWidget *>(&heading), &card, static_cast<QWidget *>(&inside)}) {
        before.setFocus();
        showControl(shown);
        EXPECT_EQ(QApplication::focusWidget(), &inside);
    }
}
