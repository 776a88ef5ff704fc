#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/NSMatrix.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

template <typename View = QWidget>
View *tagged(int viewTag, QWidget *parent)
{
    auto *view = new View(parent);
    view->setProperty("tag", viewTag);
    return view;
}

} // namespace

TEST(ViewWithTag, theRootItselfCounts)
{
    QWidget root;
    root.setProperty("tag", 3);
    tagged(3, &root);
    EXPECT_EQ(viewWithTag(&root, 3), &root);
    EXPECT_EQ(viewWithTag(&root, 4), nullptr);
}

TEST(ViewWithTag, aViewInsideAnEarlierOneComesBeforeALaterOne)
{
    QWidget root;
    QWidget *deep = tagged(5, new QWidget(new QWidget(&root)));
    tagged(5, &root);
    EXPECT_EQ(viewWithTag(&root, 5), deep);
}

TEST(ViewWithTag, childrenCountInTheirOrderWhateverTheLayoutSays)
{
    QWidget root;
    QWidget *first = tagged(5, &root);
    QWidget *second = tagged(5, &root);
    auto *layout = new QVBoxLayout(&root);
    layout->addWidget(second);
    layout->addWidget(first);
    EXPECT_EQ(viewWithTag(&root, 5), first);
}

TEST(ViewWithTag, theCellsOfAMatrixDoNotCountButTheMatrixDoes)
{
    QWidget root;
    auto *matrix = tagged<NSMatrix>(9, &root);
    tagged<QCheckBox>(0, matrix);
    QWidget *field = tagged(0, &root);
    EXPECT_EQ(viewWithTag(&root, 0), field);
    EXPECT_EQ(viewWithTag(&root, 9), matrix);
}

TEST(ViewWithTag, pagesCountByIndexWhicheverWasShownLast)
{
    QTabWidget tabs;
    for (int index = 0; index < 3; ++index)
        tabs.addTab(new QWidget, QString::number(index));
    QWidget *onSecond = tagged(5, tabs.widget(1));
    tagged(5, tabs.widget(2));
    for (int index : {2, 0, 1, 2}) {
        tabs.setCurrentIndex(index);
        EXPECT_EQ(viewWithTag(&tabs, 5), onSecond);
    }

    QStackedWidget stack;
    QWidget *first = tagged(5, nullptr);
    stack.addWidget(first);
    stack.addWidget(tagged(5, nullptr));
    first->raise();
    EXPECT_EQ(viewWithTag(&stack, 5), first);
}

TEST(ViewWithTag, severalAreTheOnesThatEachIsAlone)
{
    QTabWidget tabs;
    for (int index = 0; index < 2; ++index)
        tabs.addTab(new QWidget, QString::number(index));
    tagged(2, tabs.widget(1));
    tagged(0, tabs.widget(1));
    tagged(-3, tabs.widget(0));
    tagged(4, tabs.widget(0));
    tagged(2, tabs.widget(0));
    tagged<QCheckBox>(1, tagged<NSMatrix>(9, tabs.widget(0)));
    const QWidgetList views = viewsWithTagsBelow(&tabs, 4);
    ASSERT_EQ(views.size(), 4);
    for (int viewTag = 0; viewTag < 4; ++viewTag)
        EXPECT_EQ(views.at(viewTag), viewWithTag(&tabs, viewTag)) << viewTag;
    EXPECT_EQ(views.at(1), nullptr) << "the cells of a matrix do not count";
    EXPECT_EQ(viewsWithTagsBelow(nullptr, 2), QWidgetList({nullptr, nullptr}));
}
