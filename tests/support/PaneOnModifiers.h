#pragma once

#include "BellListener.h"
#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnRealStore.h"
#include "SystemCallFaults.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <linux/input-event-codes.h>

inline constexpr int hotKeyPage = 1;
inline constexpr int movementKeys = 5;

inline const QString lastModifierMessage = QStringLiteral("At least one modifier must be set");
inline const QString lastModifierInformation = QStringLiteral(
    "At least one modifier must be set to activate Lumaroo. Please select another modifier before unselecting this "
    "one.");
inline const QString conflictMessage = QStringLiteral("There are conflicts with the marked keys.");
inline const QString conflictInformation =
    QStringLiteral("Please change the marked HotKeys in the programs using them before setting them in Lumaroo.");

/// The hot key page with its modifiers; what changes in the store and on the bus is compared as a whole.
class PaneOnModifiers : public PaneOnRealStore
{
protected:
    ~PaneOnModifiers() override
    {
        systemCalls() = calls_;
        QLocale::setDefault(QLocale::c());
    }

    /// The hot key page with a mask, on screen.
    void showModifiers(int mask)
    {
        store().set(KTXModifierMask, mask);
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), hotKeyPage);
        ASSERT_TRUE(waitUntil([this] { return control("shiftCheckBox")->isVisible(); }));
        rememberStore();
    }
    void giveUpAndRightTheSameKey() const { store().set(KTXUpPref, QVariantMap{{KTXKeycode, QStringLiteral("124")}}); }
    void rememberStore()
    {
        before_ = store().domain();
        bus().clear();
    }
    /// The whole domain is as it was but for the mask, and the agent has been told this often.
    void expectStoredMask(int mask, int notifications)
    {
        QVariantMap expected = before_;
        expected.insert(KTXModifierMask, qlonglong(mask));
        EXPECT_TRUE(isEqualPropertyList(store().domain(), expected));
        EXPECT_EQ(
            bus().notifications(), (QList<BusNotification>(notifications, {KTXLMPrefsChanged, KTXLMAppID, {}, true})));
        before_ = expected;
        bus().clear();
    }
    void expectNothingStored() { expectStoredMask(before_.value(KTXModifierMask).toInt(), 0); }

    QAbstractButton *box(const char *name) { return control<QAbstractButton>(name); }
    void click(const char *name)
    {
        const bool wasOn = box(name)->isChecked();
        clickOn(box(name));
        ASSERT_TRUE(waitUntil([&] { return box(name)->isChecked() != wasOn; })) << name;
    }
    /// Clears a box that comes back on by itself.
    void clickInVain(const char *name)
    {
        QStringList states;
        const auto connection = QObject::connect(box(name), &QAbstractButton::toggled,
            [&states](bool isOn) { states += isOn ? QStringLiteral("on") : QStringLiteral("off"); });
        clickOn(box(name));
        EXPECT_TRUE(waitUntil([&] { return states.size() == 2; }));
        EXPECT_EQ(states, (QStringList{QStringLiteral("off"), QStringLiteral("on")}));
        QObject::disconnect(connection);
    }
    void clickCell(int cellTag) { performClick(cell(cellTag)); }
    QAbstractButton *cell(int cellTag) { return control<NSMatrix>("modifierCheckboxMatrix")->cellWithTag(cellTag); }
    void closeAlert()
    {
        pressKey(KEY_ENTER);
        EXPECT_TRUE(alertGoesBackTo(window()));
    }
    bool isNothingAsked() { return noAlertComesUpOn(window()); }
    QWidget *window() { return pane().mainView()->window(); }
    QString glyphs() { return text("modifiersField"); }
    QList<int> markedRows()
    {
        QList<int> rows;
        for (int row = 0; row < movementKeys; ++row) {
            if (!isHidden(viewWithTag(pane().mainView(), row + movementKeys)))
                rows += row;
        }
        return rows;
    }
    /// What the glyph field shows whenever the settings file is written.
    QStringList glyphsAtWriting;
    void watchWriting()
    {
        observe(&SystemCalls::rename, [this] { glyphsAtWriting += glyphs(); });
    }

    BellListener bell;

private:
    SystemCalls calls_ = systemCalls();
    QVariantMap before_;
};
