#pragma once

#include <QMap>
#include <QObject>
#include <QSet>
#include <memory>

class ActionKeyTable;
class KTXHotKey;

/// The digit keys with the modifiers, as hot keys, for as long as labels show them.
class DigitKeys : public QObject
{
    Q_OBJECT

public:
    DigitKeys();
    ~DigitKeys() override;

    /// Takes these and gives back the others; all are given back for an empty set.
    void take(const QSet<int> &digits, const ActionKeyTable &keys);
    QSet<int> taken() const;

Q_SIGNALS:
    /// Told before the keyboard is let go.
    void pressed(int digit, quint32 time);

private:
    void handlePress(const KTXHotKey *hotKey);

    QMap<int, std::shared_ptr<KTXHotKey>> hotKeys_; ///< of each digit that was ever asked for
};
