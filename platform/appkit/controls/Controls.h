#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/controls/Outlet.h"
#include "platform/foundation/colors/NSColor.h"

#include <QColor>
#include <QString>
#include <QWidget>

class QWidget;
class QObject;
class QTabWidget;
class NSMatrix;
class NSAttributedString;

// Controls as their owner uses them, by pointer or by outlet. On an absent or destroyed control every function does
// nothing and returns 0, false, null or empty. None of them sends the control's action, except performClick.

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

/// Text and background colours; with a background the text is set to go with it. Black, white and red are names, by
/// which both themes read well: they are drawn as the palette's text, the ground of fields and a red that reads. Any
/// other background is drawn as it is, any other text colour lightened or darkened until it reads.
LM_APPKIT void setTextColor(QObject *control, const QColor &color);
LM_APPKIT void setBackgroundColor(QObject *control, const QColor &color);
/// The colours that were set last, also where others are drawn for them; before that, those that are shown.
LM_APPKIT QColor textColor(const QObject *control);
LM_APPKIT QColor backgroundColor(const QObject *control);

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

/// The text of a text view (NSTextView.h), to the last character.
LM_APPKIT QString string(const QObject *textView);
LM_APPKIT void setString(QObject *textView, const QString &text);

/// Shows that something is going on, with a progress indicator.
LM_APPKIT void startAnimation(QObject *progressIndicator);

/// Replaces the whole contents of a text view.
LM_APPKIT void setAttributedString(QObject *textView, const NSAttributedString &text);

/// The pages of a tab view.
LM_APPKIT int selectedTabIndex(const QObject *tabView);
LM_APPKIT void selectTabViewItemAtIndex(QObject *tabView, int index);
/// The index of the page with an `identifier`, or NSNotFound where the tab view has none such.
inline constexpr qint64 NSNotFound = 0x7fffffffffffffff;
LM_APPKIT qint64 indexOfTabViewItemWithIdentifier(const QObject *tabView, const QString &identifier);
/// Names a page on its tab; an index that no page has names none.
LM_APPKIT void setLabelOfTabViewItemAtIndex(QObject *tabView, qint64 index, const QString &label);

/// A click as the user would make it, the action included; a disabled control ignores it.
LM_APPKIT void performClick(QObject *control);

/// The first view with a tag: depth first, `root` included, not into a matrix, tab pages by index, otherwise children
/// in order. Null without one.
LM_APPKIT QWidget *viewWithTag(QWidget *root, int viewTag);
/// What viewWithTag finds for each of the tags from 0 up to, and without, `count`; in one walk.
LM_APPKIT QWidgetList viewsWithTagsBelow(QWidget *root, int count);
