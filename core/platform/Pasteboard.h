#pragma once

#include <QString>

class Pasteboard {
public:
    virtual ~Pasteboard() = default;
    virtual void setText(const QString &text) = 0;
};
