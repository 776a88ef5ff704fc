#pragma once

#include <QString>

/// Why a check, a preparation or an installation came to nothing.
struct UpdateProblem
{
    /// Stored and passed between processes as its number: a new one goes to the end.
    enum class Kind {
        None,
        Feed, ///< it cannot be fetched or read
        Download, ///< the archive cannot be fetched
        Storage, ///< a folder or file cannot be written: a full disk, mostly
        NoKey, ///< the installed bundle does not say whose signature counts
        Signature, ///< the archive is not the one that the maker has signed
        Archive, ///< it holds what is not unpacked, is damaged, or is gone
        Contents, ///< what is in it is not what the feed said, or no update of what is installed
        NotWritable, ///< the bundle is not this user's to change: it was installed for everybody
        Superuser, ///< updates are not installed as root
        Busy, ///< another process is about to update the bundle
        Exchange, ///< the last step: the two bundles cannot change places
    };
    Kind kind = Kind::None;
    QString detail; ///< in English, for the log and for who wants to know more

    bool isNone() const { return kind == Kind::None; }
    bool operator==(const UpdateProblem &) const = default;
};

/// Whether an update that waits will not get better by waiting; it is removed.
constexpr bool isForGood(UpdateProblem::Kind kind)
{
    using Kind = UpdateProblem::Kind;
    return kind == Kind::Signature || kind == Kind::Archive || kind == Kind::Contents || kind == Kind::NoKey;
}
