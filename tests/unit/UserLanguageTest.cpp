// The environment is read once in a process, so each question goes to a second process of this program.

#include "TestBundle.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QProcess>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

const char *const questionVariable = "LUMAROO_TEST_ASKS_FOR_LANGUAGES_OF";

[[maybe_unused]] const bool isAsked = [] {
    if (!qEnvironmentVariableIsSet(questionVariable))
        return false;
    const NSBundle *bundle = NSBundle::bundleWithPath(qEnvironmentVariable(questionVariable));
    std::puts(qPrintable(bundle->preferredLocalizations().join(u' ')));
    std::exit(0);
}();

class UserLanguage : public testing::Test
{
protected:
    UserLanguage()
    {
        for (const QString &language :
            {QString("de"), QString("de_AT"), QString("en"), QString("fr"), QString("zh_TW")})
            bundle.writeFile("Contents/Resources/" + language + ".lproj/Localizable.qm", {});
    }

    /// The languages in use under the given settings of the environment, such as "LANG=de_DE.UTF-8".
    QString languagesUnder(const QStringList &settings)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &setting : settings)
            environment.insert(setting.section(u'=', 0, 0), setting.section(u'=', 1));
        environment.insert(questionVariable, bundle.path());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {});
        EXPECT_TRUE(process.waitForFinished()) << process.errorString().toStdString();
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

    TestBundle bundle{"Sample.prefPane"};
};

} // namespace

TEST_F(UserLanguage, isThatOfTheLocale)
{
    EXPECT_EQ(languagesUnder({"LANG=de_DE.UTF-8"}), "de en");
    EXPECT_EQ(languagesUnder({"LANG=de_AT.UTF-8"}), "de_AT de en");
    EXPECT_EQ(languagesUnder({"LANG=zh_TW.UTF-8"}), "zh_TW en");
    EXPECT_EQ(languagesUnder({"LANG=C.UTF-8", "LC_MESSAGES=fr_FR.UTF-8"}), "fr en");
    EXPECT_EQ(languagesUnder({"LANG=de_DE.UTF-8", "LC_ALL=fr_FR.UTF-8"}), "fr en");
}

TEST_F(UserLanguage, isEnglishWithoutALocale)
{
    EXPECT_EQ(languagesUnder({"LANG=C"}), "en");
    EXPECT_EQ(languagesUnder({"LANG="}), "en");
    EXPECT_EQ(languagesUnder({"LANG=ja_JP.UTF-8"}), "en");
}

TEST_F(UserLanguage, listsSeveralInTheUsersOrderAndEndsWithEnglish)
{
    EXPECT_EQ(languagesUnder({"LANG=de_DE.UTF-8", "LANGUAGE=fr:de"}), "fr de en");
    EXPECT_EQ(languagesUnder({"LANG=de_DE.UTF-8", "LANGUAGE=en_GB:de"}), "en");
}
