#include "agent/gestures/GestureSettings.h"

#include "KTXConstants.h"
#include "agent/life/AgentSettings.h"
#include "platform/foundation/colors/NSArchiver.h"

#include <gtest/gtest.h>

namespace {

GestureSettings with(const QString &key, const QVariant &value)
{
    return gestureSettings(effectiveSettings({{key, value}}));
}

} // namespace

TEST(GestureSettings, areTheDefaultsWhereNothingIsStored)
{
    const GestureSettings settings = gestureSettings(effectiveSettings({}));
    EXPECT_EQ(settings.gesture, GestureRules());
    EXPECT_EQ(settings.selection, SelectionRules());
    EXPECT_EQ(settings.windows, WindowChoice());
    EXPECT_FALSE(settings.overlay.animates);
    EXPECT_FALSE(settings.beeps);
    EXPECT_FALSE(settings.labelsAtOnce);
}

TEST(GestureSettings, followEachStoredOption)
{
    EXPECT_TRUE(with(KTXActivateDoubleClick, true).gesture.onlyByDoublePress);
    EXPECT_FALSE(with(KTXPersistentDoubleClick, false).gesture.persistentByDoublePress);
    EXPECT_TRUE(with(KTXShouldToggle, true).gesture.toggles);
    EXPECT_FALSE(with(KTXHWrap, false).selection.wrapsHorizontally);
    EXPECT_FALSE(with(KTXVWrap, false).selection.wrapsVertically);
    EXPECT_TRUE(with(KTXCycleAscending, true).selection.cyclesAscending);
    EXPECT_TRUE(with(KTXShowHidden, true).windows.showsHidden);
    EXPECT_TRUE(with(KTXAnimate, true).overlay.animates);
    EXPECT_TRUE(with(KTXShouldBeep, true).beeps);
    EXPECT_TRUE(with(KTXVisualMode, true).labelsAtOnce);
}

TEST(GestureSettings, knowEachOrderOnItsAxis)
{
    const QList<std::pair<const char *, SortOrder>> horizontal{{"FirstSelected", SortOrder::FirstSelected},
        {"LeftEdge", SortOrder::NearEdge}, {"RightEdge", SortOrder::FarEdge}, {"Center", SortOrder::Center},
        {"LeadingEdge", SortOrder::LeadingEdge}};
    for (const auto &[stored, order] : horizontal)
        EXPECT_EQ(with(KTXHSort, QString::fromLatin1(stored)).selection.horizontalOrder, order) << stored;
    const QList<std::pair<const char *, SortOrder>> vertical{{"FirstSelected", SortOrder::FirstSelected},
        {"TopEdge", SortOrder::NearEdge}, {"BottomEdge", SortOrder::FarEdge}, {"Center", SortOrder::Center},
        {"LeadingEdge", SortOrder::LeadingEdge}};
    for (const auto &[stored, order] : vertical)
        EXPECT_EQ(with(KTXVSort, QString::fromLatin1(stored)).selection.verticalOrder, order) << stored;
}

TEST(GestureSettings, drawInTheStoredColor)
{
    const auto color = NSColor::colorWithCalibratedRGBA(0.25F, 0.5F, 0.75F, 0.5F);
    const QByteArray archive = NSArchiver::archivedDataWithRootObject(color);
    EXPECT_EQ(with(KTXOverlayColor, archive).overlay.color->rgba(), color->rgba());
}

TEST(GestureSettings, drawInTheSettingsAccentWhereASystemColorIsStored)
{
    const QByteArray archive = NSArchiver::archivedDataWithRootObject(NSColor::selectedTextBackgroundColor());
    const std::array<float, 4> drawn = with(KTXOverlayColor, archive).overlay.color->rgba();
    EXPECT_EQ(qRound(drawn[0] * 255), 0x2a);
    EXPECT_EQ(qRound(drawn[1] * 255), 0x64);
    EXPECT_EQ(qRound(drawn[2] * 255), 0xb8);
    EXPECT_EQ(drawn[3], 1);
}
