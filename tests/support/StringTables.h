#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

/// The languages beside English that the program speaks: those that any of its parts has string tables in.
std::vector<std::string> translations();
/// English and those.
std::vector<std::string> languagesOfTheProgram();

/// A string table as its source has it.
struct StringTable
{
    QString language; ///< that it says of itself
    QString name; ///< likewise
    QMap<QString, QString> texts; ///< with their translations
    QStringList unfinished; ///< those that are not released
    bool hasFormsOfNumbers = false;
};

/// The parts of the program that have tables: the folders of `resources` with one for a language.
QStringList partsWithStringTables();
/// The names of a part's tables in a language.
QStringList stringTableNames(const QString &part, const QString &language);
StringTable stringTable(const QString &part, const QString &language, const QString &name);

/// The texts of an interface file of the pane that a user sees.
QStringList textsOfInterfaceFile(const QString &name);
