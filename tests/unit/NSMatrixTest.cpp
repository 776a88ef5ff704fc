#include "platform/appkit/controls/NSMatrix.h"
#include "TestInterface.h"
#include "platform/appkit/controls/Controls.h"

#include "Wait.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

QByteArray cell(const char *className, int cellTag)
{
    const QByteArray number = QByteArray::number(cellTag);
    return QByteArray("<item><widget class=\"") + className + "\" name=\"cell" + number
        + "\"><property name=\"tag\" stdset=\"0\"><number>" + number + "</number></property></widget></item>";
}

QByteArray matrix(const QByteArray &cells, bool visible = true)
{
    return R"(<widget class="NSMatrix" name="matrix"><property name="visible"><bool>)"
        + QByteArray(visible ? "true" : "false")
        + R"(</bool></property><property name="action" stdset="0"><string>act:</string></property><layout class="QVBoxLayout">)"
        + cells + "</layout></widget>";
}

} // namespace

class AMatrix : public testing::Test
{
protected:
    NSMatrix *matrixView() const { return interface.find<NSMatrix>("matrix"); }
    TestInterface interface;
};

TEST_F(AMatrix, thatIsNotShownWorksAllTheSame)
{
    interface.load(matrix(cell("QCheckBox", 0) + cell("QCheckBox", 512) + cell("QCheckBox", 256), false));
    EXPECT_EQ(matrixView()->cells().size(), 3);
    EXPECT_EQ(matrixView()->selectedCell(), nullptr);
    performClick(matrixView()->cellWithTag(0));
    EXPECT_EQ(interface.sent, QStringList("act: matrix"));
    EXPECT_EQ(tag(matrixView()->selectedCell()), 0);
    EXPECT_EQ(state(matrixView()->cellWithTag(0)), NSOnState);
    performClick(matrixView()->cellWithTag(512));
    EXPECT_EQ(tag(matrixView()->selectedCell()), 512);
    EXPECT_EQ(interface.sent.size(), 2);
}

TEST_F(AMatrix, hasSelectedTheCellWhenItsActionIsSent)
{
    int selectedThen = -1;
    interface.owner.actions = {
        {"act:", [&](QObject *sender) { selectedThen = tag(qobject_cast<NSMatrix *>(sender)->selectedCell()); }}};
    interface.load(matrix(cell("QCheckBox", 512) + cell("QCheckBox", 256)));
    performClick(matrixView()->cellWithTag(256));
    EXPECT_EQ(selectedThen, 256);
}

TEST_F(AMatrix, answersWithTheChosenRadioButtonBeforeAnyClick)
{
    interface.load(matrix(cell("QRadioButton", 74) + cell("QRadioButton", 75)));
    EXPECT_EQ(matrixView()->selectedCell(), nullptr);
    setState(matrixView()->cellWithTag(75), NSOnState);
    EXPECT_EQ(tag(matrixView()->selectedCell()), 75);
    EXPECT_TRUE(interface.sent.isEmpty());
}

TEST_F(AMatrix, performingAClickOnADisabledCellDoesNothing)
{
    interface.load(matrix(cell("QRadioButton", 74) + cell("QRadioButton", 75)));
    setEnabled(matrixView()->cellWithTag(75), false);
    performClick(matrixView()->cellWithTag(75));
    EXPECT_TRUE(interface.sent.isEmpty());
    EXPECT_EQ(matrixView()->selectedCell(), nullptr);
}

TEST_F(AMatrix, whoseCellsStandInSeveralViewsStillExcludesAllOthers)
{
    interface.load(
        matrix(R"(<item><widget class="QWidget" name="left"><layout class="QVBoxLayout">)" + cell("QRadioButton", 74)
            + R"(</layout></widget></item><item><widget class="QWidget" name="right"><layout class="QVBoxLayout">)"
            + cell("QRadioButton", 75) + "</layout></widget></item>"));
    performClick(matrixView()->cellWithTag(74));
    performClick(matrixView()->cellWithTag(75));
    EXPECT_EQ(state(matrixView()->cellWithTag(74)), NSOffState);
    EXPECT_EQ(state(matrixView()->cellWithTag(75)), NSOnState);
    EXPECT_EQ(interface.sent.size(), 2);
}

TEST_F(AMatrix, sendsItsActionWhenTheArrowKeysChooseAnotherRadioButton)
{
    interface.load(matrix(cell("QRadioButton", 74) + cell("QRadioButton", 75)));
    setState(matrixView()->cellWithTag(74), NSOnState);
    interface.root->resize(200, 200);
    interface.root->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(interface.root));
    matrixView()->cellWithTag(74)->setFocus();
    QTest::keyClick(matrixView()->cellWithTag(74), Qt::Key_Down);
    EXPECT_EQ(interface.sent, QStringList("act: matrix"));
    EXPECT_EQ(tag(matrixView()->selectedCell()), 75);
}

TEST_F(AMatrix, adoptsCellsThatCodeAddsOnce)
{
    NSMatrix made;
    QSignalSpy clicked(&made, &NSMatrix::cellClicked);
    auto *box = new QCheckBox(&made);
    performClick(box);
    EXPECT_EQ(clicked.size(), 1);
    runPendingEvents();
    made.show();
    box->click();
    EXPECT_EQ(clicked.size(), 2);
    auto *late = new QCheckBox(&made);
    runPendingEvents();
    late->click();
    EXPECT_EQ(clicked.size(), 3);
}

TEST_F(AMatrix, forgetsACellThatIsDestroyed)
{
    NSMatrix made;
    auto *box = new QCheckBox(&made);
    performClick(box);
    delete box;
    EXPECT_EQ(made.selectedCell(), nullptr);
    performClick(&made);
}
