#pragma once

#include "KTXActionKeys.h"
#include "KTXAgentAnswer.h"
#include "KTXConstants.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <gtest/gtest.h>

/// An agent on the session bus that answers whatever a test wants, or nothing at all; on a connection of its own.
class AgentStandIn : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.quorvane.LumarooAgent")

public:
    AgentStandIn()
    {
        EXPECT_TRUE(bus_.registerObject(
            KTXLMAgentPath, this, QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableSignals));
        EXPECT_TRUE(bus_.registerService(KTXLMAgentID));
    }
    ~AgentStandIn() override { QDBusConnection::disconnectFromBus(QStringLiteral("agent stand-in")); }

    /// What the agent answers where each key has its default; a key with a cause is not registered.
    static QJsonObject answerWith(
        const QMap<QString, QString> &causes, quint32 modifiers = 0x1800, const QList<int> &freeModifiers = {})
    {
        QJsonArray keys;
        for (const KTXActionKey &action : KTXActionKeys()) {
            const QString cause = causes.value(action.preferenceName);
            QJsonObject key{{KTXAnswerAction, action.preferenceName},
                {KTXAnswerKeyCode, int(action.defaultKeyCode.number())}, {KTXAnswerRegistered, cause.isEmpty()}};
            if (!cause.isEmpty())
                key.insert(KTXAnswerCause, cause);
            keys.append(key);
        }
        QJsonArray masks;
        for (const int mask : freeModifiers)
            masks.append(mask);
        return {{KTXAnswerHotKeys, keys}, {KTXAnswerFreeModifiers, masks},
            {KTXAnswerSettings, QJsonObject{{KTXModifierMask, qint64(modifiers)}}}};
    }

    /// From now on this is the answer, and all are told that it is another one.
    void answers(const QJsonObject &answer)
    {
        answer_ = answer;
        Q_EMIT HotKeysChanged();
    }
    void isSilent()
    {
        isSilent_ = true;
        Q_EMIT HotKeysChanged();
    }
    void hearsKeyOf(const QString &action) { Q_EMIT ActionKeyPressed(action); }
    int questions() const { return questions_; }

public Q_SLOTS:
    Q_SCRIPTABLE QString Settings() // NOLINT(readability-identifier-naming): the interface's
    {
        ++questions_;
        if (isSilent_)
            setDelayedReply(true);
        return QString::fromUtf8(QJsonDocument(answer_).toJson());
    }

Q_SIGNALS:
    Q_SCRIPTABLE void HotKeysChanged();
    Q_SCRIPTABLE void ActionKeyPressed(const QString &action); // NOLINT(readability-identifier-naming): as above

private:
    QDBusConnection bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("agent stand-in"));
    QJsonObject answer_ = answerWith({});
    bool isSilent_ = false;
    int questions_ = 0;
};
