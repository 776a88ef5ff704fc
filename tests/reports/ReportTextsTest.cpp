// The texts of the built bundle's report window: complete in every language, nothing clipped.

#include "ReportWindow.h"
#include "StringTables.h"

#include "platform/foundation/bundles/NSBundle.h"

#include <QLabel>
#include <QLocale>
#include <gmock/gmock.h>

namespace {

const QString table = QStringLiteral("QBCrashReporter");

QByteArray builtFile(const QString &name)
{
    QFile file(qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/Lumaroo.prefPane/Contents/Resources/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

/// The window in a language, with the texts that people get.
class ReportTexts : public ReportWindow, public testing::WithParamInterface<std::string>
{
protected:
    ReportTexts()
    {
        QLocale::setDefault(QLocale(language));
        for (const QString &each : {QStringLiteral("en"), language}) {
            const QString file = each + QStringLiteral(".lproj/QBCrashReporter.qm");
            bundle.writeFile(QStringLiteral("Contents/Resources/") + file, builtFile(file));
        }
    }
    ~ReportTexts() override { QLocale::setDefault(QLocale::c()); }

    QString localized(const QString &key) const
    {
        return NSBundle::bundleWithPath(bundle.path())->localizedStringForKeyValueTable(key, {}, table);
    }
    void expectNothingClipped() const
    {
        for (const QPushButton *button : window()->findChildren<QPushButton *>()) {
            const bool fits = button->isHidden() || button->width() >= button->sizeHint().width();
            EXPECT_TRUE(fits) << button->objectName().toStdString();
        }
        const auto *explanation = part<QLabel>("explanationField");
        EXPECT_GE(explanation->height(), explanation->heightForWidth(explanation->width()));
        EXPECT_LE(window()->minimumSizeHint().width(), 640);
        EXPECT_LE(window()->minimumSizeHint().height(), 480 - 30); // the frame
    }

    const QString language = QString::fromStdString(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Languages, ReportTexts, testing::ValuesIn(languagesOfTheProgram()));

QChar mnemonicOf(const QString &title)
{
    const qsizetype sign = title.indexOf('&');
    return sign < 0 ? QChar() : title[sign + 1].toLower();
}

} // namespace

TEST_P(ReportTexts, thereIsATextForEveryKey)
{
    for (const QString &key : testTexts().keys())
        EXPECT_NE(localized(key), key) << key.toStdString();
}

TEST_P(ReportTexts, noTableNeedsAnother)
{
    const TestBundle one("One.bundle");
    const QString file = language + QStringLiteral(".lproj/QBCrashReporter.qm");
    one.writeFile(QStringLiteral("Contents/Resources/") + file, builtFile(file));
    for (const QString &key : testTexts().keys())
        EXPECT_NE(NSBundle::bundleWithPath(one.path())->localizedStringForKeyValueTable(key, {}, table), key)
            << key.toStdString();
}

TEST_P(ReportTexts, everyTextOfTheInterfaceFileIsTranslated)
{
    const QStringList texts = textsOfInterfaceFile(table);
    ASSERT_FALSE(texts.isEmpty());
    for (const QString &text : texts)
        EXPECT_EQ(localized(text) == text, language == u"en") << text.toStdString();
}

TEST_P(ReportTexts, theAddressIsASecureOneThatNobodyCanOwn)
{
    const QUrl address(localized("CRASH_REPORT_CGI_URL"), QUrl::StrictMode);
    EXPECT_EQ(address.scheme(), "https");
    EXPECT_TRUE(address.host().endsWith(".example")) << address.host().toStdString();
}

TEST_P(ReportTexts, theTextsHaveTheirPlaceholdersAndNoOther)
{
    for (const char *key : {"CRASH_EXPLANATION_TEXT", "FEEDBACK_EXPLANATION_TEXT"})
        EXPECT_EQ(localized(key).remove("%%APPNAME").count('%'), 0) << key;
    for (const char *key : {"CRASH_MESSAGE_TEXT", "FEEDBACK_MESSAGE_TEXT"}) {
        EXPECT_TRUE(localized(key).contains("%%LONGUSERNAME")) << key;
        EXPECT_TRUE(localized(key).contains("%%EMAILADDRESS")) << key;
        EXPECT_EQ(localized(key).remove("%%LONGUSERNAME").remove("%%EMAILADDRESS").count('%'), 0) << key;
    }
}

TEST_P(ReportTexts, nothingIsClippedAndNoTwoMnemonicsAreTheSame)
{
    for (const bool isCrash : {true, false}) {
        ASSERT_TRUE(isCrash ? openCrash() : openFeedback());
        expectNothingClipped();
        QList<QChar> mnemonics;
        for (const char *button : {"sendButton", "remindButton", "discardButton"})
            mnemonics += mnemonicOf(part<QPushButton>(button)->text());
        const auto *tabs = part<QTabWidget>("switchTabView");
        mnemonics += {mnemonicOf(tabs->tabText(0)), mnemonicOf(tabs->tabText(1))};
        EXPECT_FALSE(mnemonics.contains(QChar()));
        EXPECT_EQ(QSet<QChar>(mnemonics.cbegin(), mnemonics.cend()).size(), mnemonics.size());
        click("discardButton");
    }
}

TEST_P(ReportTexts, everyControlHasANameForAnAssistiveTool)
{
    ASSERT_TRUE(openCrash());
    for (const char *name : {"informationField", "crashLogField", "progressIndicator"})
        EXPECT_FALSE(part(name)->accessibleName().isEmpty()) << name;
    EXPECT_FALSE(window()->windowTitle().isEmpty());
}
