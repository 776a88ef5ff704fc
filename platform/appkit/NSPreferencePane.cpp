#include "platform/appkit/NSPreferencePane.h"

#include "platform/appkit/InterfaceFile.h"
#include "platform/foundation/NSBundle.h"

NSPreferencePane::NSPreferencePane() = default;

NSPreferencePane::~NSPreferencePane()
{
    delete mainView_;
}

bool NSPreferencePane::initWithBundle(NSBundle *bundle)
{
    bundle_ = bundle;
    return bundle != nullptr;
}

QString NSPreferencePane::mainNibName() const
{
    const QString name = bundle_->infoDictionary().value(QStringLiteral("NSMainNibFile")).toString();
    return name.isEmpty() ? QStringLiteral("Main") : name;
}

QWidget *NSPreferencePane::loadMainView()
{
    mainView_ = loadInterfaceFile(bundle_, mainNibName(), interfaceOwner());
    if (mainView_)
        mainViewDidLoad();
    return mainView_;
}
