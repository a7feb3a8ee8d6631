#include "core/net/KRAFHTTPClient.h"
