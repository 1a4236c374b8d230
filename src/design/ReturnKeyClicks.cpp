#include "ReturnKeyClicks.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQuickItem>

namespace tessarine {

namespace {

bool isActivationKey(const QKeyEvent& event) {
    const bool returnKey = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const Qt::KeyboardModifiers extra = event.modifiers() & ~Qt::KeypadModifier;
    return returnKey && extra == Qt::NoModifier && !event.isAutoRepeat();
}

// Hands a Return on a button to the button as a whole Space press, so it clicks the way the
// platform makes it click, with its pressed look and its clicked signal.
class ReturnKeyClicks : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !watched->inherits("QQuickAbstractButton"))
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        const auto* button = qobject_cast<QQuickItem*>(watched);
        if (!isActivationKey(*key) || !button->isEnabled() || !button->hasActiveFocus())
            return false;
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent space(type, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
            QCoreApplication::sendEvent(watched, &space);
        }
        return true;
    }
};

} // namespace

void installReturnKeyClicks(QCoreApplication& application) {
    application.installEventFilter(new ReturnKeyClicks(&application));
}

} // namespace tessarine
