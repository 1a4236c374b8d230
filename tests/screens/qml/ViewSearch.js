// Looks through a rendered view the way a user reads it: only visible items count.

function visibleItems(root, accept) {
    const found = []
    const visit = item => {
        if (!item.visible)
            return
        if (accept(item))
            found.push(item)
        for (let i = 0; i < item.children.length; ++i)
            visit(item.children[i])
    }
    visit(root)
    return found
}

function texts(root) {
    return visibleItems(root, item => typeof item.text === "string" && item.text !== ""
                                      && item.font !== undefined && item.color !== undefined)
           .map(item => item.text)
}

function shows(root, text) {
    return texts(root).indexOf(text) >= 0
}

function named(root, objectName) {
    const found = visibleItems(root, item => item.objectName === objectName)
    return found.length > 0 ? found[0] : null
}

function withProperty(root, name) {
    return visibleItems(root, item => item.hasOwnProperty(name))
}
