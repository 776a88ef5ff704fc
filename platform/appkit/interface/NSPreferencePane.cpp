#include "platform/appkit/interface/NSPreferencePane.h"

#include "platform/appkit/interface/InterfaceFile.h"
#include "platform/foundation/bundles/NSBundle.h"

NSPreferencePane::NSPreferencePane() = default;

NSPreferencePane::~NSPreferencePane()
{
    // What the pane's own class answered with is gone already: the view's end must not call on it.
    actionsEndWith_.reset();
    delete mainView_;
}

bool NSPreferencePane::initWithBundle(NSBundle *bundle)
{
    bundle_ = bundle;
    return bundle != nullptr;
}

QString NSPreferencePane::mainNibName() const
{
    const QVariantMap info = bundle_ ? bundle_->infoDictionary() : QVariantMap();
    const QString name = info.value(QStringLiteral("NSMainNibFile")).toString();
    return name.isEmpty() ? QStringLiteral("Main") : name;
}

QWidget *NSPreferencePane::loadMainView()
{
    actionsEndWith_ = std::make_unique<QObject>();
    InterfaceOwner owner = interfaceOwner();
    owner.object = actionsEndWith_.get();
    mainView_ = loadInterfaceFile(bundle_, mainNibName(), owner);
    if (mainView_)
        mainViewDidLoad();
    return mainView_;
}
