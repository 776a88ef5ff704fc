#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>
#include <QVariantMap>

/// A bundle folder made for a test, removed with the object.
class TestBundle
{
public:
    /// `name` with its suffix, such as "Sample.prefPane".
    explicit TestBundle(const QString &name);

    QString path() const { return path_; }
    QString resourcePath() const { return path_ + QStringLiteral("/Contents/Resources"); }

    void writeInfo(const QVariantMap &info) const;
    /// Writes a file below the bundle, folders included.
    void writeFile(const QString &relativePath, const QByteArray &content) const;

    /// Writes a program below the bundle: a shell script of this text, or a copy of a program.
    void writeScript(const QString &relativePath, const QByteArray &text) const;
    void copyProgram(const QString &relativePath, const QString &program) const;

    /// Writes the string table <language>.lproj/<table> with these texts and their translations.
    void writeStringTable(const QString &language, const QString &table, const QMap<QString, QString> &texts) const;

private:
    QTemporaryDir folder_;
    QString path_;
};
