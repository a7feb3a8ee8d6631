#pragma once

#include "core/session/DisplaySettings.h"
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

/// Rating, service number, feedback, recommendation; how the client looks; the way out of the account.
class TZMoreViewController : public TZBaseTableViewController {
    Q_OBJECT
    /// Rows of MoreRow.
    Q_PROPERTY(GadgetListModel *moreRows READ moreRows CONSTANT)
    /// How this device shows the client. The choices are places in their lists of titles.
    Q_PROPERTY(QString displayTitle READ displayTitle CONSTANT)
    Q_PROPERTY(QString paletteTitle READ paletteTitle CONSTANT)
    Q_PROPERTY(QStringList palettes READ palettes CONSTANT)
    Q_PROPERTY(int palette READ palette WRITE setPalette NOTIFY displayChanged)
    Q_PROPERTY(QString trendColoursTitle READ trendColoursTitle CONSTANT)
    Q_PROPERTY(QStringList trendColourPairs READ trendColourPairs CONSTANT)
    Q_PROPERTY(int trendColours READ trendColours WRITE setTrendColours NOTIFY displayChanged)
    Q_PROPERTY(QString textSizeTitle READ textSizeTitle CONSTANT)
    Q_PROPERTY(QStringList textSizes READ textSizes CONSTANT)
    Q_PROPERTY(int textSize READ textSize WRITE setTextSize NOTIFY displayChanged)
    Q_PROPERTY(QString logoutTitle READ logoutTitle CONSTANT)
public:
    explicit TZMoreViewController(Router &router);

    RowListModel<MoreRow> *moreRows() { return &rows; }
    QString displayTitle() const { return QStringLiteral("显示"); }
    QString paletteTitle() const { return QStringLiteral("外观"); }
    QStringList palettes() const
    {
        return {QStringLiteral("跟随系统"), QStringLiteral("浅色"), QStringLiteral("深色")};
    }
    int palette() const { return static_cast<int>(DisplaySettings::stored().palette); }
    void setPalette(int palette);
    QString trendColoursTitle() const { return QStringLiteral("涨跌颜色"); }
    QStringList trendColourPairs() const { return {QStringLiteral("红涨绿跌"), QStringLiteral("绿涨红跌")}; }
    int trendColours() const { return static_cast<int>(DisplaySettings::stored().trendColours); }
    void setTrendColours(int trendColours);
    QString textSizeTitle() const { return QStringLiteral("文字大小"); }
    QStringList textSizes() const { return {QStringLiteral("标准"), QStringLiteral("大号字")}; }
    int textSize() const { return static_cast<int>(DisplaySettings::stored().textSize); }
    void setTextSize(int textSize);
    QString logoutTitle() const { return QStringLiteral("退出登录"); }

    void viewDidLoad() override;
    Q_INVOKABLE void didSelectRow(int row);
    Q_INVOKABLE void clickLogoutBtn();

Q_SIGNALS:
    void displayChanged();

private:
    enum class AlertTag { Phone = 10000, Logout = 10001 };

    void showAlert(AlertTag tag, const TZInfoAlertViewModel &model);
    void alertConfirmed(AlertTag tag);
    void store(const DisplaySettings &display);
    void logout();
    void setupSideMenuController();

    Router &router;
    RowListModel<MoreRow> rows;
};
