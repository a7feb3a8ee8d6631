#pragma once

#include "core/util/OwnedAction.h"

#include <QVariantMap>

class KRBaseController;
class KRNavigationController;
class QString;
struct TZStockInfoModel;
struct TZUserIndexModel;
struct TZWebModel;
struct TZZorvanePageStocksModel;

/// Runs after a sign-in that was asked for on the way to something else.
using ToSomeController = OwnedAction;

/// Every door from one area's screens to another's. `from` is the screen that asks: its stack receives what
/// is pushed, its window what is presented. What is asked for by a screen that is no longer in front is not
/// opened.
class Router {
public:
    virtual ~Router() = default;

    /// Presents the sign-in entry in a stack of its own; `toSomeController` (may be empty) runs once sign-in
    /// is complete.
    virtual void openSignIn(KRBaseController &from, ToSomeController toSomeController) = 0;
    /// Roots of the main frame, each in a new stack in the content area; closes the menu.
    virtual void showHome(KRBaseController &from) = 0;
    virtual void showMyAccount(KRBaseController &from) = 0;
    virtual void showCommissions(KRBaseController &from) = 0;
    /// Builds the main frame anew with home as its content.
    virtual void setupSideMenuController() = 0;

    virtual void openRealTrading(KRBaseController &from) = 0;
    /// The financing offers, told the state of the account; empty where it is not known.
    virtual void openStockCapital(KRBaseController &from, const TZUserIndexModel &userIndexModel) = 0;
    virtual void openMessages(KRBaseController &from) = 0;
    virtual void openWeb(KRBaseController &from, const TZWebModel &model) = 0;
    /// Reads the recharge information and opens the first unfinished step of the account, or the recharge
    /// screen.
    virtual void openRechargeGate(KRBaseController &from) = 0;
    virtual void openWithdraw(KRBaseController &from) = 0;
    virtual void openFundRecords(KRBaseController &from) = 0;
    virtual void openPersonal(KRBaseController &from) = 0;
    virtual void openWarning(KRBaseController &from) = 0;
    virtual void openMarginTopUp(KRBaseController &from) = 0;

    /// The detail that a pushed message opens, presented over everything. `information` has the fields of
    /// TZMessageModel.
    virtual void presentMessageDetail(const QVariantMap &information) = 0;
    /// As above, with the fields of TZEntrustsTodayModel.
    virtual void presentOrderDetail(const QVariantMap &information) = 0;
};
