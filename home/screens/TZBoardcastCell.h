#pragma once

#include "home/api/TZLoanOverviewModel.h"

/// A row of the ticker.
struct TZBoardcastCell {
    Q_GADGET
    /// One after the other they are the text of the row.
    Q_PROPERTY(QString nick MEMBER nick)
    Q_PROPERTY(QString deed MEMBER deed)
public:
    static TZBoardcastCell of(const TZRecentLoansModel &loan);

    QString nick;
    QString deed;
};
