#include "core/util/Service.h"
