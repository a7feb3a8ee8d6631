#pragma once

#include "core/platform/Timer.h"
#include "trading/screens/OrderIntent.h"

/// Looks through today's entrusts, page by page, for the one that an order became. What is not there at once
/// may reach the books late: a few seconds after a first look in vain there is a second one.
class OrderInquiry : public QObject {
    Q_OBJECT
public:
    explicit OrderInquiry(OrderIntent order) : intent(std::move(order)) {}

    /// One of the signals follows.
    void start();

Q_SIGNALS:
    void found(const TZEntrustsTodayModel &entrust);
    void notFound();
    /// The entrusts could not be read to their end.
    void unreadable();

private:
    void read(int page);
    void look(int page, const QList<TZEntrustsTodayModel> &entrusts);
    bool isLast(const QList<TZEntrustsTodayModel> &entrusts) const;

    const OrderIntent intent;
    QString firstOfLastPage;
    int looks = 0;
    Timer again;
};
