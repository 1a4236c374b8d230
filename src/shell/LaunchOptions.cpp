#include "LaunchOptions.h"

#include "ReleaseInfo.h"
#include "model/PathBytes.h"

#include <QCommandLineParser>
#include <QDir>
#include <QUrl>

namespace tessarine {

namespace {

// Written out rather than QCommandLineParser::helpText(), which needs the application object:
// help is answered before the platform starts, so that it works without a display.
constexpr char helpText[] =
    "Usage: tessarine [OPTIONS] [FOLDER]\n"
    "Shows where the space on a disk went. Given a FOLDER, scans it at once.\n"
    "\n"
    "Options:\n"
    "  -h, --help     Show this help and exit.\n"
    "  -v, --version  Show the version and exit.\n"
    "Qt's own options (-platform, -style, ...) apply as in every Qt program.\n";

QString absoluteFolder(const QString& argument, const QString& workingDirectory) {
    if (argument.isEmpty())
        return argument;
    if (argument.startsWith(u"file://"))
        return pathFromUrl(QUrl(argument));
    return QDir::cleanPath(QDir(workingDirectory).absoluteFilePath(argument));
}

} // namespace

LaunchOptions parseLaunchArguments(const QStringList& arguments, const QString& workingDirectory) {
    using Action = LaunchOptions::Action;
    QCommandLineParser parser;
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, {});
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, {});
    parser.addOptions({help, version});
    if (!parser.parse(arguments))
        return {Action::FailWithUsage, {}, parser.errorText() + u'\n' + QLatin1String(helpText)};
    if (parser.isSet(help))
        return {Action::PrintAndExit, {}, QLatin1String(helpText)};
    if (parser.isSet(version))
        return {Action::PrintAndExit, {}, QStringLiteral("Tessarine %1\n").arg(versionText)};

    const QStringList folders = parser.positionalArguments();
    if (folders.size() > 1)
        return {Action::FailWithUsage,
                {},
                QStringLiteral("Give one FOLDER at most.\n") + QLatin1String(helpText)};
    if (folders.isEmpty())
        return {};
    return {Action::OpenWindow, absoluteFolder(folders.first(), workingDirectory), {}};
}

} // namespace tessarine
