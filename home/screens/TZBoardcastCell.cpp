#include "home/screens/TZBoardcastCell.h"

#include "core/util/Amount.h"
#include "core/util/Service.h"

TZBoardcastCell TZBoardcastCell::of(const TZRecentLoansModel &loan)
{
    const auto orEmpty = [](const QString &value) {
        return Service::whetherAnEmptyString(value) ? QString() : value;
    };
    return {orEmpty(loan.nick),
            QStringLiteral("申请操盘资金") + labelAmountWithYuan(orEmpty(loan.borrowMoney))};
}
