#pragma once

#include "platform/foundation/OSStatus.h"

#include <QList>
#include <QObject>
#include <QVariantMap>
#include <memory>

class KTXHotKey;

/// One action's key, for people: what it is, and whether it works.
struct AgentHotKey
{
    QString action; ///< the name under which its key is stored
    quint32 keyCode = 0;
    QString combination; ///< glyphs of the modifiers and the key's name
    QString refusal; ///< why it is not registered; empty where it is
};

/// The keys of the agent's actions, as hot keys of the system.
class AgentHotKeys : public QObject
{
    Q_OBJECT

public:
    AgentHotKeys();
    ~AgentHotKeys() override;

    /// Follows the settings: gives up what has changed, then registers what is not registered. A key that was refused
    /// is tried again. Each new refusal is logged.
    void apply(const QVariantMap &settings);
    /// Gives all of them up, until they are applied again.
    void release();

    /// In the order of the actions.
    QList<AgentHotKey> hotKeys() const;

Q_SIGNALS:
    void pressed(const QString &action, const QString &combination);

private:
    struct ActionKey
    {
        QString action;
        std::shared_ptr<KTXHotKey> hotKey;
        OSStatus status = 0; ///< of the last attempt
    };

    void change(ActionKey &key, quint32 keyCode, quint32 modifiers);
    void registerKey(ActionKey &key);
    void handlePress(const QVariant &hotKey);
    void handleLoss();
    bool isDuplicate(const ActionKey &key) const;
    QString refusal(const ActionKey &key) const;

    QList<ActionKey> keys_;
    bool saidNoModifiers_ = false;
};
