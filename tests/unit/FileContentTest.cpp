// What a file holds, also while others write to it.

#include "SystemCallFaults.h"

#include "platform/foundation/files/FileContent.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class FileContent : public testing::Test
{
protected:
    ~FileContent() override { systemCalls() = calls_; }

    void put(const QByteArray &content) const
    {
        QFile file(folder_.filePath("file"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray path() const { return QFile::encodeName(folder_.filePath("file")); }
    std::optional<QByteArray> content(qint64 most = 1000) const { return lastBytesOfFile(path(), most); }
    /// Changes the file each time that some of it has been read.
    void changeWhileReading(const std::function<void()> &change)
    {
        systemCalls().pread = [original = calls_.pread, change](int descriptor, void *buffer, size_t, off_t offset) {
            const ssize_t count = original(descriptor, buffer, 1, offset);
            change();
            return count;
        };
    }

private:
    QTemporaryDir folder_;
    SystemCalls calls_ = systemCalls();
};

} // namespace

TEST_F(FileContent, isWhatItHolds)
{
    put(QByteArray("a\0b", 3));
    EXPECT_EQ(content(), QByteArray("a\0b", 3));
    put("");
    EXPECT_EQ(content(), QByteArray(""));
}

TEST_F(FileContent, isNothingOfWhatIsNoFile)
{
    EXPECT_EQ(content(), std::nullopt);
    EXPECT_EQ(lastBytesOfFile("/", 1000), std::nullopt);
    EXPECT_EQ(lastBytesOfFile("/dev/zero", 1000), std::nullopt);
}

TEST_F(FileContent, isItsEndWhereItIsLargerThanTheBound)
{
    put("1234");
    EXPECT_EQ(content(4), QByteArray("1234"));
    EXPECT_EQ(content(3), QByteArray("234"));
    EXPECT_EQ(content(0), QByteArray(""));
}

TEST_F(FileContent, isWhatItHeldAtFirstWhereItGrowsWithoutEnd)
{
    put("abc");
    changeWhileReading([this] {
        QFile file(QFile::decodeName(path()));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write("more");
    });
    EXPECT_EQ(content(), QByteArray("abc"));
}

TEST_F(FileContent, endsWhereItIsCutOffMeanwhile)
{
    put("abcdef");
    changeWhileReading([this] { QFile::resize(QFile::decodeName(path()), 3); });
    EXPECT_EQ(content(), QByteArray("abc"));
}

TEST_F(FileContent, isNothingAfterAFailure)
{
    put("abc");
    failOnce(&SystemCalls::pread, 1, EIO);
    EXPECT_EQ(content(), std::nullopt);
    failOnce(&SystemCalls::pread, 1, EINTR);
    EXPECT_EQ(content(), QByteArray("abc"));
}
