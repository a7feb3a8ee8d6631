#pragma once

#include "core/platform/Pasteboard.h"

class QtPasteboard : public Pasteboard {
public:
    void setText(const QString &text) override;
};
