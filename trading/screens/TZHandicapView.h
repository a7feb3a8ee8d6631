#pragma once

#include "core/util/RowListModel.h"
#include "trading/api/TZHandicapModel.h"

/// A level as it is drawn. Absent texts are dashes.
struct HandicapRow {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString price MEMBER price)
    Q_PROPERTY(QString volume MEMBER volume)
    /// The volume as a part of the deepest level of both sides, 0 to 1.
    Q_PROPERTY(double share MEMBER share)
    /// Of the price against yesterday's close: 1 rise, 0 flat or unknown, -1 fall.
    Q_PROPERTY(int trend MEMBER trend)
    /// There is a price to pick.
    Q_PROPERTY(bool selectable MEMBER selectable)
public:
    QString title;
    QString price;
    QString volume;
    double share = 0;
    int trend = 0;
    bool selectable = false;
};

/// One side of the order book.
class TZHandicapView : public QObject {
    Q_OBJECT
    Q_PROPERTY(GadgetListModel *rows READ rows CONSTANT)
    /// Below a best level that is not in the first row the next block begins, with the worst.
    Q_PROPERTY(int bestRow READ bestRow CONSTANT)
    /// The one row that the keyboard comes to: first the best level, then the one it left, or the nearest to
    /// it that has a price; -1 when none has.
    Q_PROPERTY(int keyRow READ keyRow WRITE setKeyRow NOTIFY keyRowChanged)
public:
    explicit TZHandicapView(int rowOfBest = 0) : best(rowOfBest), wantedKeyRow(rowOfBest) {}

    /// Posted with {"price": text} when a level is tapped.
    static inline const QString priceSelectNotification = QStringLiteral("HandicapPriceSelectNotification");

    /// What the rows of both sides are measured against.
    struct Scale {
        double deepestVolume = 0;
        /// Yuan; 0 when unknown.
        double previousClose = 0;

        static Scale of(const QList<TZHandicapModel> &buyLevels, const QList<TZHandicapModel> &sellLevels,
                        double previousClose);
    };

    void setLevels(const QList<TZHandicapModel> &levels, const Scale &scale);
    RowListModel<HandicapRow> *rows() { return &shownRows; }

    Q_INVOKABLE void selectHandicap(int row);

    int bestRow() const { return best; }
    int keyRow() const;
    void setKeyRow(int row);
    /// The next row with a price after `row`, counted by `step`, 1 or -1; -1 when there is none.
    Q_INVOKABLE int rowBeyond(int row, int step) const;

Q_SIGNALS:
    void keyRowChanged();
    /// Before the notification: a screen that is no order entry opens one, which then receives the price.
    void aboutToSelect();

private:
    bool isSelectable(int row) const;

    const int best;
    int wantedKeyRow;
    QList<TZHandicapModel> shownLevels;
    RowListModel<HandicapRow> shownRows;
};
