#pragma once

#include <QString>

/// The first `most` UTF-16 units of a text; one less where a character that takes two would be cut in half.
QString firstUnits(const QString &text, qsizetype most);
