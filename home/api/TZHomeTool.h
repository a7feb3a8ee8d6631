#pragma once

#include "core/net/Callbacks.h"

/// The reads of the home area: GETs that take no parameters (`param` is always empty) and show the waiting
/// indicator.
///
/// Without a network nothing is sent: `success` gets the stored answer at once, with no operation. A refused
/// read answers from the stored copy too. A read that fails on the way does the same and then calls
/// `andError`. Where nothing is stored `success` is not called. An answer that arrives after its user has
/// signed out is dropped.
class TZHomeTool {
public:
    TZHomeTool() = delete;

    /// The answer's "data" is a TZUserIndexModel, its "asset" a TZUserIndexAssetModel.
    static Operation getHomeInfoWithParam(const QVariantMap &param, Success success, Failure andError);
    /// "data" is a TZLoanOverviewModel. Before the first good answer the built-in figures stand for the
    /// stored ones.
    static Operation getHomeLoanOverviewWithParam(const QVariantMap &param, Success success,
                                                  Failure andError);
    /// "data" is an array of TZRecentLoansModel; built-in rows as above.
    static Operation getHomeRecentLoansWithParam(const QVariantMap &param, Success success, Failure andError);
    /// `success` gets "safeMoneySupplement", a TZSafeMoneySupplementModel, and "safeMoneySupplementAsset", an
    /// array of TZSafeMoneySupplementAssetModel.
    static Operation getAddBailWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Never stored.
    static Operation getWarnInfoWithParam(const QVariantMap &param, Success success, Failure andError);
};
