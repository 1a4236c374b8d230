#include "Usage.h"

#include "ExitCode.h"
#include "StandardStreams.h"

#include "model/TerminalText.h"

#include "ReleaseInfo.h"

namespace tessarine::cli {

namespace {

QString usageText() {
    return QStringLiteral(
        "Usage:\n"
        "  tessarine-cli scan FOLDER [--save] [--csv] [COUNTING]\n"
        "  tessarine-cli tree FOLDER [--ncdu] [COUNTING]\n"
        "  tessarine-cli import FILE [--save]\n"
        "  tessarine-cli history [--json]\n"
        "  tessarine-cli history delete ID\n"
        "  tessarine-cli history compare OLD NEW [--json]\n"
        "  tessarine-cli --help\n"
        "  tessarine-cli --version\n"
        "\n"
        "Commands:\n"
        "  scan     Analyse FOLDER and print the result as JSON, in the form of the history "
        "files.\n"
        "           --save  also store the result, with the size of its folders, in the scan\n"
        "                   history of the desktop app\n"
        "           --csv   print the largest files as CSV instead of JSON\n"
        "  tree     Print the size of every folder below FOLDER as a JSON tree.\n"
        "           --ncdu  print the whole tree as an ncdu export instead (ncdu -f reads it)\n"
        "  import   Read a scan made elsewhere (an ncdu export, ncdu -o, or a result of\n"
        "           tessarine-cli scan) and print it as a result; - reads standard input.\n"
        "           --save  also store it in the scan history of the desktop app\n"
        "  history  List the stored scans, newest first; --json prints them as a JSON array.\n"
        "           history delete ID removes one stored scan.\n"
        "           history compare OLD NEW shows what changed between two stored scans of\n"
        "           one folder: the totals, then the folders that grew, appeared, shrank or\n"
        "           went, largest change first; --json prints it as JSON.\n"
        "\n"
        "COUNTING, for scan and tree (by default hidden items are left out, other file systems\n"
        "are entered and a file counts its size):\n"
        "  --hidden           also count items whose names start with \".\"\n"
        "  --one-file-system  do not enter folders on another file system than FOLDER (du -x)\n"
        "  --disk-usage       count the disk space a file takes, as du does, not its size\n"
        "\n"
        "On a terminal, scan and tree show their progress on standard error; Ctrl-C cancels.\n"
        "Exit status: 0 done, 1 failed, 2 bad usage, 130 cancelled.\n");
}

} // namespace

int printUsage() {
    return writeOutput(usageText().toUtf8()) ? exitSuccess : exitFailure;
}

int printVersion() {
    return writeOutput(QByteArrayLiteral("tessarine-cli ") + versionText + '\n') ? exitSuccess
                                                                                 : exitFailure;
}

int usageError(const QString& problem) {
    writeToStandardError((escapeControlCharacters(problem) + u'\n' + usageText()).toUtf8());
    return exitUsage;
}

} // namespace tessarine::cli
