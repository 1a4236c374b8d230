import QtQuick
import Tessarine.Design
import Tessarine.Screens

HelpSection {
    title: "History & Export"
    introduction: "Keep track of your scans over time and export results for further analysis."

    HelpCard {
        title: "Scan History"
        icon: "clock.arrow.circlepath"
        tint: Theme.cyan
        HelpText { lead: true; text: "All scans are automatically saved:" }
        FeatureRow { icon: "sidebar.left"; text: "Access recent scans from the sidebar"; tint: Theme.blue }
        FeatureRow { icon: "list.bullet.rectangle"; text: "View full history from the History tab"; tint: Theme.purple }
        FeatureRow { icon: "magnifyingglass"; text: "Search and sort your scan history"; tint: Theme.orange }
        FeatureRow { icon: "trash"; text: "Delete old scans you no longer need"; tint: Theme.red }
    }

    HelpCard {
        title: "Comparing Scans"
        icon: "arrow.left.arrow.right"
        tint: Theme.purple
        HelpText { lead: true; text: "Compare two scans of the same folder:" }
        HelpStep { number: 1; text: "Go to the History view" }
        HelpStep { number: 2; text: "Select two scans of the same folder" }
        HelpStep { number: 3; text: "Click \"Compare Selected\" to see the difference" }
        HelpText { note: true; text: "This is useful for tracking folder growth over time." }
    }

    HelpCard {
        title: "Exporting Results"
        icon: "square.and.arrow.up"
        tint: Theme.green
        HelpText { lead: true; text: "Export your analysis in two formats:" }
        ExportFormatLine { format: "JSON"; tint: Theme.blue; description: "Complete data export for programmatic analysis" }
        ExportFormatLine { format: "CSV"; tint: Theme.green; description: "Spreadsheet-friendly format for the largest files" }
        HelpText { note: true; text: "Click the Export button in the toolbar when viewing a scan result." }
    }
}
