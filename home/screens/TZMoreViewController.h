#pragma once

#include "core/shell/Router.h"
#include "core/shell/TZBaseTableViewController.h"
#include "core/util/RowListModel.h"

struct TZInfoAlertViewModel;

struct MoreRow {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString image MEMBER image)
public:
    QString title;
    QString image;
};

/// Rating, service number, feedback, recommendation, and the way out of the account.
class TZMoreViewController : public TZBaseTableViewController {
    Q_OBJECT
    /// Rows of MoreRow.
    Q_PROPERTY(GadgetListModel *moreRows READ moreRows CONSTANT)
    Q_PROPERTY(QString logoutTitle READ logoutTitle CONSTANT)
public:
    explicit TZMoreViewController(Router &router);

    RowListModel<MoreRow> *moreRows() { return &rows; }
    QString logoutTitle() const { return QStringLiteral("退出登录"); }

    void viewDidLoad() override;
    Q_INVOKABLE void didSelectRow(int row);
    Q_INVOKABLE void clickLogoutBtn();

private:
    enum class AlertTag { Phone = 10000, Logout = 10001 };

    void showAlert(AlertTag tag, const TZInfoAlertViewModel &model);
    void alertConfirmed(AlertTag tag);
    void logout();
    void setupSideMenuController();

    Router &router;
    RowListModel<MoreRow> rows;
};
