import QtQuick
import Tessarine.Design
import Tessarine.Screens

HelpSection {
    title: "Getting Started"
    introduction: "Tessarine helps you understand how disk space is used across your folders with beautiful visualizations and detailed insights."

    HelpCard {
        title: "Quick Start"
        icon: "play.circle.fill"
        tint: Theme.blue
        HelpStep { number: 1; text: "Drag and drop a folder onto the app window, or click \"Select Folder\"" }
        HelpStep { number: 2; text: "Wait for the scan to complete - progress is shown in real-time" }
        HelpStep { number: 3; text: "Explore the dashboard with charts, treemaps, and file lists" }
        HelpStep { number: 4; text: "Optionally build a detailed folder treemap for deeper analysis" }
    }

    HelpCard {
        title: "Key Features"
        icon: "star.fill"
        tint: Theme.yellow
        FeatureRow { icon: "chart.pie.fill"; text: "Visual breakdown by file category"; tint: Theme.blue }
        FeatureRow { icon: "square.grid.2x2.fill"; text: "Interactive treemap visualizations"; tint: Theme.purple }
        FeatureRow { icon: "doc.text.magnifyingglass"; text: "Find your largest files instantly"; tint: Theme.green }
        FeatureRow { icon: "folder.fill"; text: "Drill-down folder analysis"; tint: Theme.orange }
        FeatureRow { icon: "clock.arrow.circlepath"; text: "Scan history with comparisons"; tint: Theme.cyan }
        FeatureRow { icon: "square.and.arrow.up"; text: "Export results as JSON or CSV"; tint: Theme.pink }
    }
}
