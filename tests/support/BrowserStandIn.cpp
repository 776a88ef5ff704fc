#include "BrowserStandIn.h"

#include "Wait.h"

#include <QDir>
#include <QFile>

namespace {

const QString opener = QStringLiteral("xdg-open");

/// Each run makes a folder of its own, which has its name once it is complete.
constexpr char script[] = R"(runs=${0%/*}/runs
mkdir -p "$runs"
run=$(mktemp -d "${0%/*}/run.XXXXXX")
env >"$run/environment"
printf '%s\n' "$@" >"$run/arguments"
number=1
until mv -T "$run" "$runs/$number" 2>/dev/null; do number=$((number + 1)); done
)";

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
}

} // namespace

BrowserStandIn::BrowserStandIn() : folder_(QStringLiteral("bin")), pathBefore_(qgetenv("PATH"))
{
    folder_.writeScript(opener, script);
    qputenv("PATH", QFile::encodeName(folder_.path()) + ':' + pathBefore_);
}

BrowserStandIn::~BrowserStandIn()
{
    qputenv("PATH", pathBefore_);
}

void BrowserStandIn::remove() const
{
    QFile::remove(folder_.path() + u'/' + opener);
    qputenv("PATH", QFile::encodeName(folder_.path()));
}

QStringList BrowserStandIn::pages() const
{
    const QDir runs(folder_.path() + QStringLiteral("/runs"));
    QStringList pages;
    for (int number = 1; runs.exists(QString::number(number)); ++number)
        pages += contentOf(runs.filePath(QStringLiteral("%1/arguments").arg(number)));
    return pages;
}

bool BrowserStandIn::waitForPages(int count) const
{
    return waitUntil([&] { return pages().size() >= count; });
}

QStringList BrowserStandIn::environment() const
{
    return contentOf(folder_.path() + QStringLiteral("/runs/1/environment")).split(u'\n');
}
