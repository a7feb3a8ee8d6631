#pragma once

class QQuickWindow;

/// Once `window` has shown its first frame, prints "first_frame_ns N rss_kb M" (N on the monotonic clock, M
/// the resident memory half a second later); the program then goes on until it is ended.
void reportFirstFrame(QQuickWindow *window);
