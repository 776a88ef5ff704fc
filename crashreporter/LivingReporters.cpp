#include "crashreporter/LivingReporters.h"

#include "crashreporter/QBCrashReporter.h"

#include <QCoreApplication>
#include <QPointer>
#include <vector>

namespace {

std::vector<std::unique_ptr<QBCrashReporter>> &living()
{
    static std::vector<std::unique_ptr<QBCrashReporter>> reporters;
    return reporters;
}

void forget(const QBCrashReporter *reporter)
{
    std::erase_if(living(), [reporter](const auto &own) { return own.get() == reporter; });
}

void forgetAll()
{
    living().clear();
}

} // namespace

QBCrashReporter *keepAlive(std::unique_ptr<QBCrashReporter> reporter)
{
    // Once for each application object.
    if (living().empty()) {
        qRemovePostRoutine(&forgetAll);
        qAddPostRoutine(&forgetAll);
    }
    living().push_back(std::move(reporter));
    return living().back().get();
}

void letGo(QBCrashReporter *reporter)
{
    QMetaObject::invokeMethod(
        qApp, [reporter = QPointer(reporter)] { forget(reporter); }, Qt::QueuedConnection);
}

int livingReporters()
{
    return int(living().size());
}
