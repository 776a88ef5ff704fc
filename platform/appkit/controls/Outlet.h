#pragma once

#include <QPointer>

/// A place in an owner for an object of its interface file: connected by the loader, not owned, null before that and
/// after the object is gone.
///
/// There is no `->`: a control is used through the functions of Controls.h, which do nothing on an absent one.
template <typename T>
class Outlet
{
public:
    Outlet() = default;
    Outlet(T *object) : object_(object) { }

    T *get() const { return object_.data(); }
    /// What the functions of Controls.h take.
    operator QObject *() const { return object_.data(); }
    explicit operator bool() const { return !object_.isNull(); }

private:
    QPointer<T> object_;
};
