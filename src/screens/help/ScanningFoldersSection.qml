import QtQuick
import Tessarine.Design
import Tessarine.Screens

HelpSection {
    title: "Scanning Folders"
    introduction: "Learn how to scan folders and what happens during the analysis process."

    HelpCard {
        title: "How to Start a Scan"
        icon: "folder.badge.plus"
        tint: Theme.blue
        HelpText { lead: true; text: "There are several ways to start a scan:" }
        FeatureRow { icon: "cursorarrow.click.2"; text: "Click the \"Select Folder\" button on the landing page"; tint: Theme.blue }
        FeatureRow { icon: "hand.draw.fill"; text: "Drag and drop a folder anywhere in the app window"; tint: Theme.purple }
        FeatureRow { icon: "command"; text: "Use the keyboard shortcut (see Shortcuts section)"; tint: Theme.orange }
        FeatureRow { icon: "arrow.clockwise"; text: "Click \"Rescan\" on an existing result to update it"; tint: Theme.green }
    }

    HelpCard {
        title: "During the Scan"
        icon: "gearshape.2.fill"
        tint: Theme.purple
        HelpText { lead: true; text: "The scanning view shows real-time progress:" }
        HelpList {
            lines: ["Files and folders counted", "Data scanned (in bytes)", "Current scanning location",
                "Estimated time remaining", "Scan rate (items per second)"]
        }
        FeatureRow { icon: "info.circle.fill"; text: "You can cancel a scan at any time using the Cancel button."; tint: Theme.blue; textColor: Theme.secondary }
    }

    HelpCard {
        title: "What Gets Analyzed"
        icon: "doc.text.magnifyingglass"
        tint: Theme.green
        HelpText { lead: true; text: "For each file, we capture:" }
        HelpList {
            lines: ["File size and location", "File type and category", "Folder depth in the hierarchy",
                "Last modification date"]
        }
        HelpText {
            text: "Note: Hidden files and system packages are skipped by default for cleaner results. "
                  + "Settings (Ctrl+,) can include hidden items, keep a scan on one file system "
                  + "or count the disk space files take instead of their size."
            font: Theme.caption
            note: true
        }
    }
}
