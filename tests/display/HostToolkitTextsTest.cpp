// The toolkit's own texts, those of the colour window, in each language that the program speaks.

#include "StringTables.h"
#include "host/ToolkitTexts.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QCoreApplication>
#include <QLabel>
#include <QTranslator>
#include <gtest/gtest.h>

namespace {

QStringList textsOfColorWindow()
{
    const QColorDialog window;
    QStringList texts{window.windowTitle()};
    for (const auto *label : window.findChildren<QLabel *>())
        texts += label->text();
    for (const auto *button : window.findChildren<QAbstractButton *>())
        texts += button->text();
    texts.removeAll({});
    return texts;
}

class TheToolkit : public testing::Test
{
protected:
    ~TheToolkit() override { qDeleteAll(qApp->findChildren<QTranslator *>()); }
};

class TheToolkitsTexts : public TheToolkit, public testing::WithParamInterface<std::string>
{
};

INSTANTIATE_TEST_SUITE_P(Language, TheToolkitsTexts, testing::ValuesIn(translations()));

} // namespace

TEST_P(TheToolkitsTexts, areInTheProgramsLanguage)
{
    const QStringList english = textsOfColorWindow();
    translateToolkit(QString::fromStdString(GetParam()));
    const QStringList texts = textsOfColorWindow();
    ASSERT_EQ(texts.size(), english.size());
    EXPECT_NE(texts.first(), english.first()) << "the title";
    int untranslated = 0;
    for (qsizetype index = 0; index < texts.size(); ++index)
        untranslated += texts[index] == english[index] ? 1 : 0;
    EXPECT_LE(untranslated, texts.size() / 3) << "few words are the same in both languages, as “&HTML:” is";
}

TEST_F(TheToolkit, isGermanInGerman)
{
    translateToolkit(QStringLiteral("de"));
    EXPECT_EQ(textsOfColorWindow().first().toStdString(), "Farbauswahl");
}

TEST_F(TheToolkit, staysEnglishInEnglishAndWhereTheSystemHasNone)
{
    for (const char *language : {"en", "xx"}) {
        translateToolkit(QString::fromLatin1(language));
        EXPECT_EQ(textsOfColorWindow().first().toStdString(), "Select Color") << language;
    }
}
