#include "agent/actions/PictureName.h"

#include <gtest/gtest.h>

namespace {

const QDateTime morning({2026, 11, 22}, {10, 31, 5});

} // namespace

TEST(PictureName, tellsProgramAndTime)
{
    EXPECT_EQ(pictureName("Terminal", morning), u"Terminal 2026-11-22 at 10.31.05");
}

TEST(PictureName, isAFilesNameWhateverTheProgramIsCalled)
{
    const QString time = " 2026-11-22 at 10.31.05";
    EXPECT_EQ(pictureName("../../etc/passwd", morning), "etc passwd" + time);
    EXPECT_EQ(pictureName(".hidden", morning), "hidden" + time);
    EXPECT_EQ(pictureName("two\nlines\tand\x7f more", morning), "two lines and more" + time);
    EXPECT_EQ(pictureName("a\u202eb\u2028c", morning), "a b c" + time);
    EXPECT_EQ(pictureName(QString(QChar(0)) + "/", morning), "Window" + time);
    EXPECT_EQ(pictureName("", morning), "Window" + time);
    EXPECT_EQ(pictureName("Büro 文書", morning), "Büro 文書" + time);
}

TEST(PictureName, isNotTooLongForAFile)
{
    EXPECT_EQ(pictureName(QString(300, u'x'), morning).size(), 120 + 23);
    const QString smiles = QStringLiteral("😀").repeated(100);
    const QString name = pictureName(smiles, morning);
    EXPECT_LE(name.toUtf8().size(), 150);
    EXPECT_TRUE(name.startsWith(smiles.first(60) + " 2026")) << "no half character";
}

TEST(PictureFolder, liesInTheUsersFolderForPictures)
{
    EXPECT_EQ(pictureFolder(), qEnvironmentVariable("HOME") + "/Pictures/Lumaroo");
    QFile named(qEnvironmentVariable("XDG_CONFIG_HOME") + "/user-dirs.dirs");
    ASSERT_TRUE(named.open(QIODevice::WriteOnly));
    named.write("XDG_PICTURES_DIR=\"$HOME/Bilder\"\n");
    named.close();
    EXPECT_EQ(pictureFolder(), qEnvironmentVariable("HOME") + "/Bilder/Lumaroo");
    EXPECT_TRUE(named.remove());
}
