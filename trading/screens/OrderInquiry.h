#pragma once

#include "core/platform/Timer.h"
#include "trading/screens/UnknownOrders.h"

#include <optional>

/// Reads today's entrusts, page by page, and settles the orders that are sought. What is not there at once
/// may reach the books late: a few seconds after a look in vain there may be another one. Reads without a
/// word.
class OrderInquiry : public QObject {
    Q_OBJECT
public:
    /// Looks that often before it says that nothing is there.
    OrderInquiry(QList<OrderIntent> orders, int mostLooks, QObject *parent);

    /// One of the signals follows.
    void start() { look(); }

Q_SIGNALS:
    void found(const QList<FoundOrder> &orders);
    void notFound();
    /// The entrusts could not be read to their end.
    void unreadable();

private:
    void look();
    void read(int page);
    void take(int page, const QVariant &data);
    void finish();
    bool isLast(const QList<TZEntrustsTodayModel> &page) const;

    const QList<OrderIntent> sought;
    int looksLeft;
    /// What the present look has read, and the first identifier of its latest page.
    QList<TZEntrustsTodayModel> entrusts;
    std::optional<QString> firstOfPreviousPage;
    Timer again;
};
