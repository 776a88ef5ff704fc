// The help system's list of registered books, and the calls that lead to it.

#include "CapturedLog.h"
#include "HelpBundle.h"

#include "platform/appkit/help/AHRegisterHelpBook.h"
#include "platform/foundation/bundles/CFBundle.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/processes/LaunchServices.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

QVariantMap entry(const QString &name, const QString &path)
{
    return {{"id", name}, {"path", path}};
}

class RegisteringABook : public testing::Test
{
protected:
    RegisteringABook() { setRegisteredBooks({}); }
    ~RegisteringABook() override { setRegisteredBooks({}); }

    QVariantMap own() const { return entry("Test Help", bundle.path()); }

    HelpBundle bundle;
};

} // namespace

TEST_F(RegisteringABook, recordsIdentifierNameAndPlaceAtOnce)
{
    EXPECT_EQ(bundle.registerBook(), noErr);
    EXPECT_EQ(registeredBooksOnDisk(), QVariantMap({{"com.quorvane.Test", QVariantList{own()}}}));
}

TEST_F(RegisteringABook, leavesTheBooksOfOthersAlone)
{
    const QVariantMap others{{"com.quorvane.Other", QVariantList{entry("Other Help", "/other")}}, {"odd", "text"}};
    setRegisteredBooks(others);
    EXPECT_EQ(bundle.registerBook(), noErr);
    QVariantMap expected = others;
    expected.insert("com.quorvane.Test", QVariantList{own()});
    EXPECT_EQ(registeredBooksOnDisk(), expected);
}

TEST_F(RegisteringABook, comesAfterTheBundlesOtherBooks)
{
    setRegisteredBooks(QVariantMap{{"com.quorvane.Test", QVariantList{entry("Old Help", "/old")}}});
    EXPECT_EQ(bundle.registerBook(), noErr);
    EXPECT_EQ(
        registeredBooksOnDisk().value("com.quorvane.Test").toList(), (QVariantList{entry("Old Help", "/old"), own()}));
}

TEST_F(RegisteringABook, thatIsRegisteredKeepsItsPlaceAndLearnsWhereItIsNow)
{
    setRegisteredBooks(
        QVariantMap{{"com.quorvane.Test", QVariantList{entry("Test Help", "/old"), entry("Old Help", "/old")}}});
    EXPECT_EQ(bundle.registerBook(), noErr);
    EXPECT_EQ(
        registeredBooksOnDisk().value("com.quorvane.Test").toList(), (QVariantList{own(), entry("Old Help", "/old")}));
}

TEST_F(RegisteringABook, replacesWhatIsNoListOfBooks)
{
    const QVariant nonsense[] = {"text", 7LL, QVariantList{1LL, 2LL}, QVariantMap{{"com.quorvane.Test", "text"}},
        QVariantMap{{"com.quorvane.Test", QVariantList{"text", QVariantList()}}}};
    for (const QVariant &books : nonsense) {
        setRegisteredBooks(books);
        EXPECT_EQ(bundle.registerBook(), noErr);
        EXPECT_EQ(registeredBooksOnDisk().value("com.quorvane.Test").toList(), QVariantList{own()});
    }
}

TEST_F(RegisteringABook, needsANameAndAnIdentifier)
{
    for (const QVariantMap &changes : {QVariantMap{{"CFBundleHelpBookName", QVariant(7LL)}},
             QVariantMap{{"CFBundleHelpBookName", ""}}, QVariantMap{{"CFBundleIdentifier", ""}}}) {
        const HelpBundle lacking(changes);
        EXPECT_EQ(lacking.registerBook(), kAHInternalConfigErr);
    }
    EXPECT_EQ(registeredBooksOnDisk(), QVariantMap());
    EXPECT_EQ(AHRegisterHelpBook(nullptr), paramErr);
}

TEST_F(RegisteringABook, tellsWhenItCannotBeWritten)
{
    const CapturedLog log;
    setRegisteredBooks(QVariantMap());
    const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME") + "/lumaroo";
    const QFile::Permissions before = QFile::permissions(folder);
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    EXPECT_EQ(bundle.registerBook(), kAHInternalErr);
    QFile::setPermissions(folder, before);
}

TEST_F(RegisteringABook, startsWithItsBundlesFolder)
{
    EXPECT_EQ(CFBundleGetBundleWithIdentifier("com.quorvane.Nobody"), nullptr);
    NSBundle *loaded = NSBundle::bundleWithPath(bundle.path());
    loaded->setLoaded();
    EXPECT_EQ(CFBundleGetBundleWithIdentifier(bundle.identifier()), loaded);
    const QUrl address = CFBundleCopyBundleURL(loaded);
    EXPECT_EQ(address, QUrl::fromLocalFile(bundle.path()));
    EXPECT_EQ(CFBundleCopyBundleURL(nullptr), QUrl());
    FSRef reference{"untouched"};
    for (const QUrl &other : {QUrl(), QUrl("http://www.example.org/"), QUrl::fromLocalFile("/no/where")})
        EXPECT_FALSE(CFURLGetFSRef(other, &reference));
    EXPECT_EQ(reference.path, "untouched");
    ASSERT_TRUE(CFURLGetFSRef(address, &reference));
    EXPECT_EQ(reference.path, bundle.path());
}
