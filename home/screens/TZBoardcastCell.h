#pragma once

#include "home/api/TZLoanOverviewModel.h"

/// A row of the ticker.
struct TZBoardcastCell {
    Q_GADGET
    Q_PROPERTY(QString text MEMBER text)
public:
    static TZBoardcastCell of(const TZRecentLoansModel &loan);

    QString text;
};
