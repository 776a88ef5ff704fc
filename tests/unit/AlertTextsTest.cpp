// What an alert says of its own, apart from the texts that it is given.

#include "platform/foundation/bundles/NSBundle.h"

#include <QLocale>
#include <gtest/gtest.h>

TEST(AlertTexts, areGermanForAGermanUser)
{
    QLocale::setDefault(QLocale("de_DE"));
    const NSBundle *host =
        NSBundle::bundleWithPath(qEnvironmentVariable("LUMAROO_BUILD") + "/tests/data/host-string-tables");
    ASSERT_NE(host, nullptr);
    EXPECT_EQ(host->localizedStringForKeyValueTable("Help", "untranslated"), "Hilfe");
    EXPECT_EQ(host->localizedStringForKeyValueTable("OK", "untranslated"), "OK");
    EXPECT_EQ(
        host->localizedStringForKeyValueTable("&Do not show this message again"), "&Diese Meldung nicht mehr anzeigen");
}
