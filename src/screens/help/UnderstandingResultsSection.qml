import QtQuick
import Tessarine.Design
import Tessarine.Screens

HelpSection {
    title: "Understanding Results"
    introduction: "The dashboard presents your scan results with multiple visualizations."

    HelpCard {
        title: "Summary Cards"
        icon: "rectangle.grid.1x2.fill"
        tint: Theme.blue
        HelpText { lead: true; text: "At the top, you'll see key metrics:" }
        FeatureRow { icon: "internaldrive.fill"; text: "Total Size - The combined size of all files"; tint: Theme.blue }
        FeatureRow { icon: "doc.fill"; text: "Total Files - Number of files found"; tint: Theme.green }
        FeatureRow { icon: "folder.fill"; text: "Total Folders - Number of folders found"; tint: Theme.orange }
        FeatureRow { icon: "arrow.down.right.and.arrow.up.left"; text: "Max Depth - Deepest folder nesting level"; tint: Theme.purple }
    }

    HelpCard {
        title: "Category Chart"
        icon: "chart.bar.fill"
        tint: Theme.purple
        HelpText { lead: true; text: "Files are automatically categorized:" }
        Grid {
            columns: 3
            columnSpacing: Theme.spacingXLarge
            rowSpacing: Theme.spacingSmall
            CategoryItem { name: "Documents"; icon: "doc.fill"; tint: Theme.blue }
            CategoryItem { name: "Images"; icon: "photo.fill"; tint: Theme.green }
            CategoryItem { name: "Videos"; icon: "film.fill"; tint: Theme.red }
            CategoryItem { name: "Audio"; icon: "music.note"; tint: Theme.pink }
            CategoryItem { name: "Code"; icon: "chevron.left.forwardslash.chevron.right"; tint: Theme.orange }
            CategoryItem { name: "Archives"; icon: "archivebox.fill"; tint: Theme.purple }
        }
        HelpText { note: true; text: "Click on a category in the chart or treemap to highlight it." }
    }

    HelpCard {
        title: "Largest Files Table"
        icon: "tablecells.fill"
        tint: Theme.green
        HelpText { lead: true; text: "The table shows your largest files with these features:" }
        FeatureRow { icon: "arrow.up.arrow.down"; text: "Click column headers to sort"; tint: Theme.blue }
        FeatureRow { icon: "magnifyingglass"; text: "Search to filter by name, path, or extension"; tint: Theme.purple }
        FeatureRow { icon: "cursorarrow.click.2"; text: "Right-click for context menu options"; tint: Theme.orange }
        FeatureRow { icon: "folder"; text: "Double-click to reveal file in File Manager"; tint: Theme.green }
    }
}
