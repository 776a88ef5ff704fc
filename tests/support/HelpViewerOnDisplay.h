#pragma once

#include "BrowserStandIn.h"
#include "HelpBundle.h"
#include "KeyPress.h"
#include "LinkInPage.h"
#include "OpenAlert.h"
#include "OpenHelp.h"
#include "Wait.h"

#include "platform/appkit/help/NSHelpManager.h"

#include <gtest/gtest.h>

/// The help viewer with a small book, as its user drives it by keys and clicks.
class TheHelpViewer : public testing::Test
{
protected:
    void SetUp() override
    {
        setRegisteredBooks({});
        ASSERT_EQ(bundle.registerBook(), 0);
    }
    void TearDown() override { closeHelp(); }

    static void ask(const QString &anchor)
    {
        NSHelpManager::sharedHelpManager()->openHelpAnchorInBook(anchor, "Test Help");
    }
    static void openAt(const QString &anchor, const QString &place)
    {
        ask(anchor);
        ASSERT_TRUE(helpShows(place)) << qPrintable(helpPlace());
    }
    static bool isInSight(const QString &text)
    {
        QTextBrowser *page = helpPage();
        const QTextCursor place = page->document()->find(text);
        return !place.isNull() && page->viewport()->rect().contains(page->cursorRect(place));
    }
    /// The longest row of pixels in the colour of the book's pictures.
    static int widthOfGreen()
    {
        const QImage picture = helpPage()->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
        qsizetype widest = 0;
        for (int row = 0; row < picture.height(); ++row) {
            const auto *pixels = reinterpret_cast<const QRgb *>(picture.constScanLine(row));
            widest = qMax<qsizetype>(widest, std::count(pixels, pixels + picture.width(), qRgb(0x2a, 0x9d, 0x8f)));
        }
        return int(widest);
    }
    /// How wide the lines of its page may get.
    static int columnWidth()
    {
        const QTextDocument *page = helpPage()->document();
        return int(helpPage()->viewport()->width() - 2 * page->rootFrame()->frameFormat().leftMargin()
            - 2 * page->documentMargin());
    }
    static void clickOnLink(const QString &text)
    {
        const QPoint place = placeOfText(helpPage(), text);
        ASSERT_FALSE(place.isNull());
        clickAt(helpPage()->viewport()->mapToGlobal(place));
    }

    HelpBundle bundle;
    BrowserStandIn browser;
};
