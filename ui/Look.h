#pragma once

/// Gives the application its typeface (with Chinese glyphs, bold weight and digits of equal width) and its
/// icon. Called once, after the application object was made.
void installLook();
