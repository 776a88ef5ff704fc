#pragma once

#include <QStringList>
#include <QVariantMap>

/// Each key with the value to go by: what is stored, in its setting's form, or the default; no value where there is no
/// default either. For whatever is stored that is what the settings window shows. Keys that nobody agreed on are left
/// out.
QVariantMap effectiveSettings(const QVariantMap &stored);

/// The same from change to change: only what differs from before is worked out anew.
class EffectiveSettings
{
public:
    /// Tells the keys whose value may differ from before.
    QStringList follow(const QVariantMap &stored);
    const QVariantMap &values() const { return values_; }

private:
    QVariantMap stored_;
    QVariantMap values_ = effectiveSettings({});
};
