#include "PaneOnRealStore.h"
#include "Wait.h"

#include "platform/foundation/bundles/NSBundle.h"

#include <QLabel>
#include <QTextBlock>

namespace {

const QString copyright = QStringLiteral("NSHumanReadableCopyright");

bool isBold(const QTextCharFormat &format)
{
    return format.fontWeight() == QFont::Bold;
}

class PaneAbout : public PaneOnRealStore
{
protected:
    /// Credits of our own, in which the marker stands twice.
    void writeCredits() const
    {
        bundle().writeFile(QStringLiteral("Contents/Resources/Credits.rtfd/TXT.rtf"),
            "{\\rtf1\\ansi{\\fonttbl\\f0 Sans;}\\f0 Lumaroo\\par <<copyright>>\\par \\b again: <<copyright>>.\\b0}");
    }
    QTextDocument *document() { return control<QTextEdit>("creditsField")->document(); }
    QString credits() { return document()->toPlainText(); }
    /// The pieces of the credits that look alike, in order.
    QList<QTextFragment> pieces()
    {
        QList<QTextFragment> all;
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece)
                all += piece.fragment();
        }
        return all;
    }
    QStringList textsThat(const std::function<bool(const QTextCharFormat &)> &looksSo)
    {
        QStringList texts;
        for (const QTextFragment &piece : pieces()) {
            if (looksSo(piece.charFormat()))
                texts += piece.text();
        }
        return texts;
    }
};

} // namespace

