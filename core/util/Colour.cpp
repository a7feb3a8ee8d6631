#include "core/util/Colour.h"
