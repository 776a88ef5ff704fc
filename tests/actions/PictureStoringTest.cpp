// What is stored of a window's pixels, and what is there where that fails.

#include "agent/actions/PictureStoring.h"
#include "AgentProgram.h"
#include "Wait.h"

#include <QColorSpace>
#include <QDir>
#include <QTemporaryDir>
#include <cerrno>
#include <gmock/gmock.h>
#include <sys/mman.h>
#include <unistd.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr quint32 red = 0xff0000, green = 0xff00, blue = 0xff;

WindowPixels pixelsOf(const QByteArray &bytes, QSize size, quint32 pixelBits = 32)
{
    WindowPixels pixels;
    pixels.memory = FileDescriptor(::memfd_create("test", MFD_CLOEXEC));
    EXPECT_EQ(::write(pixels.memory.get(), bytes.constData(), size_t(bytes.size())), bytes.size());
    pixels.size = size;
    pixels.rowBytes = quint32(bytes.size() / size.height());
    pixels.pixelBits = pixelBits;
    pixels.red = red;
    pixels.green = green;
    pixels.blue = blue;
    return pixels;
}

WindowPixels pixelsOf(const QList<quint32> &colors, QSize size)
{
    return pixelsOf(
        QByteArray(reinterpret_cast<const char *>(colors.constData()), colors.size() * qsizetype(sizeof(quint32))),
        size);
}

