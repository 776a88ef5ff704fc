#include "pane/KTXLumarooPreferencePane.h"

#include "platform/appkit/richtext/NSAttributedString.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/propertylists/CFTypeID.h"
#include "platform/foundation/propertylists/Description.h"

void KTXLumarooPreferencePane::showVersion()
{
    // An unreadable Info.plist leaves both fields empty.
    if (infoDictionary_.isEmpty())
        return;
    const auto entry = [this](const QString &key) { return description(infoDictionary_.value(key)); };
    setStringValue(appNameField_, infoDictionary_.value(QStringLiteral("CFBundleExecutable")).toString());
    const QStringList parts = localized(QStringLiteral("Version %@ (%@)")).split(QStringLiteral("%@"));
    setStringValue(versionField_,
        parts.value(0) + entry(QStringLiteral("CFBundleShortVersionString")) + parts.value(1)
            + entry(QStringLiteral("CFBundleVersion")) + parts.value(2));
}

void KTXLumarooPreferencePane::showCredits()
{
    const QVariant copyright = bundle()->objectForInfoDictionaryKey(QStringLiteral("NSHumanReadableCopyright"));
    const QString path = bundle()->pathForResourceOfType(QStringLiteral("Credits"), QStringLiteral("rtfd"));
    if (CFGetTypeID(copyright) != CFTypeID::String || path.isEmpty())
        return;
    const QString beforeFirstComma = copyright.toString().section(u',', 0, 0);
    NSAttributedString credits = NSAttributedString::fromRTFDDocument(path);
    credits.replaceOccurrencesOfStringWithString(QStringLiteral("<<copyright>>"), beforeFirstComma);
    setAttributedString(creditsField_, credits);
}
