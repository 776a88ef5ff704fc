// A program in the middle of a gesture: it has the keyboard and the digits, says so and waits.

#include "KTXSettings.h"

#include "agent/keys/AgentHotKeys.h"
#include "agent/keys/GestureKeys.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    QVariantMap settings;
    for (const KTXSetting &setting : KTXSettings())
        settings.insert(setting.key, setting.defaultValue);
    AgentHotKeys hotKeys;
    GestureKeys keys(hotKeys);
    hotKeys.apply(settings);
    keys.apply(settings);
    keys.takeDigits({1});
    QObject::connect(&keys, &GestureKeys::keyboardGrabbed, &keys, [] {
        std::puts("grabbed");
        std::fflush(stdout);
    });
    keys.grabKeyboard();
    return QCoreApplication::exec();
}
