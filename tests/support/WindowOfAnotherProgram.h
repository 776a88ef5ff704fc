#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>
#include <QString>
#include <memory>

struct xcb_connection_t;

/// A window of another program that says of itself whatever the test wants, on a connection of its own. Gone with the
/// object.
class WindowOfAnotherProgram
{
public:
    /// Not shown yet. The window manager is asked to leave it where it is.
    explicit WindowOfAnotherProgram(const QString &title = {}, const QRect &place = {200, 150, 300, 200});
    /// One more of the same program: a server takes some 250 programs.
    WindowOfAnotherProgram(const WindowOfAnotherProgram &sibling, const QString &title, const QRect &place);
    WindowOfAnotherProgram(const WindowOfAnotherProgram &) = delete;
    /// Waits until the window manager has seen it go: its number may be the next one's.
    ~WindowOfAnotherProgram();

    quint32 id() const { return id_; }

    // Properties, in any form.
    WindowOfAnotherProgram &set(const char *property, const char *type, const QList<quint32> &values);
    WindowOfAnotherProgram &setText(const char *property, const char *type, const QByteArray &text);
    /// A list of names, as of types and states.
    WindowOfAnotherProgram &setNames(const char *property, const QList<const char *> &names);
    WindowOfAnotherProgram &setBytes(const char *property, const char *type, int format, const QByteArray &bytes);
    WindowOfAnotherProgram &removeProperty(const char *property);
    /// As programs' menus, dialogs and the like are told apart: "DIALOG".
    WindowOfAnotherProgram &setType(const QByteArray &type);
    WindowOfAnotherProgram &setClass(const QByteArray &instance, const QByteArray &name);
    /// It draws its frame by itself.
    WindowOfAnotherProgram &setUndecorated();
    /// What it is filled with, as 0xff00ff.
    WindowOfAnotherProgram &setColor(quint32 color);

    /// Asks for it to be shown, and does not wait.
    void map();
    /// Has it managed, and waits until it is, and on screen if it is on this desktop; false when that does not come
    /// about.
    bool show();
    /// Has its user turn to it, and waits until it has the focus and the manager has heard of all before.
    bool takesFocus() const;
    /// Has its manager add one or two states such as "FULLSCREEN", and waits until it has them.
    bool takesState(const QByteArray &state, const QByteArray &other = {});
    /// Has its manager bring it to a desktop, or to all (0xffffffff), and waits until it is there.
    bool takesDesktop(quint32 desktop);
    /// Ends it, and waits until the X server has.
    void destroy();

private:
    WindowOfAnotherProgram(std::shared_ptr<xcb_connection_t> connection, const QString &title, const QRect &place);
    bool isOnScreen() const;

    std::shared_ptr<xcb_connection_t> connection_;
    quint32 id_ = 0;
};
