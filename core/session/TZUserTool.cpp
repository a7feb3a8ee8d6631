#include "core/session/TZUserTool.h"
