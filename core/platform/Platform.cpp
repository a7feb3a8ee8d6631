#include "core/platform/Platform.h"

#include <QtGlobal>

namespace {
const Platform *installed = nullptr;
}

const Platform &Platform::current()
{
    Q_ASSERT_X(installed, "Platform", "used before install");
    return *installed;
}

void Platform::install(const Platform *platform)
{
    installed = platform;
}
