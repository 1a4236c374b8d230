#pragma once

#include <QObject>

#include <memory>

class QQmlEngine;

namespace tessarine {

class AppFixture;

// The set-up of a Qt Quick Test of the application's views: an English locale, no real history,
// and for every test file a fresh AppFixture as the Fixture singleton of Tessarine.Testing.
class QuickTestSetup : public QObject {
    Q_OBJECT

public:
    QuickTestSetup();
    ~QuickTestSetup() override;

public slots:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine* engine);

private:
    std::unique_ptr<AppFixture> m_fixture;
};

} // namespace tessarine
