import QtQuick

// The one selected category that the category chart, its legend and the treemap share: a click
// in any of them moves or clears it for all.
QtObject {
    // A FileCategory, or -1 for none.
    property int category: -1

    function toggle(clicked) {
        category = category === clicked ? -1 : clicked
    }

    function clear() {
        category = -1
    }
}
