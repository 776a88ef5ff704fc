#include "agent/gestures/GestureRefusal.h"

#include "agent/gestures/GestureView.h"

QString sentence(const GestureRefusal &refusal)
{
    switch (refusal.kind) {
    case GestureRefusal::Kind::NoWindow:
        return QStringLiteral("there is no window to select");
    case GestureRefusal::Kind::Unreadable:
        return clause(refusal.failure);
    case GestureRefusal::Kind::ScreenTaken:
        return QStringLiteral("another program has the keyboard and the mouse, as one that locks the screen");
    case GestureRefusal::Kind::KeyboardKept:
        return QStringLiteral("another program keeps the keyboard; only the combinations work");
    case GestureRefusal::Kind::NotActivated:
        return QStringLiteral("%1 did not come to the front").arg(quoted(refusal.title));
    case GestureRefusal::Kind::Closed:
        return QStringLiteral("%1 has been closed meanwhile").arg(quoted(refusal.title));
    }
    return {};
}
