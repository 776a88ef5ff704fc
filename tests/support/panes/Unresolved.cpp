// A plug-in made for other libraries: it calls a function that none here has.

#include <QObject>
#include <QtPlugin>

void functionOfAnotherPlatform();

class Unresolved : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.quorvane.tests.Unresolved/1")

public:
    ~Unresolved() override { functionOfAnotherPlatform(); }
};

#include "Unresolved.moc"
