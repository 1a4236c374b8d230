#pragma once

#include <QQmlEngine>
#include <QTest>

namespace tessarine::testing {

// Makes every QML warning of the engine a failure of the test that caused it: a binding to a
// name that no longer existed once turned every colour black while every test still passed.
inline void failOnQmlWarnings(QQmlEngine& engine) {
    QObject::connect(&engine, &QQmlEngine::warnings, &engine, [](const QList<QQmlError>& warnings) {
        for (const QQmlError& warning : warnings)
            QTest::qFail(qPrintable(warning.toString()), qPrintable(warning.url().toString()),
                         warning.line());
    });
}

} // namespace tessarine::testing
