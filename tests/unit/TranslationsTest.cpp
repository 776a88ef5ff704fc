// The string tables of every language: each has what the program says, whole, with the places that are filled in and
// the keys that lead to controls.

#include "SourceTree.h"
#include "StringTables.h"

#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>

namespace {

/// The language whose tables are held against the code; the others are held against it.
const QString reference = QStringLiteral("de");

/// Where the texts of a table stand in the code.
struct SpokenIn
{
    const char *part;
    const char *table;
    const char *sources; ///< by their paths
    QStringList notShown = {}; ///< sentences that nobody's window shows
};

const SpokenIn sources[]{
    {"agent", "Actions", "^agent/actions/[^/]*\\.cpp$"},
    {"agent", "Notices", "^agent/notices/[^/]*\\.cpp$"},
    {"agent", "Tray", "^agent/tray/TrayMenu\\.cpp$"},
    {"host", "HelpViewer", "^platform/appkit/help/internal/viewer/.*\\.cpp$", {"PRAGMA quick_check(1)"}},
    {"host", "Localizable",
        "^(KTX "
        "classes/KeyCodeTranslator|platform/appkit/(alerts/.*|web/internal/URLErrors|colors/NSColorWell))\\.cpp$"},
    {"host", "Settings", "^host/[^/]*\\.cpp$",
        {"The pane to open, by its path or identifier.", "Use this colour scheme: light or dark.", "noticeHeading",
            "noticeText"}},
    {"pane", "Localizable", "^pane/[^/]*\\.cpp$",
        {"Can't Launch Lumaroo.agent", "Lumaroo prefPane: ", "No path found for Lumaroo.agent"}},
    {"pane", "Updates", "^updater/(windows/)?[^/]*\\.cpp$",
        {"SUPublicEDKey of the bundle is empty", "SUPublicEDKey of the bundle is no key"}},
    {"tutorial", "Localizable", "^KTX classes/KeyCodeTranslator\\.cpp$"},
    {"tutorial", "Tutorial", "^tutorial/[^/]*\\.cpp$", {"Use this colour scheme: light or dark."}},
};

QStringList matchesIn(const QString &text, const QString &expression)
{
    const QRegularExpression regular(expression);
    QStringList found;
    for (auto match = regular.globalMatch(text); match.hasNext();)
        found += match.next().captured(1);
    return found;
}

/// What the first texts have and the others do not, to be read.
std::string onlyIn(const QStringList &texts, const QStringList &others)
{
    const QSet<QString> known(others.cbegin(), others.cend());
    QStringList found;
    for (const QString &text : texts) {
        if (!known.contains(text))
            found += text;
    }
    return found.join('\n').toStdString();
}

/// The code of some sources, with texts in one piece that go over lines.
QString codeOf(const char *paths)
{
    static const SourceTree tree(qEnvironmentVariable("LUMAROO_SOURCE"));
    static const QRegularExpression seam("\"\\s*\"");
    QString code;
    for (const QString &file : tree.files().filter(QRegularExpression(paths)))
        code += tree.lines(file).filter(QRegularExpression("^(?!#include|\\s*//)")).join('\n').remove(seam) + '\n';
    return code;
}

QStringList quotedTexts(const QString &code)
{
    return matchesIn(code, "\"((?:[^\"\\\\]|\\\\.)*)\"");
}

/// What is certainly said to a user: sentences, and what a function that translates is given.
QStringList spokenTexts(const QString &code)
{
    static const QRegularExpression sentence("^[&“⚠]?\\p{Lu}.* ");
    const QStringList texts = quotedTexts(code).filter(sentence)
        + matchesIn(code,
            "(?:localized|[a-z]Text|[^a-zA-Z]text)\\(\\s*(?:bundle_?,\\s*)?(?:QStringLiteral\\()?"
            "\"((?:[^\"\\\\]|\\\\.)+)\"");
    return texts.filter(QRegularExpression("\\p{Ll}"));
}

/// The places of a text that are filled in, sorted.
QStringList placeholdersOf(const QString &text)
{
    QStringList found = matchesIn(text, "(%@|%%[A-Z]+|%[0-9n])");
    found.sort();
    return found;
}

/// How many mnemonics a text has.
qsizetype mnemonicsOf(const QString &text)
{
    return matchesIn(text, "(?<!&)(&)(?=[^&\\s])").size();
}

/// A table of a language with what it is held against.
struct Compared
{
    std::string name;
    QString language;
    StringTable table;
    StringTable other;
    StringTable english; ///< where the texts are asked for by keys; else empty

