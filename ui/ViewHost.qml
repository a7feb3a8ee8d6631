import QtQuick

/// Makes a view from an address and fills itself with it. Unlike a Loader it takes the view along when it is destroyed,
/// while what the view shows still lives.
FocusScope {
    id: host

    property Item view

    function show(source: url, properties: var) {
        if (view)
            view.destroy()
        const component = Qt.createComponent(source)
        view = component.createObject(host, properties)
        if (!view) {
            console.warn(component.errorString())
            return
        }
        view.anchors.fill = host
        view.focus = true
    }

    focus: true
}
