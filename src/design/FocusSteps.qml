import QtQuick

// Up and Down for a column of rows that Tab reaches one by one, as in a sidebar list: step()
// moves the keyboard focus to the next or previous focusable item inside `within` and returns
// it, or null at either end (the keys then stay in the column).
QtObject {
    required property Item within

    function contains(item) {
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === within)
                return true
        }
        return false
    }

    function step(forward) {
        const from = within.Window.activeFocusItem
        if (!from || !contains(from))
            return null
        const next = from.nextItemInFocusChain(forward)
        if (!next || !contains(next))
            return null
        next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
        return next
    }
}
