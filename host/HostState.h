#pragma once

#include <QSize>
#include <QString>

/// What the host remembers from one run to the next, in its own settings domain. Written to disk by flush.
class HostState
{
public:
    static const QString domain;

    /// The window's size, or an invalid one when none was remembered.
    QSize windowSize() const;
    void setWindowSize(QSize size);

    /// The identifier of the pane that was shown last, or empty.
    QString lastPane() const;
    void setLastPane(const QString &identifier);

    /// The identifier of the page of a pane that was seen last, or empty.
    QString lastPage(const QString &pane) const;
    void setLastPage(const QString &pane, const QString &page);

    /// The date of a file that was moved aside, as of when the user was told of it, or empty.
    QString dateOfFileToldOf(const QString &path) const;
    void setDateOfFileToldOf(const QString &path, const QString &date);

    void flush();
};
