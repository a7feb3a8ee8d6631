import QtQuick

/// A place for views that are made one by one.
Item {
}
