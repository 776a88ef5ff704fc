// Which dialogs count for the window that is turned to, where the test itself says which one is active.

#include "WindowsOnDesktop.h"
#include "platform/foundation/system/X11.h"

namespace {

class ModalDialogs : public WindowsOnDesktop
{
protected:
    ModalDialogs()
    {
        QObject::connect(system.get(), &WindowSystem::activated, [this] { isActivated_ = true; });
        QObject::connect(system.get(), &WindowSystem::notActivated, [this] { isRefused_ = true; });
        setGroup(window, leader.id());
        setGroup(dialog, leader.id());
        setModal(dialog);
    }
    ~ModalDialogs() override { removeFromRoot("_NET_ACTIVE_WINDOW"); }

    /// Whether the window counts as the active one while the dialog is.
    bool counts()
    {
        setOnRoot("_NET_ACTIVE_WINDOW", "WINDOW", {dialog.id()});
        isActivated_ = isRefused_ = false;
        system->activate(window.id(), 1);
        EXPECT_TRUE(waitUntil([this] { return isActivated_ || isRefused_; }));
        return isActivated_;
    }
    static void setModal(WindowOfAnotherProgram &window)
    {
        window.setNames("_NET_WM_STATE", {"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_MODAL"});
    }
    static void setParent(WindowOfAnotherProgram &window, quint32 parent)
    {
        window.set("WM_TRANSIENT_FOR", "WINDOW", {parent});
    }
    static void setGroup(WindowOfAnotherProgram &window, quint32 leader)
    {
        constexpr quint32 tellsGroup = 64;
        window.set("WM_HINTS", "WM_HINTS", {tellsGroup, 0, 0, 0, 0, 0, 0, 0, leader});
    }
    static quint32 root() { return xcb_setup_roots_iterator(xcb_get_setup(connectToXServer().get())).data->root; }

    WindowOfAnotherProgram window{"Window"}, sibling{"Sibling"}, dialog{"Dialog"}, leader{"Leader"};

private:
    bool isActivated_ = false, isRefused_ = false;
};

} // namespace

TEST_F(ModalDialogs, countForTheirParents)
{
    dialog.removeProperty("WM_HINTS");
    setParent(dialog, window.id());
    EXPECT_TRUE(counts());
    setParent(dialog, sibling.id());
    EXPECT_FALSE(counts());
    setParent(sibling, window.id());
    EXPECT_TRUE(counts()) << "a dialog's dialog";
}

TEST_F(ModalDialogs, countForTheirGroupWithoutAParent)
{
    EXPECT_TRUE(counts());
    setParent(dialog, root());
    EXPECT_TRUE(counts());
    setGroup(dialog, window.id());
    EXPECT_TRUE(counts()) << "the window leads it itself";
    setGroup(dialog, sibling.id());
    EXPECT_FALSE(counts()) << "another group";
}

TEST_F(ModalDialogs, countForNobodyWithoutAGroup)
{
    dialog.removeProperty("WM_HINTS");
    window.removeProperty("WM_HINTS");
    EXPECT_FALSE(counts());
}

TEST_F(ModalDialogs, countForTheirParentAloneWhereItIsAnotherWindowOfTheGroup)
{
    setGroup(sibling, leader.id());
    setParent(dialog, sibling.id());
    EXPECT_FALSE(counts());
    setModal(sibling);
    EXPECT_TRUE(counts()) << "which is a modal dialog for the group";
}

TEST_F(ModalDialogs, countOnlyAsLongAsTheyAreModal)
{
    dialog.removeProperty("_NET_WM_STATE");
    EXPECT_FALSE(counts());
    setParent(dialog, window.id());
    EXPECT_FALSE(counts());
}

TEST_F(ModalDialogs, thatAreEachOthersParentsCountForNobodyElse)
{
    setParent(dialog, sibling.id());
    setParent(sibling, dialog.id());
    EXPECT_FALSE(counts());
}
