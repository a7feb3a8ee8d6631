#pragma once

#include "core/shell/KRBaseController.h"
#include "trading/api/TZDetailsTodayModel.h"
#include "trading/api/TZEntrustsTodayModel.h"
#include "trading/screens/TodayList.h"

/// One of today's entrusts or deals as its list shows it.
struct TodayRow {
    Q_GADGET
    Q_PROPERTY(QString stock MEMBER stock)
    Q_PROPERTY(QString side MEMBER side)
    Q_PROPERTY(bool isSell MEMBER isSell)
    Q_PROPERTY(QString time MEMBER time)
    Q_PROPERTY(QString price MEMBER price)
    Q_PROPERTY(QString shares MEMBER shares)
    /// The state of an entrust, the money of a deal.
    Q_PROPERTY(QString result MEMBER result)
    /// The two states of an entrust that stand out.
    Q_PROPERTY(bool dealt MEMBER dealt)
    Q_PROPERTY(bool waiting MEMBER waiting)
    /// The row as one sentence.
    Q_PROPERTY(QString sentence READ sentence)
public:
    QString stock;
    QString side;
    bool isSell = false;
    QString time;
    QString price;
    QString shares;
    QString result;
    /// What the shares are called.
    QString sharesLabel;
    bool dealt = false;
    bool waiting = false;
    QString id;

    static TodayRow of(const TZEntrustsTodayModel &entrust);
    static TodayRow of(const TZDetailsTodayModel &deal);
    QString sentence() const;
    QString identity() const { return id; }
};

/// Today's entrusts on the left page, today's deals on the right one. The deals are read when they are first
/// shown.
class TZDealAndEntrustController : public KRBaseController {
    Q_OBJECT
    Q_PROPERTY(QList<QString> pageTitles READ pageTitles CONSTANT)
    /// 0 the entrusts, 1 the deals.
    Q_PROPERTY(int currentPage READ currentPage WRITE showPage NOTIFY currentPageChanged)
    Q_PROPERTY(TodayList *entrustTableView READ entrustTableView CONSTANT)
    Q_PROPERTY(TodayList *dealTableView READ dealTableView CONSTANT)
public:
    /// The tags of the title buttons.
    enum TitleTag { EntrustTag = 10000, DealTag };
    Q_ENUM(TitleTag)

    TZDealAndEntrustController();

    QList<QString> pageTitles() const { return {QStringLiteral("当日委托"), QStringLiteral("当日成交")}; }
    int currentPage() const { return pageIndex; }
    TodayList *entrustTableView() { return &entrusts; }
    TodayList *dealTableView() { return &deals; }

    const QList<TZEntrustsTodayModel> &entrustArr() const { return entrusts.models(); }
    const QList<TZDetailsTodayModel> &dealsArr() const { return deals.models(); }
    int currentEntructPage() const { return entrusts.currentPage(); }
    int currentDealPage() const { return deals.currentPage(); }

    Q_INVOKABLE void titleBtnClick(int tag);
    /// What a swipe does too.
    void showPage(int index);
    Q_INVOKABLE void selectEntrust(int row);
    Q_INVOKABLE void selectDeal(int row);

    void viewDidLoad() override;
    void viewDidDisappear() override;

Q_SIGNALS:
    void currentPageChanged();

private:
    TodayListOf<TZEntrustsTodayModel, TodayRow> entrusts;
    TodayListOf<TZDetailsTodayModel, TodayRow> deals;
    int pageIndex = 0;
    /// The deals have been asked for.
    bool shouldReloadDealData = false;
};