TEST_F(PaneAbout, theVersionLineNamesBothVersions)
{
    changeInfo({{QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.2")},
        {QStringLiteral("CFBundleVersion"), QStringLiteral("120")}});
    EXPECT_EQ(text("versionField"), QStringLiteral("Version 1.2 (120)"));
}

TEST_F(PaneAbout, aVersionThatIsMissingIsShownAsNone)
{
    changeInfo({{QStringLiteral("CFBundleShortVersionString"), QVariant()},
        {QStringLiteral("CFBundleVersion"), qlonglong(7)}});
    EXPECT_EQ(text("versionField"), QStringLiteral("Version (null) (7)"));
}

TEST_F(PaneAbout, aVersionThatLooksLikeAPlaceholderIsShownAsItIs)
{
    changeInfo({{QStringLiteral("CFBundleShortVersionString"), QStringLiteral("%@")},
        {QStringLiteral("CFBundleVersion"), QStringLiteral("%2")}});
    EXPECT_EQ(text("versionField"), QStringLiteral("Version %@ (%2)"));
}

TEST_F(PaneAbout, theNameIsThatOfTheExecutable)
{
    changeInfo({{QStringLiteral("CFBundleExecutable"), QStringLiteral("Sample")}});
    EXPECT_EQ(text("appNameField"), QStringLiteral("Sample"));
}

TEST_F(PaneAbout, ofACopyrightWithCommasOnlyTheTextBeforeTheFirstIsShown)
{
    writeCredits();
    changeInfo({{copyright, QStringLiteral("Copyright 2011, The holder, Somewhere")}});
    EXPECT_EQ(credits(), QStringLiteral("Lumaroo\nCopyright 2011\nagain: Copyright 2011."));
}

TEST_F(PaneAbout, aCopyrightWithoutACommaIsShownWhole)
{
    writeCredits();
    changeInfo({{copyright, QStringLiteral("Copyright 2011 The holder")}});
    EXPECT_EQ(credits(), QStringLiteral("Lumaroo\nCopyright 2011 The holder\nagain: Copyright 2011 The holder."));
}

TEST_F(PaneAbout, theCopyrightIsTheOneInTheUsersLanguage)
{
    writeCredits();
    QDir().mkpath(bundle().resourcePath() + QStringLiteral("/en.lproj"));
    ASSERT_TRUE(QFile::copy(bundle().resourcePath() + QStringLiteral("/de.lproj/InfoPlist.qm"),
        bundle().resourcePath() + QStringLiteral("/en.lproj/InfoPlist.qm")));
    changeInfo({{copyright, QStringLiteral("Copyright 2011")}});
    const QString localized = QStringLiteral("Copyright © 2026 Die Entwickler von Lumaroo");
    EXPECT_EQ(credits(), QStringLiteral("Lumaroo\n%1\nagain: %1.").arg(localized));
}

TEST_F(PaneAbout, theShippedCreditsShowTheCopyrightInPlaceOfTheMarker)
{
    changeInfo({{copyright, QStringLiteral("Rights of 1999, reserved")}});
    EXPECT_TRUE(credits().contains(QStringLiteral("Rights of 1999"))) << credits().toStdString();
    EXPECT_FALSE(credits().contains(QStringLiteral("<<copyright>>")));
    EXPECT_FALSE(credits().contains(QStringLiteral("reserved")));
}

TEST_F(PaneAbout, theCopyrightLooksAsItsMarkerDid)
{
    writeCredits();
    changeInfo({{copyright, QStringLiteral("Copyright 2011")}});
    EXPECT_EQ(textsThat(isBold), QStringList{"again: Copyright 2011."});
}

TEST_F(PaneAbout, theShippedCreditsComeWithBoldTextAndLinks)
{
    changeInfo({{copyright, QStringLiteral("Rights of 1999, reserved")}});
    EXPECT_EQ(textsThat(isBold), (QStringList{"Rights of 1999", "Built with", "And with thanks"}));
    const auto leadsToQt = [](const QTextCharFormat &format) { return format.anchorHref() == "https://www.qt.io/"; };
    EXPECT_EQ(textsThat(leadsToQt), QStringList{"Qt"});
    EXPECT_EQ(textsThat(&QTextCharFormat::isAnchor), (QStringList{"Qt", "XCB", "xkbcommon", "D-Bus"}));
}

TEST_F(PaneAbout, aPictureInTheCreditsIsShown)
{
    bundle().writeFile(QStringLiteral("Contents/Resources/Credits.rtfd/TXT.rtf"),
        "{\\rtf1\\ansi {{\\NeXTGraphic Lumaroo.png \\width960 \\height960}\\'ac}\\par text}");
    changeInfo({{copyright, QStringLiteral("C")}});
    ASSERT_EQ(textsThat(&QTextCharFormat::isImageFormat).size(), 1);
    const QTextImageFormat picture = pieces().first().charFormat().toImageFormat();
    EXPECT_FALSE(document()->resource(QTextDocument::ImageResource, QUrl(picture.name())).value<QImage>().isNull());
}

TEST_F(PaneAbout, theCreditsReplaceWhateverStoodInTheField)
{
    writeCredits();
    changeInfo({{copyright, QStringLiteral("C")}});
    control<QTextEdit>("creditsField")->setPlainText(QStringLiteral("before"));
    pane().mainViewDidLoad();
    EXPECT_EQ(credits(), QStringLiteral("Lumaroo\nC\nagain: C."));
}

TEST_F(PaneAbout, withoutACreditsDocumentTheFieldStaysEmpty)
{
    const CapturedLog log;
    QDir(bundle().resourcePath() + QStringLiteral("/Credits.rtfd")).removeRecursively();
    EXPECT_EQ(credits(), QString());
    EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join(u'\n').toStdString();
}

TEST_F(PaneAbout, withoutACopyrightTheFieldStaysEmpty)
{
    const CapturedLog log;
    writeCredits();
    changeInfo({{copyright, QVariant()}});
    EXPECT_EQ(credits(), QString());
    EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join(u'\n').toStdString();
}

TEST_F(PaneAbout, withAnUnreadableInfoDictionaryTheFieldsStayEmpty)
{
    CapturedLog log;
    const QString nib =
        NSBundle::infoDictionaryOnDisk(bundle().path()).value(QStringLiteral("NSMainNibFile")).toString();
    bundle().writeFile(QStringLiteral("Contents/Info.plist"), "torn");
    // The dictionary also names the interface file.
    QFile::copy(bundle().resourcePath() + u'/' + nib + QStringLiteral(".ui"),
        bundle().resourcePath() + QStringLiteral("/Main.ui"));
    EXPECT_EQ(text("appNameField"), QString());
    EXPECT_EQ(text("versionField"), QString());
    EXPECT_EQ(credits(), QString());
    EXPECT_EQ(pane().loadedVersion(), 0);
}

TEST_F(PaneAbout, theIconStandsOnTop)
{
    const auto *icon = control<QLabel>("appIconView");
    EXPECT_FALSE(icon->pixmap().isNull());
    showPane();
    selectTabViewItemAtIndex(control("tabbedView"), 5);
    EXPECT_TRUE(waitUntil([&] { return icon->isVisible() && icon->y() < control("appNameField")->y(); }));
    EXPECT_LT(control("versionField")->y(), control("creditsField")->y());
}

TEST_F(PaneAbout, theCreditsAreAsHighAsTheirText)
{
    showPane();
    selectTabViewItemAtIndex(control("tabbedView"), 5);
    const auto *view = control<QTextEdit>("creditsField");
    EXPECT_TRUE(waitUntil([&] { return std::abs(view->viewport()->height() - document()->size().height()) <= 2; }));
}
