#include "PaneBundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const QByteArray interfaceFile = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>TestView</class>
 <widget class="QWidget" name="testView">
  <layout class="QVBoxLayout">
   <item><widget class="QLineEdit" name="field"/></item>
   <item><widget class="QPushButton" name="yes"><property name="text"><string>Leave</string></property></widget></item>
   <item><widget class="QPushButton" name="no"><property name="text"><string>Stay</string></property></widget></item>
   <item><widget class="QPushButton" name="alert"><property name="text"><string>Warn</string></property></widget></item>
  </layout>
 </widget>
</ui>
)";

} // namespace

PaneBundle::PaneBundle(const QString &name, const QVariantMap &info) : bundle_(name + QStringLiteral(".prefPane"))
{
    QVariantMap all{{QStringLiteral("CFBundleIdentifier"), QString(QStringLiteral("test.") + name)},
        {QStringLiteral("CFBundleName"), name}, {QStringLiteral("CFBundleExecutable"), QStringLiteral("TestPane")},
        {QStringLiteral("CFBundleVersion"), QStringLiteral("1")}};
    all.insert(info);
    bundle_.writeInfo(all);
    bundle_.writeFile(QStringLiteral("Contents/Resources/Main.ui"), interfaceFile);
    QDir().mkpath(QFileInfo(executable()).path());
    const QString plugIn = qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/tests/panes/TestPane.so");
    if (!QFile::copy(plugIn, executable()))
        qFatal("cannot copy %s", qPrintable(plugIn));
}

QString PaneBundle::folder() const
{
    return QFileInfo(path()).path();
}

QString PaneBundle::identifier() const
{
    return QStringLiteral("test.") + QFileInfo(path()).completeBaseName();
}

QString PaneBundle::executable() const
{
    return path() + QStringLiteral("/Contents/Linux/TestPane");
}

void PaneBundle::wish(const QString &call, const QString &what) const
{
    bundle_.writeFile(QStringLiteral("wishes/") + call, what.toUtf8());
}

QStringList PaneBundle::calls() const
{
    return linesOf(path() + QStringLiteral("/calls"));
}

QStringList PaneBundle::takeCalls()
{
    const QStringList fresh = calls().mid(taken_);
    taken_ += fresh.size();
    return fresh;
}

QStringList linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}
