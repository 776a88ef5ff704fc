// The field to try the repeat of a held key in.

#include "platform/appkit/controls/KeyRepeatField.h"
#include "Wait.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

class ARepeatField : public testing::Test
{
protected:
    void press(int key) { QTest::keyPress(&field, Qt::Key(key)); }
    void release(int key) { QTest::keyRelease(&field, Qt::Key(key)); }

    KeyRepeatField field;
    QSignalSpy moved{&field, &KeyRepeatField::moved};
};

} // namespace

TEST_F(ARepeatField, movesAtOnceAndAgainWhileTheKeyIsHeld)
{
    field.setBeat(30ms, 5ms);
    QElapsedTimer time;
    time.start();
    press(Qt::Key_Right);
    EXPECT_EQ(field.place(), 1);
    EXPECT_TRUE(waitUntil([&] { return moved.count() >= 4; }));
    EXPECT_GE(time.elapsed(), 30 + 2 * 5 - 2);
    release(Qt::Key_Right);
    EXPECT_FALSE(field.isRepeating());
}

TEST_F(ARepeatField, goesBackWithTheKeysLeftAndUp)
{
    field.setRepeats(false);
    press(Qt::Key_Down);
    release(Qt::Key_Down);
    press(Qt::Key_Right);
    release(Qt::Key_Right);
    press(Qt::Key_Left);
    release(Qt::Key_Left);
    EXPECT_EQ(field.place(), 1);
    press(Qt::Key_Up);
    EXPECT_EQ(field.place(), 0);
}

TEST_F(ARepeatField, movesOnceOnlyWhereNothingRepeats)
{
    field.setRepeats(false);
    press(Qt::Key_Right);
    EXPECT_EQ(moved.count(), 1);
    EXPECT_FALSE(field.isRepeating());
}

TEST_F(ARepeatField, takesNoNoticeOfTheKeyboardsOwnRepeat)
{
    field.setRepeats(false);
    press(Qt::Key_Right);
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Right, {}, {}, true);
    QCoreApplication::sendEvent(&field, &again);
    EXPECT_EQ(moved.count(), 1);
}

TEST_F(ARepeatField, leavesOtherKeysAndCombinationsToTheWindow)
{
    for (const auto &[key, modifiers] : {std::pair{Qt::Key_Escape, Qt::NoModifier},
             {Qt::Key_Right, Qt::ControlModifier}, {Qt::Key_Left, Qt::AltModifier}}) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(&field, &event);
        EXPECT_FALSE(event.isAccepted()) << key;
    }
    EXPECT_EQ(moved.count(), 0);
}

TEST_F(ARepeatField, repeatsWhileTheMouseHoldsIt)
{
    field.setBeat(5ms, 5ms);
    field.resize(field.sizeHint());
    QTest::mousePress(&field, Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return moved.count() >= 3; }));
    QTest::mouseRelease(&field, Qt::LeftButton);
    EXPECT_FALSE(field.isRepeating());
}
