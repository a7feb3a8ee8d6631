#include "core/util/Amount.h"