class Storing : public testing::Test
{
protected:
    void store(WindowPixels pixels, const QString &name = "Picture")
    {
        storing_.emplace(AgentProgram::builtBundle() + "/Contents/Resources/screenshot");
        QObject::connect(&*storing_, &PictureStoring::stored, [this](const QString &stored) { path = stored; });
        QObject::connect(&*storing_, &PictureStoring::failed, [this](int failure) { error = failure; });
        storing_->begin(std::move(pixels), place(), name);
        EXPECT_TRUE(waitUntil([this] { return !path.isEmpty() || error; }));
    }
    QString place() const { return place_; }
    QStringList files() const { return QDir(place()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    QColor color(int x) const { return QImage(path).pixelColor(x, 0); }

    QTemporaryDir folder;
    QString path;
    std::optional<int> error;

    QString place_ = folder.filePath("Pictures/Lumaroo");

private:
    std::optional<PictureStoring> storing_;
};

} // namespace

TEST_F(Storing, makesAPictureOfEveryPixel)
{
    QList<quint32> colors(300 * 200);
    for (qsizetype place = 0; place < colors.size(); ++place)
        colors[place] = quint32(place) * 2654435761U;
    store(pixelsOf(colors, {300, 200}));
    EXPECT_EQ(path, place() + "/Picture.png");
    const QImage expected(reinterpret_cast<const uchar *>(colors.constData()), 300, 200, QImage::Format_RGB32);
    QImage picture = QImage(path).convertToFormat(QImage::Format_RGB32);
    EXPECT_FALSE(QImage(path).hasAlphaChannel());
    EXPECT_EQ(picture.colorSpace(), QColorSpace(QColorSpace::SRgb));
    // Else it would count as different.
    picture.setColorSpace({});
    EXPECT_EQ(picture, expected);
}

TEST_F(Storing, replacesNoPicture)
{
    store(pixelsOf(QList<quint32>{red}, {1, 1}), "Terminal 2026-11-22 at 10.31.05");
    path.clear();
    store(pixelsOf(QList<quint32>{green}, {1, 1}), "Terminal 2026-11-22 at 10.31.05");
    path.clear();
    store(pixelsOf(QList<quint32>{blue}, {1, 1}), "Terminal 2026-11-22 at 10.31.05");
    EXPECT_THAT(files(),
        ElementsAre(QString("Terminal 2026-11-22 at 10.31.05 2.png"), QString("Terminal 2026-11-22 at 10.31.05 3.png"),
            QString("Terminal 2026-11-22 at 10.31.05.png")));
    EXPECT_EQ(color(0), QColor(Qt::blue));
    EXPECT_EQ(QImage(place() + "/Terminal 2026-11-22 at 10.31.05.png").pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(Storing, keepsAnAlphaAndTakesItOutOfTheColours)
{
    WindowPixels pixels = pixelsOf(QList<quint32>{0x80400000, 0, 0xff102030}, {3, 1});
    pixels.alpha = 0xff000000;
    store(std::move(pixels));
    EXPECT_EQ(color(0), QColor(0x80, 0, 0, 0x80));
    EXPECT_EQ(color(1).alpha(), 0);
    EXPECT_EQ(color(2), QColor(0x10, 0x20, 0x30));
}

TEST_F(Storing, hasNoAlphaWhereAllIsOpaque)
{
    WindowPixels pixels = pixelsOf(QList<quint32>{0xff102030, 0xffffffff}, {2, 1});
    pixels.alpha = 0xff000000;
    store(std::move(pixels));
    EXPECT_FALSE(QImage(path).hasAlphaChannel());
}

TEST_F(Storing, knowsOtherFormsOfPixels)
{
    WindowPixels narrow = pixelsOf(QByteArray::fromHex("00f8e0071f000000"), {3, 1}, 16);
    narrow.red = 0xf800;
    narrow.green = 0x7e0;
    narrow.blue = 0x1f;
    store(std::move(narrow));
    EXPECT_EQ(QList({color(0), color(1), color(2)}), QList({QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue)}));
    path.clear();
    WindowPixels wide = pixelsOf(QList<quint32>{0x3ff, 0x200 << 10}, {2, 1});
    wide.red = 0x3ff;
    wide.green = 0x3ff << 10;
    wide.blue = 0x3ff << 20;
    store(std::move(wide));
    EXPECT_EQ(color(0), QColor(Qt::red));
    EXPECT_EQ(color(1), QColor(0, 0x80, 0));
    path.clear();
    WindowPixels other = pixelsOf(QByteArray::fromHex("00102030"), {1, 1});
    other.isLittleEndian = false;
    store(std::move(other));
    EXPECT_EQ(color(0), QColor(0x10, 0x20, 0x30));
}

TEST_F(Storing, failsWhereTheFolderCannotBeWrittenTo)
{
    ASSERT_TRUE(QDir().mkpath(place()));
    ASSERT_TRUE(QFile::setPermissions(place(), QFile::ReadOwner | QFile::ExeOwner));
    store(pixelsOf(QList<quint32>{red}, {1, 1}));
    QFile::setPermissions(place(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(error, EACCES);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(Storing, failsWhereAFileIsInTheFoldersPlace)
{
    QFile file(folder.filePath("Pictures"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    store(pixelsOf(QList<quint32>{red}, {1, 1}));
    EXPECT_EQ(error, ENOTDIR);
}

TEST_F(Storing, failsWhereTheFileSystemIsReadOnly)
{
    place_ = QStringLiteral("/usr/lib");
    store(pixelsOf(QList<quint32>{red}, {1, 1}));
    EXPECT_EQ(error, EROFS);
    error.reset();
    place_ = QStringLiteral("/usr/Pictures/Lumaroo");
    store(pixelsOf(QList<quint32>{red}, {1, 1}));
    EXPECT_EQ(error, EROFS) << "where the folder is not there either";
}

TEST_F(Storing, failsWhereThereAreFewerPixelsThanItIsTold)
{
    WindowPixels pixels = pixelsOf(QList<quint32>{red}, {1, 1});
    pixels.size = {1, 5000};
    store(std::move(pixels));
    EXPECT_EQ(error, EINVAL);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(Storing, leavesNothingWhereItIsCutOff)
{
    constexpr int side = 6000;
    ASSERT_TRUE(QDir().mkpath(place()));
    QProcess process;
    const WindowPixels pixels = pixelsOf(QByteArray(side * side * 4, 'x'), {side, side});
    process.setStandardInputFile(QStringLiteral("/proc/self/fd/%1").arg(pixels.memory.get()));
    const QString form = QStringLiteral("%1 %1 %2 32 16711680 65280 255 0 1").arg(side).arg(side * 4);
    process.start(AgentProgram::builtBundle() + "/Contents/Resources/screenshot",
        QStringList{place(), "Picture"} + form.split(u' '));
    ASSERT_TRUE(process.waitForStarted());
    const QString written = QStringLiteral("/proc/%1/io").arg(process.processId());
    ASSERT_TRUE(waitUntil([&] {
        QFile io(written);
        return io.open(QIODevice::ReadOnly) && !io.readAll().contains("wchar: 0\n");
    })) << "it has begun to write";
    process.kill();
    process.waitForFinished();
    EXPECT_NE(process.exitStatus(), QProcess::NormalExit);
    EXPECT_THAT(files(), IsEmpty());
}
