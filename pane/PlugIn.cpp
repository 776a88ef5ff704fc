#include "pane/KTXLumarooPreferencePane.h"

/// The bundle's principal class, as the host finds it in the plug-in.
class PlugIn : public QObject, public NSPrincipalClass
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID NSPrincipalClass_iid)
    Q_INTERFACES(NSPrincipalClass)

public:
    void initialize() override { KTXLumarooPreferencePane::initialize(); }
    NSPreferencePane *alloc() override { return new KTXLumarooPreferencePane; }
};

#include "PlugIn.moc"
