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
    WindowOfAnotherProgram(WindowOfAnotherProgram &&) = default;
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

    /// Has it managed, and waits until it is; false when that does not come about.
    bool show();
    /// Has its manager add a state such as "FULLSCREEN", and waits until it has it.
    bool takesState(const QByteArray &state);
    /// Ends it, and waits until the X server has.
    void destroy();

private:
    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> connection_;
    quint32 id_ = 0;
};
