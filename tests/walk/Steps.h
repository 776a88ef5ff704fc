#pragma once

#include "SettingsProgram.h"

#include <QString>
#include <QStringList>

// What every step of the walk needs.

void say(const QString &line);
[[noreturn]] void giveUp(const QString &step);
/// Says the step, or gives up where it did not come about.
void require(bool condition, const QString &step);

/// Runs lumaroo-defaults; what it prints.
QString runDefaults(const QStringList &arguments);
/// Imports settings, the entries of a property list in XML, and announces it as the agent does.
void storeOutside(const QByteArray &entries);

void save(const QImage &picture, const QString &folder, const QString &name);
void quit(SettingsProgram &settings);
