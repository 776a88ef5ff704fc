// What the help viewer says has its German words.

#include "platform/foundation/bundles/NSBundle.h"

#include <QDirIterator>
#include <QLocale>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

QStringList textsOfViewer()
{
    const QString folder = qEnvironmentVariable("LUMAROO_SOURCE") + "/platform/appkit/help/internal/viewer";
    static const QRegularExpression text("helpText\\(\\s*QStringLiteral\\(\"([^\"]+)\"\\)");
    QStringList texts;
    QDirIterator sources(folder, {"*.cpp"});
    while (sources.hasNext()) {
        QFile source(sources.next());
        EXPECT_TRUE(source.open(QIODevice::ReadOnly));
        auto matches = text.globalMatch(QString::fromUtf8(source.readAll()));
        while (matches.hasNext())
            texts += matches.next().captured(1);
    }
    return texts;
}

} // namespace

TEST(TheHelpViewersTexts, areThereInGerman)
{
    QLocale::setDefault(QLocale("de_DE"));
    const NSBundle *host =
        NSBundle::bundleWithPath(qEnvironmentVariable("LUMAROO_BUILD") + "/tests/data/host-string-tables");
    ASSERT_TRUE(host);
    const QStringList texts = textsOfViewer();
    EXPECT_GE(texts.size(), 13);
    for (const QString &text : texts) {
        const QString german = host->localizedStringForKeyValueTable(text, "none", "HelpViewer");
        EXPECT_NE(german, "none") << qPrintable(text);
        EXPECT_EQ(german.count("%1"), text.count("%1"));
    }
    QLocale::setDefault(QLocale::c());
}
