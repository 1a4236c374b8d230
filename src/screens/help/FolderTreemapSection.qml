import QtQuick
import Tessarine.Design
import Tessarine.Screens

HelpSection {
    title: "Folder Treemap"
    introduction: "The folder treemap provides a visual, interactive way to explore your folder hierarchy."

    HelpCard {
        title: "Building the Treemap"
        icon: "square.grid.2x2.fill"
        tint: Theme.orange
        HelpText { lead: true; text: "The folder treemap is built on-demand for performance:" }
        HelpStep { number: 1; text: "Click \"Build Folder Treemap\" in the Folder Analysis section" }
        HelpStep { number: 2; text: "Wait for the tree structure to be computed" }
        HelpStep { number: 3; text: "Explore the interactive visualization" }
        HelpText { note: true; text: "For large folders, building the treemap may take a few moments." }
    }

    HelpCard {
        title: "Navigating the Treemap"
        icon: "hand.point.up.left.fill"
        tint: Theme.purple
        HelpText { lead: true; text: "The treemap is fully interactive:" }
        FeatureRow { icon: "cursorarrow.click"; text: "Click a folder to drill down into it"; tint: Theme.blue }
        FeatureRow { icon: "arrow.uturn.backward"; text: "Use the breadcrumb bar to navigate back"; tint: Theme.purple }
        FeatureRow { icon: "house.fill"; text: "Click the root folder name to return to top"; tint: Theme.orange }
        FeatureRow { icon: "eye.fill"; text: "Hover over folders to see size details"; tint: Theme.green }
        HelpText { note: true; text: "Folder sizes are shown proportionally - larger folders appear as bigger rectangles." }
    }

    HelpCard {
        title: "Color Coding"
        icon: "paintpalette.fill"
        tint: Theme.cyan
        HelpText { lead: true; text: "Folders are color-coded for easy identification:" }
        HelpText {
            note: true
            text: "Each level of the hierarchy uses a different color, making it easy to see folder relationships and quickly identify which folders are consuming the most space."
        }
    }
}
