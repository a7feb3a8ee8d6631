#pragma once

#include <future>

/// Gives the application its typeface (with Chinese glyphs, bold weight and digits of equal width) and its
/// icon. Made once, right after the application object, and gone before it: the system's fonts are read on
/// another thread, which is waited for.
class Look {
public:
    Look();

private:
    std::future<void> fonts;
};
