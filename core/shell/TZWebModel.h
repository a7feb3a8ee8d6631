#pragma once

#include <QString>

/// A web page to show inside the client: the title of the screen and the full URL.
struct TZWebModel {
    QString title;
    QString url;
};
