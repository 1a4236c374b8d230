#include "WindowProbe.h"

#include <QGenericPlugin>

namespace tessarine::testing {

// Qt loads generic plugins named in QT_QPA_GENERIC_PLUGINS into any application as it starts:
// "tessarineprobe:<server name>" puts the probe into the real program without a line of test
// code in it.
class WindowProbePlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")

public:
    QObject* create(const QString& key, const QString& serverName) override {
        return key == QLatin1String("tessarineprobe") ? new WindowProbe(serverName) : nullptr;
    }
};

} // namespace tessarine::testing

#include "WindowProbePlugin.moc"
