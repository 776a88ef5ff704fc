#include "KeyCodeTranslator.h"
#include "TestBundle.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

const char *const keyCodesVariable = "LUMAROO_TEST_ASKS_FOR_KEY_NAMES";

/// Started a second time inside a bundle, this program names the keys it is asked for.
[[maybe_unused]] const bool isAsked = [] {
    if (!qEnvironmentVariableIsSet(keyCodesVariable))
        return false;
    for (const QString &code : qEnvironmentVariable(keyCodesVariable).split(','))
        std::puts(KeyCodeTranslator::stringForKeyCodeWithModifierFlags(code.toUShort(), 0).toUtf8().constData());
    std::exit(0);
}();

/// The host's bundle with the host's own string tables, and this program in the host's place.
class HostWithKeyNames : public testing::Test
{
protected:
    HostWithKeyNames()
    {
        for (const QString &language : {QString("de"), QString("en")})
            install(language);
        QDir().mkpath(QFileInfo(executable()).path());
        EXPECT_TRUE(QFile::copy(QCoreApplication::applicationFilePath(), executable()));
        host.writeInfo({{"CFBundleIdentifier", "com.apple.systempreferences"}});
    }

    QStringList keyNames(const QString &language, const QString &keyCodes)
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LANGUAGE", language);
        environment.insert("LANG", "C.UTF-8");
        environment.insert(keyCodesVariable, keyCodes);
        program.setProcessEnvironment(environment);
        program.start(executable(), {});
        EXPECT_TRUE(program.waitForFinished()) << program.errorString().toStdString();
        return QString::fromUtf8(program.readAllStandardOutput()).trimmed().split('\n');
    }

private:
    QString executable() const { return host.path() + "/Contents/Linux/settings"; }

    void install(const QString &language)
    {
        const QString inside = "/Contents/Resources/" + language + ".lproj/Localizable.qm";
        QFile table(qEnvironmentVariable("LUMAROO_BUILD") + "/tests/data/host-string-tables" + inside);
        ASSERT_TRUE(table.open(QIODevice::ReadOnly)) << table.fileName().toStdString();
        host.writeFile(inside.mid(1), table.readAll());
    }

    TestBundle host{"Settings.app"};
};

} // namespace

TEST_F(HostWithKeyNames, namesKeysInGermanForAGermanUser)
{
    EXPECT_EQ(keyNames("de", "115,119,116,121,76,48,36,51,117,53,49"),
        QStringList({"Pos1", "Ende", "Bild auf", "Bild ab", "Return", "Tab", "Enter", "Rücktaste", "Entf", "Esc",
            "Leertaste"}));
}

TEST_F(HostWithKeyNames, namesKeysInEnglishForEveryoneElse)
{
    for (const QString &language : {QString("en"), QString("fr")}) {
        EXPECT_EQ(keyNames(language, "115,119,116,121,76,48,36,51,117,53,49"),
            QStringList({"Home", "End", "Page Up", "Page Down", "Return", "Tab", "Enter", "Backspace", "Delete",
                "Escape", "Space"}));
    }
}

TEST_F(HostWithKeyNames, showsLettersAndArrowsTheSameInEveryLanguage)
{
    EXPECT_EQ(keyNames("de", "0,126,44"), QStringList({"A", "↑", "/"}));
}
