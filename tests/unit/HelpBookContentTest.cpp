// The product's own help book, in each language: every place that the pane asks for is there, and no link leads
// nowhere.

#include <QHelpEngineCore>
#include <QHelpLink>
#include <QImage>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QXmlStreamReader>
#include <gmock/gmock.h>

namespace {

/// What a page names.
struct Page
{
    QString title;
    QStringList links;
    QStringList anchors;
    QStringList pictures;
};

Page readPage(const QByteArray &html)
{
    QTextDocument document;
    document.setHtml(QString::fromUtf8(html));
    Page page{document.metaInformation(QTextDocument::DocumentTitle), {}, {}, {}};
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            page.anchors += format.anchorNames();
            if (!format.anchorHref().isEmpty())
                page.links += format.anchorHref();
            if (format.isImageFormat())
                page.pictures += format.toImageFormat().name();
        }
    }
    return page;
}

/// Of each such element in the list of the book's parts, in its order.
QStringList attributesOf(const QString &language, const QString &element, const QString &attribute)
{
    QFile project(qEnvironmentVariable("LUMAROO_SOURCE") + "/resources/help/" + language + ".lproj/Help.qhp");
    EXPECT_TRUE(project.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&project);
    QStringList values;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == element)
            values += reader.attributes().value(attribute).toString();
    }
    EXPECT_FALSE(values.isEmpty());
    return values;
}

class TheHelpBook : public testing::TestWithParam<const char *>
{
protected:
    void SetUp() override
    {
        engine.setReadOnly(false);
        ASSERT_TRUE(engine.setupData()) << qPrintable(engine.error());
        ASSERT_TRUE(engine.registerDocumentation(file)) << qPrintable(engine.error());
        files = engine.files(name, QString());
        ASSERT_FALSE(files.isEmpty());
    }

    QList<QUrl> pages() const { return engine.files(name, QString(), QStringLiteral("html")); }
    /// What leads nowhere of addresses, as seen from a page; web pages are nobody's business here.
    QStringList deadOf(const QStringList &addresses, const QUrl &from) const
    {
        QStringList dead;
        for (const QString &address : addresses) {
            const QUrl whole = from.resolved(QUrl(address));
            if (whole.scheme() != QStringLiteral("https") && !isThere(whole))
                dead += address;
        }
        return dead;
    }
    bool isThere(const QUrl &address) const
    {
        const QUrl page = address.adjusted(QUrl::RemoveFragment);
        return files.contains(page)
            && (!address.hasFragment() || readPage(engine.fileData(page)).anchors.contains(address.fragment()));
    }
    QStringList contents() const { return attributesOf(GetParam(), "section", "ref"); }

    const QString file = qEnvironmentVariable("LUMAROO_BUILD") + "/Lumaroo.prefPane/Contents/Resources/Lumaroo.help/"
        + GetParam() + ".lproj/Help.qch";
    const QString name = QHelpEngineCore::namespaceName(file);
    QTemporaryDir folder;
    mutable QHelpEngineCore engine{folder.filePath("Help.qhc")};
    QList<QUrl> files;
};

} // namespace

TEST_P(TheHelpBook, isNamedAfterItsLanguage)
{
    EXPECT_EQ(name, QString("com.quorvane.lumaroo.help.") + GetParam());
    EXPECT_TRUE(files.contains(QUrl("qthelp://" + name + "/lumaroo/index.html"))) << "the page that it opens at";
}

TEST_P(TheHelpBook, hasEveryPlaceThatThePaneAsksFor)
{
    for (const char *anchor :
        {"activate", "movement", "action", "updates", "ordering", "alerts", "other", "access", "closeDialog"}) {
        const QList<QHelpLink> places = engine.documentsForIdentifier(anchor);
        ASSERT_EQ(places.size(), 1) << anchor;
        EXPECT_EQ(places.constFirst().url.fragment(), anchor);
        EXPECT_TRUE(isThere(places.constFirst().url)) << anchor;
    }
}

TEST_P(TheHelpBook, hasNoLinkThatLeadsNowhere)
{
    for (const QUrl &page : pages())
        EXPECT_EQ(deadOf(readPage(engine.fileData(page)).links, page), QStringList()) << qPrintable(page.fileName());
}

TEST_P(TheHelpBook, hasEveryPictureThatItsPagesShow)
{
    int count = 0;
    for (const QUrl &page : pages()) {
        for (const QString &picture : readPage(engine.fileData(page)).pictures) {
            const QImage image = QImage::fromData(engine.fileData(page.resolved(QUrl(picture))));
            EXPECT_FALSE(image.isNull()) << qPrintable(page.fileName() + ": " + picture);
            ++count;
        }
    }
    EXPECT_GT(count, 0);
}

TEST_P(TheHelpBook, hasEveryPageInItsContentsAndATitleOnEach)
{
    const QUrl start("qthelp://" + name + "/lumaroo/");
    const QStringList places = contents();
    EXPECT_EQ(deadOf(places, start), QStringList());
    for (const QUrl &page : pages()) {
        EXPECT_FALSE(places.filter(page.fileName()).isEmpty()) << qPrintable(page.fileName());
        EXPECT_FALSE(readPage(engine.fileData(page)).title.isEmpty()) << qPrintable(page.fileName());
    }
}

TEST_P(TheHelpBook, namesAllThatRemovingTheProgramLeavesBehind)
{
    const QString page =
        QString::fromUtf8(engine.fileData(QUrl("qthelp://" + name + "/lumaroo/other.html"))).simplified();
    for (const char *left :
        {"com.quorvane.Lumaroo.plist", "com.quorvane.Lumaroo.Updater.plist", "com.apple.systempreferences.plist",
            "com.apple.help.plist", "com.quorvane.LumarooAgent.desktop", ".cache}/lumaroo", ".Lumaroo.prefPane.</code>",
            "~/Library/Logs</code>", "lumaroo-settings</code>", "LumarooAgent</code>", "LumarooTutorial</code>"})
        EXPECT_TRUE(page.contains(left)) << left;
}

TEST_P(TheHelpBook, leadsSomewhereFromEachWordOfItsIndex)
{
    EXPECT_EQ(
        deadOf(attributesOf(GetParam(), "keyword", "ref"), QUrl("qthelp://" + name + "/lumaroo/")), QStringList());
}

TEST(TheHelpBooks, haveTheSameContentsAndIndexInEachLanguage)
{
    EXPECT_EQ(attributesOf("en", "section", "ref"), attributesOf("de", "section", "ref"));
    EXPECT_EQ(attributesOf("en", "keyword", "id"), attributesOf("de", "keyword", "id"));
    EXPECT_EQ(attributesOf("en", "keyword", "ref"), attributesOf("de", "keyword", "ref"));
}

INSTANTIATE_TEST_SUITE_P(InEachLanguage, TheHelpBook, testing::Values("en", "de"));
