// The small drawing beside a choice.

#include "platform/appkit/controls/ChoicePicture.h"

#include <QCheckBox>
#include <QComboBox>
#include <gtest/gtest.h>

namespace {

class AChoicePicture : public testing::Test
{
protected:
    AChoicePicture() : picture(new ChoicePicture(&window))
    {
        list->setObjectName("list");
        list->addItems({"One", "Other"});
        list->setProperty("bindingValues", QStringList{"LeftEdge", "RightEdge"});
        box->setObjectName("box");
    }
    QImage shown(const char *control, ChoicePicture::Subject subject)
    {
        picture->setProperty("control", control);
        picture->setProperty("subject", QVariant::fromValue(subject));
        window.show();
        return now();
    }
    QImage now() { return picture->grab().toImage(); }

    QWidget window;
    QComboBox *list = new QComboBox(&window);
    QCheckBox *box = new QCheckBox(&window);
    ChoicePicture *picture;
};

} // namespace

TEST_F(AChoicePicture, followsThePopUpThatItBelongsTo)
{
    const QImage before = shown("list", ChoicePicture::LeftAndRight);
    EXPECT_EQ(picture->choice(), "LeftEdge");
    list->setCurrentIndex(1);
    EXPECT_EQ(picture->choice(), "RightEdge");
    EXPECT_NE(now(), before);
}

TEST_F(AChoicePicture, followsTheCheckBoxThatItBelongsTo)
{
    const QImage before = shown("box", ChoicePicture::WrapSideways);
    EXPECT_EQ(picture->choice(), "false");
    box->setChecked(true);
    EXPECT_EQ(picture->choice(), "true");
    EXPECT_NE(now(), before);
}

TEST_F(AChoicePicture, outlivesTheControlThatItBelongsTo)
{
    shown("list", ChoicePicture::Stack);
    delete list;
    EXPECT_EQ(picture->choice(), "false");
    EXPECT_FALSE(now().isNull());
}

TEST_F(AChoicePicture, isTurnedOverForUpAndDown)
{
    const QImage sideways = shown("box", ChoicePicture::WrapSideways);
    const QImage upright = shown("box", ChoicePicture::WrapUpright);
    EXPECT_NE(sideways, upright);
}

TEST_F(AChoicePicture, differsForEachOrder)
{
    list->clear();
    const QStringList orders{"FirstSelected", "LeftEdge", "RightEdge", "LeadingEdge", "Center"};
    list->addItems(orders);
    list->setProperty("bindingValues", orders);
    QList<QImage> pictures{shown("list", ChoicePicture::LeftAndRight)};
    for (int index = 1; index < orders.size(); ++index) {
        list->setCurrentIndex(index);
        EXPECT_FALSE(pictures.contains(now())) << qPrintable(orders.at(index));
        pictures.append(now());
    }
}
