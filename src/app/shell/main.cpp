#include "app/AppState.h"
#include "app/shell/ShellEngine.h"
#include "storage/PersistenceService.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char* argv[]) {
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Tessarine"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tessarine"));
    tessarine::prepareShell();

    tessarine::AppState state(tessarine::PersistenceService::shared());
    tessarine::AppState::setSharedInstance(&state);

    QQmlApplicationEngine engine;
    tessarine::prepareEngine(engine);
    engine.load(QUrl(QString::fromLatin1(tessarine::mainWindowUrl)));
    if (engine.rootObjects().isEmpty())
        return 1;
    return QGuiApplication::exec();
}
