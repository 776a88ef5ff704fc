#include "PaneOnHotKeyPage.h"

#include "KeyPress.h"
#include "Wait.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "platform/foundation/propertylists/PropertyList.h"

namespace {

constexpr int hotKeyPage = 1;
constexpr int movementKeys = 5;
constexpr int codeOfNoKey = 1000;

} // namespace

KeyReleases::KeyReleases()
{
    qApp->installEventFilter(this);
}

bool KeyReleases::eventFilter(QObject *object, QEvent *event)
{
    if (object->isWindowType() && event->type() == QEvent::KeyRelease) {
        ++withRepeats_;
        atLast_ += static_cast<QKeyEvent *>(event)->isAutoRepeat() ? 0 : 1;
    }
    return false;
}

PaneOnHotKeyPage::~PaneOnHotKeyPage()
{
    QLocale::setDefault(QLocale::c());
}

void PaneOnHotKeyPage::storeKey(int row, int keyCode) const
{
    store().set(KTXActionKeys().at(size_t(row)).preferenceName, QVariantMap{{KTXKeycode, QString::number(keyCode)}});
}

void PaneOnHotKeyPage::storeNoKeys() const
{
    for (int row = 0; row < KTXActionKeyCount; ++row)
        storeKey(row, codeOfNoKey + row);
}

void PaneOnHotKeyPage::showPage()
{
    showPane();
    selectTabViewItemAtIndex(control("tabbedView"), hotKeyPage);
    ASSERT_TRUE(waitUntil([this] { return field(0)->isVisible() && hasKeyboard(window()); }));
    rememberStore();
}

void PaneOnHotKeyPage::focus(int row)
{
    field(row)->setFocus();
    ASSERT_EQ(focusedRow(), row);
}

int PaneOnHotKeyPage::focusedRow()
{
    const QWidget *focused = QApplication::focusWidget();
    return qobject_cast<const QLineEdit *>(focused) ? tag(focused) : -1;
}

QList<int> PaneOnHotKeyPage::markedRows()
{
    QList<int> rows;
    for (int row = 0; row < KTXActionKeyCount; ++row) {
        if (!isHidden(viewWithTag(pane().mainView(), row + movementKeys)))
            rows += row;
    }
    return rows;
}

void PaneOnHotKeyPage::press(int evdevCode, const QList<int> &held)
{
    const KeyReleases releases;
    pressKey(evdevCode, held);
    EXPECT_TRUE(waitUntil([&] { return releases.atLast() == held.size() + 1; }))
        << evdevCode << ": " << releases.atLast() << " releases";
}

void PaneOnHotKeyPage::pressIn(int row, int evdevCode, const QList<int> &held)
{
    focus(row);
    press(evdevCode, held);
}

void PaneOnHotKeyPage::rememberStore()
{
    before_ = store().domain();
    bus().clear();
}

void PaneOnHotKeyPage::expectTaken(int row, int keyCode, const QString &label)
{
    before_.insert(
        pane().keyCodePrefNames().at(row), QVariantMap{{QStringLiteral("keycode"), QString::number(keyCode)}});
    EXPECT_TRUE(isEqualPropertyList(store().domain(), before_)) << keyCode;
    EXPECT_EQ(bus().notifications(), (QList<BusNotification>{{KTXLMPrefsChanged, KTXLMAppID, {}, true}})) << keyCode;
    EXPECT_EQ(this->keyCode(row), keyCode);
    EXPECT_EQ(shown(row), label) << keyCode;
    rememberStore();
}

void PaneOnHotKeyPage::expectNothingStored()
{
    EXPECT_TRUE(isEqualPropertyList(store().domain(), before_));
    EXPECT_TRUE(bus().notifications().isEmpty());
    rememberStore();
}
