#include "agent/gestures/GestureCommands.h"

#include <array>
#include <utility>

namespace {

constexpr std::array movements{
    std::pair{"left", Movement::Left},
    std::pair{"right", Movement::Right},
    std::pair{"up", Movement::Up},
    std::pair{"down", Movement::Down},
    std::pair{"under", Movement::Under},
};

} // namespace

const QStringList &movementNames()
{
    static const QStringList names = [] {
        QStringList all;
        for (const auto &movement : movements)
            all.append(QString::fromLatin1(movement.first));
        return all;
    }();
    return names;
}

QString GestureCommands::move(const QString &name)
{
    const qsizetype place = movementNames().indexOf(name);
    if (place < 0)
        return QStringLiteral("there is no movement “%1”").arg(name);
    QString reason;
    const auto listening = QObject::connect(
        &gestures_, &Gestures::refused, [&reason](const GestureRefusal &refusal) { reason = sentence(refusal); });
    gestures_.command({.kind = GestureEvent::Kind::Command, .movement = movements[size_t(place)].second});
    QObject::disconnect(listening);
    return gestures_.isOn() ? QString() : reason;
}

QString GestureCommands::accept()
{
    return end(GestureEvent::Kind::Snap);
}

QString GestureCommands::cancel()
{
    return end(GestureEvent::Kind::Cancel);
}

QString GestureCommands::end(GestureEvent::Kind kind)
{
    if (!gestures_.isOn())
        return QStringLiteral("no window is selected");
    bool isTurnedTo = true;
    const auto listening = QObject::connect(&gestures_, &Gestures::cancelled, [&isTurnedTo] { isTurnedTo = false; });
    gestures_.command({.kind = kind});
    QObject::disconnect(listening);
    if (kind == GestureEvent::Kind::Snap && !isTurnedTo)
        return QStringLiteral("the selected window is being closed");
    return {};
}
