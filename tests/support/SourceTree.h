#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <map>

/// One #include of a file of the tree.
struct Inclusion
{
    QString file; ///< that includes, below the root
    int line;
    QString included; ///< the file, below the root; empty for what is not of this tree
};

/// The C++ sources below a folder, as text. Build folders and hidden ones are left out.
class SourceTree
{
public:
    explicit SourceTree(const QString &root);

    QStringList files() const;
    /// The lines of a file, without their ends.
    const QStringList &lines(const QString &file) const { return lines_.at(file); }
    QList<Inclusion> inclusions() const;

private:
    QString resolved(const QString &including, const QString &written) const;

    std::map<QString, QStringList> lines_;
};
