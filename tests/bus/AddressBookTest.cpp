#include "AccountsServiceStandIn.h"
#include "Wait.h"

#include "platform/foundation/accounts/ABAddressBook.h"
#include "platform/foundation/accounts/NSFullUserName.h"
#include "platform/foundation/accounts/linux/FullUserNameOf.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

std::optional<ABPerson> me()
{
    return ABAddressBook::sharedAddressBook()->me();
}

/// On a machine that is busy enough the service may be late.
std::optional<ABPerson> meAtLast()
{
    std::optional<ABPerson> card;
    EXPECT_TRUE(waitUntil([&card] { return (card = me()).has_value(); }));
    return card;
}

/// What has the system bus's address and never says a word. This process's questions go there from now on.
class SilentSystemBus
{
public:
    SilentSystemBus()
    {
        const QByteArray path = QFile::encodeName(folder_.filePath(QStringLiteral("bus")));
        qstrncpy(place_.sun_path, path.constData(), sizeof place_.sun_path);
        constexpr int noMoreThanOne = 0; // whoever is the second waits until the first is heard
        if (::bind(listener_, address(), sizeof place_) != 0 || ::listen(listener_, noMoreThanOne) != 0)
            qFatal("no silent bus");
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + path);
    }
    ~SilentSystemBus()
    {
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", before_);
        ::close(listener_);
    }
    Q_DISABLE_COPY_MOVE(SilentSystemBus)

private:
    const sockaddr *address() const { return reinterpret_cast<const sockaddr *>(&place_); }

    QTemporaryDir folder_;
    sockaddr_un place_ = {AF_UNIX, {}};
    int listener_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QByteArray before_ = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
};

class AddressBook : public testing::Test
{
protected:
    AccountsServiceStandIn service;
};

} // namespace

TEST(AddressBookWithoutSystemBus, hasNoCard)
{
    EXPECT_FALSE(me());
}

TEST_F(AddressBook, hasTheUsersCardWithTheAddress)
{
    service.setEmail(" someone@lumaroo.example ");
    const std::optional<ABPerson> card = meAtLast();
    ASSERT_TRUE(card);
    EXPECT_EQ(service.askedFor().value(0), qlonglong(::getuid()));
    const std::optional<ABMultiValue> emails = card->valueForProperty(kABEmailProperty);
    ASSERT_TRUE(emails);
    EXPECT_FALSE(emails->primaryIdentifier().isEmpty());
    EXPECT_EQ(emails->valueAtIndex(emails->indexForIdentifier(emails->primaryIdentifier())), "someone@lumaroo.example");
}

TEST_F(AddressBook, asksAnewEachTime)
{
    service.setEmail("first@lumaroo.example");
    ASSERT_TRUE(meAtLast());
    service.setEmail("second@lumaroo.example");
    EXPECT_EQ(meAtLast()->valueForProperty(kABEmailProperty)->valueAtIndex(0), "second@lumaroo.example");
}

TEST_F(AddressBook, aCardWithoutAddressHasNoEmailProperty)
{
    for (const char *nothing : {"", "  "}) {
        service.setEmail(nothing);
        EXPECT_FALSE(meAtLast()->valueForProperty(kABEmailProperty));
    }
    service.setEmail("someone@lumaroo.example");
    EXPECT_FALSE(meAtLast()->valueForProperty("Phone"));
}

TEST_F(AddressBook, aUserWhomTheServiceDoesNotKnowHasNoCard)
{
    service.setBehaviour(AccountsServiceStandIn::KnowsNoUser);
    EXPECT_FALSE(me());
}

TEST_F(AddressBook, aServiceThatSaysNothingIsNotWaitedForLong)
{
    for (const auto behaviour : {AccountsServiceStandIn::SaysNothing, AccountsServiceStandIn::SaysNothingOfTheUser}) {
        service.setBehaviour(behaviour);
        QElapsedTimer time;
        time.start();
        EXPECT_FALSE(me());
        EXPECT_GE(time.elapsed(), 250);
        EXPECT_LT(time.elapsed(), 20000); // the toolkit's own bound is 25 s
    }
}

TEST(AddressBookOnASilentBus, isNotWaitedForLongAndHoldsUpNoOtherBus)
{
    const SilentSystemBus bus;
    for (int question = 0; question < 3; ++question) {
        QElapsedTimer time;
        time.start();
        EXPECT_FALSE(me());
        EXPECT_TRUE(QDBusConnection::sessionBus().interface()->isServiceRegistered("org.freedesktop.DBus"));
        EXPECT_LT(time.elapsed(), 15000) << "the bus library's own bound is 25 s, or none";
    }
}

TEST(MultiValue, withoutValuesHasNoPrimaryOne)
{
    const ABMultiValue none;
    EXPECT_TRUE(none.primaryIdentifier().isEmpty());
    EXPECT_EQ(none.indexForIdentifier("0"), -1);
    EXPECT_EQ(none.valueAtIndex(-1), QString());
    EXPECT_EQ(none.valueAtIndex(0), QString());
}

TEST(FullUserName, isWhatStandsFirstInTheAccountsComment)
{
    EXPECT_EQ(fullUserNameOf("someone", "Someone Else"), "Someone Else");
    EXPECT_EQ(fullUserNameOf("someone", "Someone Else,Room 7,123"), "Someone Else");
    EXPECT_EQ(fullUserNameOf("someone", " Else "), "Else");
    EXPECT_EQ(fullUserNameOf("someone", "& Else"), "Someone Else");
}

TEST(FullUserName, isTheAccountsNameWhereNoOtherIsKnown)
{
    EXPECT_EQ(fullUserNameOf("someone", ""), "someone");
    EXPECT_EQ(fullUserNameOf("someone", ",,,"), "someone");
    EXPECT_FALSE(NSFullUserName().isEmpty());
}
