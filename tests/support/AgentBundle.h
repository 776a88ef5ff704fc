#pragma once

#include <QTemporaryDir>
#include <QVariantMap>

/// A pane bundle that holds the built agent, in a folder of its own where it can be changed while it runs.
class AgentBundle
{
public:
    explicit AgentBundle(int version, const QString &name = QStringLiteral("Lumaroo.prefPane"));

    QString panePath() const { return pane_; }
    QString path() const { return pane_ + QStringLiteral("/Contents/Resources/LumarooAgent.app"); }
    QString infoPath() const { return path() + QStringLiteral("/Contents/Info.plist"); }
    QString executable() const { return path() + QStringLiteral("/Contents/Linux/LumarooAgent"); }

    /// As an update does: the Info dictionary, or the program, is replaced by another file.
    void setVersion(const QVariant &version) const;
    void setInfo(const QVariantMap &info) const;
    void replaceInfo(const QByteArray &content) const;
    void replaceExecutable(const QByteArray &content) const;

    static QVariantMap builtInfo();

private:
    QTemporaryDir folder_;
    QString pane_;
};
