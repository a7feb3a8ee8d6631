#pragma once

#include "http/Service.h"

namespace sandbox::http {

void addAccountRoutes(Router &router, Service &service); ///< "user/...", "index/bank_list", "image/upload"
void addStockRoutes(Router &router,
                    Service &service); ///< "info", "timelyInfo/timelyOrderForm", "stockDetailPage"
void addTradingRoutes(Router &router, Service &service); ///< pages of the sub-account and "entrust/..."
void addFundRoutes(Router &router, Service &service);    ///< "trade/...", "walletRecords", "commissions"
void addHomeRoutes(Router &router,
                   Service &service); ///< "userIndex", "loanOverview", "recentLoans", "warn", ...
void addMessageRoutes(Router &router, Service &service); ///< "msg/..." and the push stream
void addSandboxRoutes(Router &router, Service &service); ///< "sandbox/state" and "sandbox/fault"

} // namespace sandbox::http
