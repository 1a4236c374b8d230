import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design

// The one alert of the main window. It opens whenever the application state holds an error, and
// dismissing it, by "OK" or Escape, clears that error.
Dialog {
    id: alert

    title: "Error"
    modal: true
    anchors.centerIn: Overlay.overlay
    width: 320
    padding: Theme.spacingXLarge
    topPadding: Theme.spacingSection
    closePolicy: Popup.CloseOnEscape
    focus: true

    onClosed: AppState.clearError()

    Component.onCompleted: if (AppState.hasError) open()

    Connections {
        target: AppState
        function onErrorChanged() {
            if (AppState.hasError)
                alert.open()
            else
                alert.close()
        }
    }

    header: null

    contentItem: ColumnLayout {
        // Holds the keyboard while the alert is up: Return is "OK", as Escape is.
        focus: true
        spacing: Theme.spacingSmall
        // The alert is read as one message: its title, then what went wrong and what to try.
        Accessible.role: Accessible.AlertMessage
        Accessible.name: alert.title
        Accessible.description: AppState.error.errorDescription
                                + (AppState.error.hasRecoverySuggestion ? " " + AppState.error.recoverySuggestion : "")

        Keys.onReturnPressed: alert.close()
        Keys.onEnterPressed: alert.close()

        Icon {
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: Theme.spacingTiny
            symbol: "exclamationmark.triangle.fill"
            size: 44
            color: Theme.orange
        }

        Text {
            Layout.fillWidth: true
            text: alert.title
            font: Theme.weighted(Theme.body, Font.Bold)
            color: Theme.primary
            horizontalAlignment: Text.AlignHCenter
        }

        Text {
            objectName: "errorDescription"
            Layout.fillWidth: true
            visible: text !== ""
            text: AppState.error.errorDescription
            font: Theme.callout
            color: Theme.primary
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }

        Text {
            objectName: "recoverySuggestion"
            Layout.fillWidth: true
            visible: AppState.error.hasRecoverySuggestion
            text: AppState.error.recoverySuggestion
            font: Theme.caption
            color: Theme.secondary
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }

        ProminentButton {
            objectName: "okButton"
            Layout.fillWidth: true
            Layout.topMargin: Theme.spacingMedium
            text: "OK"
            onClicked: alert.close()
        }
    }

    footer: null

    background: Rectangle {
        radius: Theme.radiusCard + 2
        color: Theme.controlBackground
        border.width: 1
        border.color: Theme.separator

        SoftShadow {
            z: -1
            anchors.fill: parent
            radius: parent.radius
            spread: 12
            strength: 0.06
            offsetY: 6
        }
    }

    Overlay.modal: Rectangle {
        color: Theme.scrim
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.quickDuration }
        NumberAnimation { property: "scale"; from: 0.96; to: 1; duration: Theme.quickDuration; easing.type: Easing.OutCubic }
    }

    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.quickDuration }
    }
}
