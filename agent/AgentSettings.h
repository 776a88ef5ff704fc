#pragma once

#include <QVariantMap>

/// Each key with the value to go by: what is stored, in its setting's form, or the default; no value where there is no
/// default either. For whatever is stored that is what the settings window shows. Keys that nobody agreed on are left
/// out.
QVariantMap effectiveSettings(const QVariantMap &stored);
