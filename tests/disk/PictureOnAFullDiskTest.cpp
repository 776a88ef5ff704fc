// Pictures of windows on a full disk: told as such, and nothing half is left.

#include "AgentProgram.h"
#include "Wait.h"
#include "agent/actions/PictureStoring.h"

#include <QDir>
#include <QRandomGenerator>
#include <cerrno>
#include <gmock/gmock.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

/// No picture of it is smaller than itself.
WindowPixels noise(QSize size)
{
    WindowPixels pixels;
    pixels.memory = FileDescriptor(::memfd_create("test", MFD_CLOEXEC));
    QList<quint32> colors(qsizetype(size.width()) * size.height());
    QRandomGenerator random(1);
    random.fillRange(colors.data(), colors.size());
    const auto length = size_t(colors.size()) * sizeof(quint32);
    EXPECT_EQ(::write(pixels.memory.get(), colors.constData(), length), ssize_t(length));
    pixels.size = size;
    pixels.rowBytes = quint32(size.width()) * 4;
    pixels.pixelBits = 32;
    pixels.red = 0xff0000;
    pixels.green = 0xff00;
    pixels.blue = 0xff;
    return pixels;
}

class PictureOnAFullDisk : public testing::Test
{
protected:
    void store(QSize size)
    {
        PictureStoring storing(AgentProgram::builtBundle() + "/Contents/Resources/screenshot");
        QObject::connect(&storing, &PictureStoring::stored, [this](const QString &stored) { path = stored; });
        QObject::connect(&storing, &PictureStoring::failed, [this](int failure) { error = failure; });
        storing.begin(noise(size), place, "Picture");
        EXPECT_TRUE(waitUntil([this] { return !path.isEmpty() || error; }));
    }
    QStringList files() const { return QDir(place).entryList(QDir::Files | QDir::Hidden); }

    const QString place = qEnvironmentVariable("LUMAROO_SMALL_DISK") + "/Lumaroo";
    QString path;
    std::optional<int> error;
};

} // namespace

TEST_F(PictureOnAFullDisk, isNotThere)
{
    store({400, 400});
    EXPECT_EQ(error, ENOSPC);
    EXPECT_THAT(files(), testing::IsEmpty());
}

TEST_F(PictureOnAFullDisk, isThereWhereItFits)
{
    store({100, 100});
    EXPECT_EQ(path, place + "/Picture.png");
    EXPECT_THAT(files(), testing::ElementsAre(QString("Picture.png")));
}
