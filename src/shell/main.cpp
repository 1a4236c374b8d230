#include "app/AppState.h"
#include "model/PathBytes.h"
#include "model/WorkerThread.h"
#include "shell/DesktopFileChooser.h"
#include "shell/LaunchOptions.h"
#include "shell/ShellEngine.h"
#include "storage/PersistenceService.h"

#include "ReleaseInfo.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include <cstdio>

namespace {

using tessarine::LaunchOptions;

int finishWithoutWindow(const LaunchOptions& launch) {
    const bool printed = launch.action == LaunchOptions::Action::PrintAndExit;
    std::fputs(launch.text.toLocal8Bit().constData(), printed ? stdout : stderr);
    return printed ? 0 : 2;
}

} // namespace

int main(int argc, char* argv[]) {
    // Help and version are answered before the platform starts, so they work without a display.
    // Anything else is read once the application has taken its own options (-platform, ...).
    const LaunchOptions early =
        tessarine::parseLaunchArguments(tessarine::argumentsFromBytes(argc, argv), {});
    if (early.action == LaunchOptions::Action::PrintAndExit)
        return finishWithoutWindow(early);

    tessarine::preferDesktopFileChooser();
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Tessarine"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tessarine"));
    QGuiApplication::setApplicationVersion(QString::fromLatin1(tessarine::versionText));
    // Lets the desktop match the window with its launcher entry and icon.
    QGuiApplication::setDesktopFileName(QString::fromLatin1(tessarine::applicationId));
    // The platform has taken its own options out of argv by now. Not QCoreApplication::arguments(),
    // which loses the bytes of a folder name that is not UTF-8.
    const LaunchOptions launch = tessarine::parseLaunchArguments(
        tessarine::argumentsFromBytes(argc, argv), tessarine::currentFolderPath());
    if (launch.action != LaunchOptions::Action::OpenWindow)
        return finishWithoutWindow(launch);
    tessarine::prepareShell();

    tessarine::AppState state(tessarine::PersistenceService::shared());
    tessarine::AppState::setSharedInstance(&state);

    QQmlApplicationEngine engine;
    tessarine::prepareEngine(engine);
    engine.load(QUrl(QString::fromLatin1(tessarine::mainWindowUrl)));
    if (engine.rootObjects().isEmpty())
        return 1;
    if (launch.folder)
        state.startScan(*launch.folder);
    return tessarine::leaveProcess(QGuiApplication::exec());
}
