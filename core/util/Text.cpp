#include "core/util/Text.h"
