// Controls of an interface file that show what is stored.

#include "PrivateSettings.h"
#include "TestInterface.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/NSMatrix.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

namespace {

QByteArray text(const char *name, const QByteArray &value)
{
    return QByteArray("<property name=\"") + name + R"(" stdset="0"><string notr="true">)" + value
        + "</string></property>";
}

QByteArray values(const QList<QByteArray> &texts)
{
    QByteArray list;
    for (const QByteArray &one : texts)
        list += "<string>" + one + "</string>";
    return R"(<property name="bindingValues" stdset="0"><stringlist notr="true">)" + list + "</stringlist></property>";
}

const QByteArray action = text("action", "act:");
const QByteArray toKey = text("binding", "com.example.test/key");
const QByteArray checked = R"(<property name="checked"><bool>true</bool></property>)";
const QByteArray onceOnly = R"(<property name="bindingOnceOnly" stdset="0"><bool>true</bool></property>)";

QByteArray checkBox(const QByteArray &properties)
{
    return R"(<widget class="QCheckBox" name="box">)" + properties + "</widget>";
}

/// With the items A, B and C, of which B is selected.
QByteArray popUp(const QByteArray &properties)
{
    QByteArray items;
    for (const char *item : {"A", "B", "C"})
        items += QByteArray("<item><property name=\"text\"><string>") + item + "</string></property></item>";
    return R"(<widget class="QComboBox" name="popUp"><property name="currentIndex"><number>1</number></property>)"
        + properties + items + "</widget>";
}

/// With the cells 0 and 1, of which 1 is selected.
QByteArray matrix(const QByteArray &properties)
{
    const auto cell = [](int number, const QByteArray &state) {
        const QByteArray digits = QByteArray::number(number);
        return R"(<item><widget class="QRadioButton" name="cell)" + digits + "\">"
            + R"(<property name="tag" stdset="0"><number>)" + digits + "</number></property>" + state
            + "</widget></item>";
    };
    return R"(<widget class="NSMatrix" name="matrix">)" + properties + R"(<layout class="QVBoxLayout">)" + cell(0, {})
        + cell(1, checked) + "</layout></widget>";
}

} // namespace

class InterfaceBindings : public PrivateSettings
{
protected:
    /// As another process would, and as this one notices.
    void storeOutside(const QVariant &value) const
    {
        store(value.isValid() ? QVariantMap{{"key", value}} : QVariantMap());
        CFPreferencesCopyAppValue("key", testDomain);
    }
    static void set(const QVariant &value) { CFPreferencesSetAppValue("key", value, testDomain); }
    int boxState() const { return state(interface.find("box")); }
    QString shownItem() const { return interface.find<QComboBox>("popUp")->currentText(); }
    int shownCell() const { return tag(interface.find<NSMatrix>("matrix")->selectedCell()); }

    TestInterface interface;
};

TEST_F(InterfaceBindings, aCheckBoxShowsWhatIsStoredWhenLoaded)
{
    storeOutside(true);
    interface.load(checkBox(toKey));
    EXPECT_EQ(boxState(), NSOnState);
    storeOutside(false);
    interface.load(checkBox(toKey + checked));
    EXPECT_EQ(boxState(), NSOffState);
}

TEST_F(InterfaceBindings, aCheckBoxFollowsWhatIsSetHereAndElsewhere)
{
    interface.load(checkBox(toKey));
    EXPECT_EQ(boxState(), NSOffState);
    set(true);
    EXPECT_EQ(boxState(), NSOnState);
    set(false);
    EXPECT_EQ(boxState(), NSOffState);
    CFPreferencesAppSynchronize(testDomain);
    storeOutside(true);
    EXPECT_EQ(boxState(), NSOnState);
}

TEST_F(InterfaceBindings, aCheckBoxTakesAValueAsItComes)
{
    interface.load(checkBox(toKey));
    for (const QVariant &truth : {QVariant(qlonglong(7)), QVariant("YES"), QVariant(0.5)}) {
        set(truth);
        EXPECT_EQ(boxState(), NSOnState) << truth.typeName();
        set(QByteArray("1"));
        EXPECT_EQ(boxState(), NSOffState);
    }
}

TEST_F(InterfaceBindings, withNothingStoredAControlHasTheStateOfTheFile)
{
    interface.load(
        checkBox(toKey + checked) + popUp(toKey + values({"a", "b", "c"})) + matrix(toKey + values({"x", "y"})));
    EXPECT_EQ(boxState(), NSOnState);
    EXPECT_EQ(shownItem(), "B");
    EXPECT_EQ(shownCell(), 1);
    set("a");
    EXPECT_EQ(shownItem(), "A");
    set("x");
    EXPECT_EQ(shownCell(), 0);
    EXPECT_EQ(boxState(), NSOffState);
    set(QVariant());
    EXPECT_EQ(boxState(), NSOnState);
    EXPECT_EQ(shownItem(), "B");
    EXPECT_EQ(shownCell(), 1);
}

