import QtQuick
import Tessarine.Design
import Tessarine.Screens

HelpSection {
    title: "Tips & Best Practices"

    HelpCard {
        title: "Performance Tips"
        icon: "bolt.fill"
        tint: Theme.yellow
        TipRow {
            icon: "folder.badge.minus"; title: "Scan Specific Folders"; tint: Theme.blue
            description: "Instead of scanning your entire drive, scan specific folders for faster results."
        }
        TipRow {
            icon: "square.grid.2x2"; title: "Build Treemap On-Demand"; tint: Theme.purple
            description: "The folder treemap is built separately to keep initial scans fast. Only build it when needed."
        }
        TipRow {
            icon: "clock"; title: "Large Folders Take Time"; tint: Theme.orange
            description: "Folders with millions of files may take several minutes to scan. The progress view shows estimated time."
        }
    }

    HelpCard {
        title: "Finding Space Hogs"
        icon: "magnifyingglass"
        tint: Theme.green
        TipRow {
            icon: "doc.text.magnifyingglass"; title: "Check Largest Files First"; tint: Theme.green
            description: "The Largest Files table quickly shows which individual files are consuming the most space."
        }
        TipRow {
            icon: "folder.fill"; title: "Use the Folder Treemap"; tint: Theme.orange
            description: "Drill down through folders to find which subdirectories are using the most space."
        }
        TipRow {
            icon: "lightbulb.fill"; title: "Check Insights"; tint: Theme.yellow
            description: "The Insights section highlights potential issues like node_modules folders, cache files, and duplicates."
        }
    }

    HelpCard {
        title: "Common Space Wasters"
        icon: "trash.fill"
        tint: Theme.red
        HelpText { lead: true; text: "Look out for these common culprits:" }
        HelpList {
            lines: ["node_modules - Can grow to gigabytes in JavaScript projects",
                "Xcode DerivedData - Build artifacts that can be safely deleted",
                "Cache folders - Applications often cache more than needed",
                "Old downloads - Files you downloaded but forgot about",
                "Duplicate files - Multiple copies of the same content"]
        }
    }
}
