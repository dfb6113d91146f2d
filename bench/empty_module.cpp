// A plug-in of nothing, linked with what the call plug-in is linked with: what loading costs before any code of ours.

#include <QObject>
#include <QtPlugin>

class EmptyModule : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "kelvarim/empty")
};

#include "empty_module.moc"