TEST_F(InterfaceBindings, aPopUpShowsTheItemOfTheValue)
{
    storeOutside("c");
    interface.load(popUp(toKey + values({"a", "b", "c"})));
    EXPECT_EQ(shownItem(), "C");
    set("a");
    EXPECT_EQ(shownItem(), "A");
    set("of no item");
    EXPECT_EQ(shownItem(), "B") << "the state of the file";
}

TEST_F(InterfaceBindings, anItemsValueCanBeABoolean)
{
    interface.load(popUp(toKey + values({"false", "nothing", "true"})));
    set(true);
    EXPECT_EQ(shownItem(), "C");
    set(false);
    EXPECT_EQ(shownItem(), "A");
    set(qlonglong(1));
    EXPECT_EQ(shownItem(), "C");
}

TEST_F(InterfaceBindings, aMatrixSelectsTheCellOfTheValue)
{
    storeOutside(true);
    interface.load(matrix(toKey + values({"true", "false"})));
    auto *view = interface.find<NSMatrix>("matrix");
    EXPECT_EQ(shownCell(), 0);
    EXPECT_EQ(state(view->cellWithTag(0)), NSOnState);
    EXPECT_EQ(state(view->cellWithTag(1)), NSOffState);
    set(false);
    EXPECT_EQ(shownCell(), 1);
    EXPECT_EQ(state(view->cellWithTag(0)), NSOffState);
    performClick(view->cellWithTag(1));
    set(true);
    EXPECT_EQ(shownCell(), 0) << "also after a click on the other";
    EXPECT_EQ(state(view->cellWithTag(1)), NSOffState);
}

TEST_F(InterfaceBindings, aControlIsEnabledByWhatIsStored)
{
    interface.load(checkBox(text("enabledBinding", "com.example.test/key")));
    EXPECT_TRUE(isEnabled(interface.find("box"))) << "as in the file";
    set(false);
    EXPECT_FALSE(isEnabled(interface.find("box")));
    set(true);
    EXPECT_TRUE(isEnabled(interface.find("box")));
}

TEST_F(InterfaceBindings, anExclamationMarkTurnsAValueRound)
{
    storeOutside(true);
    interface.load(
        checkBox(text("enabledBinding", "!com.example.test/key") + text("binding", "!com.example.test/key")));
    EXPECT_FALSE(isEnabled(interface.find("box")));
    EXPECT_EQ(boxState(), NSOffState);
    set(false);
    EXPECT_TRUE(isEnabled(interface.find("box")));
    EXPECT_EQ(boxState(), NSOnState);
}

TEST_F(InterfaceBindings, aControlBoundOnceOnlyShowsWhatIsStoredWhenLoadedAndStaysSo)
{
    storeOutside("c");
    interface.load(popUp(toKey + values({"a", "b", "c"}) + onceOnly));
    EXPECT_EQ(shownItem(), "C");
    set("a");
    EXPECT_EQ(shownItem(), "C");
}

TEST_F(InterfaceBindings, sendNoActionAndWriteNothing)
{
    const QVariantMap before{{"key", "YES"}};
    store(before);
    interface.load(checkBox(toKey + action) + popUp(toKey + values({"true", "b", "false"}) + action)
        + matrix(toKey + values({"true", "false"}) + action));
    for (const QVariant &value : {QVariant(true), QVariant(), QVariant(false), QVariant("YES")})
        set(value);
    EXPECT_EQ(interface.sent, QStringList());
    EXPECT_TRUE(isEqualPropertyList(stored(), before));
    EXPECT_TRUE(isEqualPropertyList(wholeDomain(), before));
}

TEST_F(InterfaceBindings, endWithTheirControl)
{
    interface.load(checkBox(toKey));
    delete interface.find("box");
    set(true);
    delete interface.root;
    set(false);
}

TEST_F(InterfaceBindings, thatCannotBeAreEachOneLoggedLine)
{
    storeOutside("a");
    interface.load(checkBox(text("binding", "key") + text("enabledBinding", "!/key"))
        + popUp(toKey + values({"b", "a"})) + R"(<widget class="QLabel" name="label">)" + toKey + "</widget>");
    EXPECT_EQ(log.lines(),
        QStringList({"lumaroo: Test.ui: box: key names no setting", "lumaroo: Test.ui: box: !/key names no setting",
            "lumaroo: Test.ui: popUp: 2 values for 3 items", "lumaroo: Test.ui: label: a QLabel shows no setting"}));
    EXPECT_EQ(shownItem(), "B");
    log.clear();
}
