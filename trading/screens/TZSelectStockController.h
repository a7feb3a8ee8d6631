#pragma once

#include "core/shell/KRBaseController.h"
#include "core/shell/MVNoNetView.h"
#include "core/util/RowListModel.h"
#include "trading/api/TZStockInfoModel.h"
#include "trading/screens/StockChooser.h"

#include <QPointer>

/// A stock as the search shows it: each text in three pieces, the middle one being what was searched for (""
/// when it is not in that text).
struct StockRow {
    Q_GADGET
    Q_PROPERTY(QStringList code MEMBER code)
    Q_PROPERTY(QStringList name MEMBER name)
    Q_PROPERTY(QStringList initials MEMBER initials)
    /// The row as one sentence for a screen reader.
    Q_PROPERTY(QString sentence MEMBER sentence)
public:
    QStringList code;
    QStringList name;
    QStringList initials;
    QString sentence;
};

/// The stock search: finds a stock of the local table by code, name or initials as one types, shows the
/// stocks picked before while nothing is typed, and fetches the list when there is none yet.
class TZSelectStockController : public KRBaseController, public MVNoNetViewDelegate {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QString placeholder READ placeholder CONSTANT)
    /// What was found, or the stocks picked before while nothing is typed.
    Q_PROPERTY(GadgetListModel *rows READ rows CONSTANT)
    Q_PROPERTY(bool recent READ isRecent NOTIFY shownChanged)
    /// The text in the place of an empty list, "" when there are rows.
    Q_PROPERTY(QString notice READ notice NOTIFY shownChanged)
    /// Whether `noNet` stands there, which offers to fetch the list again.
    Q_PROPERTY(bool canRetry READ canRetry NOTIFY shownChanged)
    Q_PROPERTY(MVNoNetView *noNet READ noNet CONSTANT)
    Q_PROPERTY(QString retryHint READ retryHint NOTIFY shownChanged)
    /// Below a list that was cut, otherwise "".
    Q_PROPERTY(QString footnote READ footnote NOTIFY shownChanged)
    /// The row that Enter picks; -1 for none.
    Q_PROPERTY(int currentRow READ currentRow NOTIFY currentRowChanged)
    /// The row that Enter picks and how many there are, or the notice: what one hears while typing.
    Q_PROPERTY(QString sentence READ sentence NOTIFY sentenceChanged)
public:
    /// The settings key of the stocks picked before, the latest first: a list of dictionaries with "c", "n",
    /// "s".
    static inline const QString recentStocksKey = QStringLiteral("recentStocks");
    static constexpr int maximumRecent = 10;
    static constexpr int maximumShown = 200;

    /// `delegate` lives as long as `owner`.
    TZSelectStockController(const QObject *owner, StockChooser *delegate);

    QString text() const { return searchText; }
    void setText(const QString &text);
    QString placeholder() const;
    GadgetListModel *rows() { return &shownRows; }
    bool isRecent() const;
    QString notice() const;
    bool canRetry() const;
    MVNoNetView *noNet() { return &noNetPanel; }
    QString retryHint() const;
    QString footnote() const;
    int currentRow() const { return selected; }
    QString sentence() const;

    Q_INVOKABLE void clearRecent();
    /// Up or down by `step` rows, staying inside the list.
    Q_INVOKABLE void moveCurrentRow(int step);
    Q_INVOKABLE void pickCurrentRow();
    /// Hands the stock to the delegate and leaves.
    Q_INVOKABLE void pick(int row);
    /// Opens the stock's detail over the search.
    Q_INVOKABLE void openDetail(int row);
    /// Fetches the stock list again after it could not be had.
    void reloadData() override;

    void viewDidLoad() override;
    void viewWillAppear() override;

Q_SIGNALS:
    void textChanged();
    void shownChanged();
    void currentRowChanged();
    void sentenceChanged();

private:
    /// Whether there is a list to search in, and if not, why.
    enum class ListState { Ready, Fetching, Failed, Offline, Missing, Unusable };

    bool hasText() const;
    /// A tap may still come while the screen is leaving or being covered.
    bool canAct(int row) const;
    void fetch();
    void readListState();
    void refresh();
    void setCurrentRow(int row);
    void remember(const TZStockInfoModel &stock);

    QPointer<const QObject> owner;
    StockChooser *delegate;
    QString searchText;
    QList<TZStockInfoModel> stocks;
    RowListModel<StockRow> shownRows;
    MVNoNetView noNetPanel{*this};
    ListState listState = ListState::Ready;
    bool cut = false;
    int selected = -1;
};