    /// What a user reads in English where the other one reads a translation.
    QString englishOf(const QString &text) const { return english.texts.value(text, text); }
};

class Translation : public testing::TestWithParam<std::string>
{
protected:
    QList<Compared> tables() const
    {
        QList<Compared> all;
        for (const QString &part : partsWithStringTables()) {
            for (const QString &name : stringTableNames(part, language)) {
                const bool hasEnglish = stringTableNames(part, "en").contains(name);
                all += {(part + '/' + name).toStdString(), language, stringTable(part, language, name),
                    stringTable(part, reference, name), hasEnglish ? stringTable(part, "en", name) : StringTable()};
            }
        }
        return all;
    }

    const QString language = QString::fromStdString(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Language, Translation, testing::ValuesIn(translations()));

/// Code may ask for the texts of another table of its part, too.
QStringList textsOfAllTables(const QString &part)
{
    QStringList texts;
    for (const QString &table : stringTableNames(part, reference))
        texts += stringTable(part, reference, table).texts.keys();
    return texts;
}

} // namespace

TEST(TheTablesOfTheReference, holdWhatTheCodeSaysAndNothingElse)
{
    for (const SpokenIn &spoken : sources) {
        const QString code = codeOf(spoken.sources);
        const QStringList texts = stringTable(spoken.part, reference, spoken.table).texts.keys();
        EXPECT_EQ(onlyIn(texts, quotedTexts(code)), "") << spoken.table;
        EXPECT_EQ(onlyIn(spokenTexts(code), textsOfAllTables(spoken.part) + spoken.notShown), "") << spoken.table;
    }
}

TEST(TheTablesOfTheReference, holdTheTextsOfTheWindowsAndNothingElse)
{
    const QString boundaryOfARequest = "USED_TO_BE_KHTMLBOUNDARY";
    QStringList texts = stringTable("pane", reference, "LumarooPref").texts.keys();
    EXPECT_EQ(onlyIn(texts, textsOfInterfaceFile("LumarooPref")), "");
    EXPECT_EQ(onlyIn(textsOfInterfaceFile("LumarooPref"), texts), "");
    texts = stringTable("pane", reference, "QBCrashReporter").texts.keys();
    const QStringList keys = matchesIn(codeOf("^crashreporter/.*\\.cpp$"), "\"([A-Z]+(?:_[A-Z]+)+)\"");
    const QStringList shown = textsOfInterfaceFile("QBCrashReporter") + keys;
    EXPECT_EQ(onlyIn(texts, shown), "");
    EXPECT_EQ(onlyIn(shown, texts + QStringList(boundaryOfARequest)), "");
}

TEST_P(Translation, isInEveryPartOfTheProgram)
{
    ASSERT_GE(partsWithStringTables().size(), 4);
    for (const QString &part : partsWithStringTables())
        EXPECT_EQ(stringTableNames(part, language), stringTableNames(part, reference)) << qPrintable(part);
}

TEST_P(Translation, hasEveryTextAndNoneTooMany)
{
    for (const Compared &one : tables()) {
        EXPECT_EQ(one.table.language, language) << one.name;
        EXPECT_EQ(one.table.name, one.other.name) << one.name;
        EXPECT_EQ(onlyIn(one.table.texts.keys(), one.other.texts.keys()), "") << one.name;
        EXPECT_EQ(onlyIn(one.other.texts.keys(), one.table.texts.keys()), "") << one.name;
        EXPECT_EQ(onlyIn(one.table.unfinished, {}), "") << one.name;
        EXPECT_FALSE(one.table.texts.values().contains(QString())) << one.name;
    }
}

// Texts say "Pages found: 3": nobody asks for a text by a number.
TEST_P(Translation, hasNoFormsOfNumbersThatNobodyAsksFor)
{
    for (const Compared &one : tables())
        EXPECT_FALSE(one.table.hasFormsOfNumbers) << one.name;
}

TEST_P(Translation, fillsInWhatTheEnglishTextFillsIn)
{
    for (const Compared &one : tables()) {
        for (auto text = one.table.texts.cbegin(); text != one.table.texts.cend(); ++text)
            EXPECT_EQ(placeholdersOf(text.value()), placeholdersOf(one.englishOf(text.key())))
                << one.name << ": " << qPrintable(text.value());
    }
}

TEST_P(Translation, hasAMnemonicWhereTheEnglishTextHasOne)
{
    for (const Compared &one : tables()) {
        for (auto text = one.table.texts.cbegin(); text != one.table.texts.cend(); ++text)
            EXPECT_EQ(mnemonicsOf(text.value()), mnemonicsOf(one.englishOf(text.key())))
                << one.name << ": " << qPrintable(text.value());
    }
}

TEST_P(Translation, isTranslated)
{
    for (const Compared &one : tables()) {
        for (auto text = one.table.texts.cbegin(); text != one.table.texts.cend(); ++text) {
            const bool isSentence = one.englishOf(text.key()).count(' ') >= 3;
            EXPECT_FALSE(isSentence && text.value() == one.englishOf(text.key()))
                << one.name << ": " << qPrintable(text.value());
        }
    }
}
