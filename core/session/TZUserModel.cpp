#include "core/session/TZUserModel.h"
