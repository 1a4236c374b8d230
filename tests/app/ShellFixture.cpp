#include "ShellFixture.h"

#include "SampleHistory.h"
#include "ScanFolders.h"

#include "app/AppState.h"
#include "storage/PersistenceService.h"

namespace tessarine {

ShellFixture::ShellFixture(QObject* parent)
    : QObject(parent)
    , m_store(std::make_unique<PersistenceService>(m_home.path())) {
    testing::makeScannableFolder(m_files.filePath(QStringLiteral("folder")));
    testing::makeScannableFolder(m_files.filePath(QStringLiteral("large")), 5000);
    testing::writeFile(m_files.filePath(QStringLiteral("notes.txt")), 10);
    testing::storeSampleHistory(*m_store, storedScanCount());
    m_state = std::make_unique<AppState>(*m_store);
    AppState::setSharedInstance(m_state.get());
}

ShellFixture::~ShellFixture() = default;

QString ShellFixture::folderPath() const {
    return m_files.filePath(QStringLiteral("folder"));
}

QUrl ShellFixture::folderUrl() const {
    return QUrl::fromLocalFile(folderPath());
}

QUrl ShellFixture::fileUrl() const {
    return QUrl::fromLocalFile(m_files.filePath(QStringLiteral("notes.txt")));
}

QUrl ShellFixture::largeFolderUrl() const {
    return QUrl::fromLocalFile(m_files.filePath(QStringLiteral("large")));
}

bool ShellFixture::dragOver(QQuickItem* over, const QUrl& url) {
    m_drag = std::make_unique<testing::WindowDrag>(over, QList<QUrl>{url});
    return m_drag->enter();
}

int ShellFixture::drop() {
    return m_drag ? m_drag->drop() : Qt::IgnoreAction;
}

void ShellFixture::leave() {
    if (m_drag)
        m_drag->leave();
}

void ShellFixture::forgetFolderScans() {
    const QList<AnalysisResult> stored = m_state->scanHistory()->results();
    for (const AnalysisResult& result : stored)
        if (result.rootPath.startsWith(m_files.path()))
            m_state->deleteScan(result);
}

} // namespace tessarine
