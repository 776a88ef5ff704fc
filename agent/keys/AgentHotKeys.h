#pragma once

#include "platform/foundation/OSStatus.h"
#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QList>
#include <QObject>
#include <QVariantMap>
#include <memory>

class KTXHotKey;

/// One action's key, for people: what it is, and whether it works.
struct AgentHotKey
{
    QString action; ///< the name under which its key is stored
    VirtualKeyCode keyCode;
    QString combination; ///< glyphs of the modifiers and the key's name
    QString refusal; ///< why it is not registered; empty where it is
    QString cause; ///< the same for programs, by KTXAgentAnswer.h
};

/// The keys of the agent's actions, as hot keys of the system. All hot keys of the process are these.
class AgentHotKeys : public QObject
{
    Q_OBJECT

public:
    AgentHotKeys();
    ~AgentHotKeys() override;

    /// Follows the settings: gives up what has changed, then registers what is not registered. A key that was refused
    /// is tried again, and so it is when the keyboard changes; of two actions with the same key the first has it. Each
    /// new refusal is logged.
    void apply(const QVariantMap &settings);
    /// Gives all of them up, until they are applied again.
    void release();

    /// In the order of the actions.
    QList<AgentHotKey> hotKeys() const;
    bool isAnyRefused() const;
    /// The combinations that are to move, but belong to other programs.
    QStringList movementKeysHeldByOthers() const;
    /// Masks of modifiers with which nobody holds a movement key, best first. Looked for while another program holds
    /// one of those with the modifiers that are set; empty otherwise.
    const QList<quint32> &freeModifiers() const { return freeModifiers_; }

Q_SIGNALS:
    /// Told before the keyboard is let go, so that nothing has to wait for that: it is free when all have heard of it.
    /// The time is the display's, in milliseconds.
    void pressed(const QString &action, const QString &combination, quint32 time);
    /// What hotKeys() and freeModifiers() tell may be otherwise from now on.
    void changed();

private:
    /// Why a key is not registered.
    enum class Refusal {
        None,
        NoModifiers,
        DoublePressAlone,
        OtherAction,
        Typing,
        OtherProgram,
        NoKey,
        NoHotKeys,
        GivenUp
    };
    struct ActionKey
    {
        QString action;
        std::shared_ptr<KTXHotKey> hotKey;
        Refusal refusal = Refusal::GivenUp; ///< as of the last attempt
    };

    void give(ActionKey &key, VirtualKeyCode keyCode, quint32 modifiers);
    void registerKeys();
    void registerAll();
    void registerKey(ActionKey &key);
    void lookForFreeModifiers();
    Refusal registration(const ActionKey &key) const;
    bool isAnotherActions(const ActionKey &key) const;
    void handlePress(const QVariant &hotKey);
    void handleLoss();
    static bool isDecidedHere(Refusal refusal);
    static bool isOfAllKeys(Refusal refusal);
    static Refusal refusalOf(OSStatus status);
    static Refusal refusalNow(const ActionKey &key);
    static QString text(Refusal refusal);
    static QString word(Refusal refusal);

    QList<ActionKey> keys_;
    QList<quint32> freeModifiers_;
    bool areWanted_ = false; ///< they have been applied, and not been released since
    bool isDoublePressAlone_ = false; ///< what begins a selection
    bool saidNoModifiers_ = false;
};
