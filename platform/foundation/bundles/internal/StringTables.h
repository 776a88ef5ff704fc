#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QTranslator>
#include <map>
#include <memory>

/// The languages of a bundle's Resources folder, and the texts of their string tables.
class StringTables
{
public:
    explicit StringTables(QString resourcePath);

    /// Of these languages the ones to use, best first.
    static QStringList preferredOf(const QStringList &languages);

    /// The languages that have a folder, sorted.
    const QStringList &languages() const { return languages_; }
    /// Of these the ones to use, best first. English is what the keys are written in, so nothing comes after it.
    const QStringList &preferredLanguages() const { return preferredLanguages_; }
    QString languageFolder(const QString &language) const;

    /// The text for a key in the first preferred language that has one that is not empty; empty when none has.
    QString text(const QString &table, const QString &key);

private:
    /// A loaded table; without a translator when there is no such file or it cannot be read.
    struct Table
    {
        QByteArray content; // the translator points into it, and must not depend on a file that may be exchanged
        std::unique_ptr<QTranslator> translator;
    };
    const Table &table(const QString &language, const QString &name);
    void load(Table &table, const QString &path) const;

    QString resourcePath_;
    QStringList languages_;
    QStringList preferredLanguages_;
    std::map<QString, Table> tables_; // by path
};
