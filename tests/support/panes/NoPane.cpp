// A plug-in that loads but offers no pane.

#include <QObject>
#include <QtPlugin>

class NoPane : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.quorvane.tests.NoPane/1")
};

#include "NoPane.moc"
