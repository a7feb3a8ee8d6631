#pragma once

#include <functional>
#include <memory>
#include <vector>

class KRBaseController;
class Router;

/// A screen of the client, as it comes first.
struct AnyScreen {
    const char *name;
    std::function<std::unique_ptr<KRBaseController>(Router &)> make;
};

/// Every screen that can be pushed; a new one is added here.
const std::vector<AnyScreen> &allScreens();
