// What the agent costs stays the same however many selections there have been.

#include "KTXConstants.h"
#include "OtherClient.h"
#include "SelectionSession.h"
#include "Wait.h"

#include <QDir>
#include <linux/input-event-codes.h>

namespace {

/// What a process has of its own, in KiB: neither shared nor given back.
qint64 ownMemory(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(process));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("Private_Dirty:"))
            return line.simplified().split(' ').value(1).toLongLong();
    }
    ADD_FAILURE() << "the system does not tell";
    return 0;
}

qsizetype openFiles(qint64 process)
{
    return QDir(QStringLiteral("/proc/%1/fd").arg(process)).entryList(QDir::AllEntries | QDir::System).size();
}

// In KiB. The sanitizers remember every way that led to an allocation: that grows slowly, and what is lost they tell.
#ifdef __SANITIZE_ADDRESS__
constexpr qint64 mostGrowth = 640;
#else
constexpr qint64 mostGrowth = 64;
#endif

// In bytes, of marks: what the last selection before the count had given back already, and the last one after it not.
constexpr quint64 ofOneSelection = 128 * 1024;

class SelectionEndurance : public SelectionSession
{
protected:
    /// What the sanitizers hold back of freed memory would look like growth.
    SelectionEndurance()
        : SelectionSession({{"ASAN_OPTIONS", "quarantine_size_mb=0:thread_local_quarantine_size_kb=0"}})
    {
    }

    /// There and back, every other time with the mark on screen.
    void select(int gestures)
    {
        for (int gesture = 0; gesture < gestures; ++gesture) {
            const bool isBack = gesture % 2;
            if (gesture % 20 < 2)
                selectSlowly(isBack ? KEY_LEFT : KEY_RIGHT);
            else
                pressKey(isBack ? KEY_LEFT : KEY_RIGHT, modifiers());
            ASSERT_TRUE(isActive(isBack ? "left" : "middle"))
                << gesture << agent.lines().mid(agent.lines().size() - 10).join(u'\n').toStdString()
                << agent.errors().toStdString();
        }
        ASSERT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
    }

    OtherClient other;

private:
    void selectSlowly(int key)
    {
        constexpr int frameTitleAndDigits = 3;
        holdModifiers();
        pressKey(key);
        EXPECT_TRUE(waitUntil([] { return marksOnScreen() >= frameTitleAndDigits; }));
        releaseModifiers();
    }
};

} // namespace

TEST_F(SelectionEndurance, isNoMoreAfterAThousandSelections)
{
    open({{KTXVisualMode, true}});
    const qint64 process = agent.processId();
    ASSERT_NO_FATAL_FAILURE(select(100));
    // Some of the last selection may still be there.
    const quint64 resources = other.resourcesOf(process), pictures = other.pictureBytesOf(process);
    const qsizetype files = openFiles(process);
    const qint64 memory = ownMemory(process);
    ASSERT_NO_FATAL_FAILURE(select(900));
    EXPECT_TRUE(waitUntil([&] { return other.resourcesOf(process) <= resources; })) << other.resourcesOf(process);
    EXPECT_TRUE(waitUntil([&] { return other.pictureBytesOf(process) <= pictures + ofOneSelection; }))
        << pictures << ' ' << other.pictureBytesOf(process);
    EXPECT_TRUE(waitUntil([&] { return openFiles(process) <= files; })) << openFiles(process);
    EXPECT_LE(ownMemory(process), memory + mostGrowth);
}
