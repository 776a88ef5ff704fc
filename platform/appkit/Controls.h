#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/Outlet.h"
#include "platform/foundation/NSColor.h"

#include <QColor>
#include <QString>

class QWidget;
class QObject;
class QTabWidget;
class NSMatrix;
class NSAttributedString;

// Controls as their owner uses them. On an absent or destroyed control every function does nothing and returns 0,
// false, null or empty. None of them sends the control's action, except performClick.

enum NSControlState { NSMixedState = -1, NSOffState = 0, NSOnState = 1 };

/// The tag of a control, a matrix cell or a help button's action; -1 without one.
LM_APPKIT int tag(const QObject *control);

/// The state of a two- or three-state button (check box, switch, matrix cell).
LM_APPKIT int state(const QObject *button);
LM_APPKIT void setState(QObject *button, int state);

/// The text of a field, label or button.
LM_APPKIT QString stringValue(const QObject *control);
LM_APPKIT void setStringValue(QObject *control, const QString &text);

/// The value of a slider, in the units the interface file gives it.
LM_APPKIT float floatValue(const QObject *slider);
LM_APPKIT void setFloatValue(QObject *slider, float value);

LM_APPKIT bool isEnabled(const QObject *control);
LM_APPKIT void setEnabled(QObject *control, bool enabled);
LM_APPKIT bool isHidden(const QObject *view);
LM_APPKIT void setHidden(QObject *view, bool hidden);

/// Text and background colours; where one is named the other is set to go with it, so that both themes read well.
LM_APPKIT void setTextColor(QObject *control, const QColor &color);
LM_APPKIT void setBackgroundColor(QObject *control, const QColor &color);

/// The item of a pop-up with a tag; a tag that no item has leaves the selection as it is. Returns whether an item was
/// selected.
LM_APPKIT bool selectItemWithTag(QObject *popUp, int itemTag);
/// The tag of a pop-up's selected item, -1 without one.
LM_APPKIT int selectedItemTag(const QObject *popUp);
/// Whether a control has items to select.
LM_APPKIT bool isPopUp(const QObject *control);

/// The colour of a colour well.
LM_APPKIT NSColorRef color(const QObject *colorWell);
LM_APPKIT void setColor(QObject *colorWell, const NSColorRef &color);

/// Replaces the whole contents of a text view.
LM_APPKIT void setAttributedString(QObject *textView, const NSAttributedString &text);

/// The pages of a tab view.
LM_APPKIT int selectedTabIndex(const QObject *tabView);
LM_APPKIT void selectTabViewItemAtIndex(QObject *tabView, int index);
/// The index of the page with an `identifier`, or NSNotFound.
inline constexpr qint64 NSNotFound = 0x7fffffffffffffff;
LM_APPKIT qint64 indexOfTabViewItemWithIdentifier(const QObject *tabView, const QString &identifier);

/// A click as the user would make it, the action included; a disabled control ignores it.
LM_APPKIT void performClick(QObject *control);

/// The first view with a tag: depth first, `root` included, not into a matrix, tab pages by index, otherwise children
/// in order. Null without one.
LM_APPKIT QWidget *viewWithTag(QWidget *root, int viewTag);

template <typename T>
int tag(const Outlet<T> &outlet)
{
    return tag(outlet.get());
}
template <typename T>
int state(const Outlet<T> &outlet)
{
    return state(outlet.get());
}
template <typename T>
void setState(const Outlet<T> &outlet, int value)
{
    setState(outlet.get(), value);
}
template <typename T>
QString stringValue(const Outlet<T> &outlet)
{
    return stringValue(outlet.get());
}
template <typename T>
void setStringValue(const Outlet<T> &outlet, const QString &text)
{
    setStringValue(outlet.get(), text);
}
template <typename T>
float floatValue(const Outlet<T> &outlet)
{
    return floatValue(outlet.get());
}
template <typename T>
void setFloatValue(const Outlet<T> &outlet, float value)
{
    setFloatValue(outlet.get(), value);
}
template <typename T>
bool isEnabled(const Outlet<T> &outlet)
{
    return isEnabled(outlet.get());
}
template <typename T>
void setEnabled(const Outlet<T> &outlet, bool enabled)
{
    setEnabled(outlet.get(), enabled);
}
template <typename T>
void setHidden(const Outlet<T> &outlet, bool hidden)
{
    setHidden(outlet.get(), hidden);
}
template <typename T>
bool isHidden(const Outlet<T> &outlet)
{
    return isHidden(outlet.get());
}
template <typename T>
void setBackgroundColor(const Outlet<T> &outlet, const QColor &value)
{
    setBackgroundColor(outlet.get(), value);
}
template <typename T>
void performClick(const Outlet<T> &outlet)
{
    performClick(outlet.get());
}
template <typename T>
void setTextColor(const Outlet<T> &outlet, const QColor &value)
{
    setTextColor(outlet.get(), value);
}
template <typename T>
bool selectItemWithTag(const Outlet<T> &outlet, int itemTag)
{
    return selectItemWithTag(outlet.get(), itemTag);
}
template <typename T>
int selectedItemTag(const Outlet<T> &outlet)
{
    return selectedItemTag(outlet.get());
}
template <typename T>
NSColorRef color(const Outlet<T> &outlet)
{
    return color(outlet.get());
}
template <typename T>
void setColor(const Outlet<T> &outlet, const NSColorRef &value)
{
    setColor(outlet.get(), value);
}
template <typename T>
void setAttributedString(const Outlet<T> &outlet, const NSAttributedString &text)
{
    setAttributedString(outlet.get(), text);
}
template <typename T>
int selectedTabIndex(const Outlet<T> &outlet)
{
    return selectedTabIndex(outlet.get());
}
template <typename T>
void selectTabViewItemAtIndex(const Outlet<T> &outlet, int index)
{
    selectTabViewItemAtIndex(outlet.get(), index);
}
template <typename T>
qint64 indexOfTabViewItemWithIdentifier(const Outlet<T> &outlet, const QString &identifier)
{
    return indexOfTabViewItemWithIdentifier(outlet.get(), identifier);
}
