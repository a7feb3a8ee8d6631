#pragma once

#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <vector>

class KRWindow;
class OverlayHost;
class QQuickWindow;

/// The views of the client. Those of its first page are read in the background from the moment that this is
/// made, while the rest of the client is put together.
class Views {
public:
    Views();

    /// The window over `window` and `overlays`, which must outlive this; null when it cannot be loaded.
    QQuickWindow *show(KRWindow &window, OverlayHost &overlays);

private:
    QQmlApplicationEngine engine;
    std::vector<std::unique_ptr<QQmlComponent>> early;
};
