#include "trading/screens/TZSelectStockController.h"

#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/platform/SettingsStore.h"
#include "core/session/NotificationNames.h"
#include "core/session/SettingsKeys.h"
#include "core/shell/KRNavigationController.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/api/TZStockInfoTool.h"
#include "trading/screens/TZStockDetailController.h"

#include <algorithm>
#include <array>

namespace {
/// Where a stock stands among those found: what was typed is its code, begins one of its texts, or stands
/// inside one.
enum class Rank { ExactCode, Prefix, Inside };

Rank rankOf(const TZStockInfoModel &stock, const QString &text)
{
    if (stock.c.compare(text, Qt::CaseInsensitive) == 0)
        return Rank::ExactCode;
    const bool begins = stock.c.startsWith(text, Qt::CaseInsensitive) ||
                        stock.n.startsWith(text, Qt::CaseInsensitive) ||
                        stock.s.startsWith(text, Qt::CaseInsensitive);
    return begins ? Rank::Prefix : Rank::Inside;
}

/// By rank, inside a rank in the table's own order; at most `limit`.
QList<TZStockInfoModel> ranked(const QList<TZStockInfoModel> &found, const QString &text, qsizetype limit)
{
    std::array<QList<TZStockInfoModel>, 3> ranks;
    for (const TZStockInfoModel &stock : found) {
        QList<TZStockInfoModel> &rank = ranks[static_cast<size_t>(rankOf(stock, text))];
        if (rank.size() < limit)
            rank.append(stock);
    }
    return (ranks[0] + ranks[1] + ranks[2]).mid(0, limit);
}

QStringList piecesOf(const QString &whole, const QString &searched)
{
    const qsizetype at = searched.isEmpty() ? -1 : whole.indexOf(searched, 0, Qt::CaseInsensitive);
    if (at < 0)
        return {whole, {}, {}};
    return {whole.left(at), whole.mid(at, searched.size()), whole.mid(at + searched.size())};
}

StockRow rowOf(const TZStockInfoModel &stock, const QString &searched)
{
    const QString sentence = QStringList{stock.n, stock.c, stock.s}.join(QLatin1Char(' '));
    return {piecesOf(stock.c, searched), piecesOf(stock.n, searched), piecesOf(stock.s, searched), sentence};
}

QList<TZStockInfoModel> storedRecent()
{
    const QVariant stored = Platform::current().settings.value(TZSelectStockController::recentStocksKey);
    QList<TZStockInfoModel> stocks = fromArray<TZStockInfoModel>(stored);
    stocks.removeIf([](const TZStockInfoModel &stock) { return Service::whetherAnEmptyString(stock.c); });
    return stocks.mid(0, TZSelectStockController::maximumRecent);
}
} // namespace

TZSelectStockController::TZSelectStockController(const QObject *delegateOwner, StockChooser *stockChooser)
    : owner(delegateOwner), delegate(stockChooser)
{
}

void TZSelectStockController::viewDidLoad()
{
    KRBaseController::viewDidLoad();
    setTitle(QStringLiteral("选择股票"));
    setShowBackButton(true);
    changeGrayBgColor();
    NotificationCenter &notifications = Platform::current().notifications;
    notifications.observe(this, TZStockInfoTool::stockTableReplaced,
                          [this](const QVariant &) { readListState(); });
    notifications.observe(this, NotificationNames::reachabilityChanged, [this](const QVariant &) {
        if (listState == ListState::Offline &&
            Platform::current().settings.value(SettingsKeys::networkStatus).toBool())
            fetch();
    });
    readListState();
}

void TZSelectStockController::viewWillAppear()
{
    KRBaseController::viewWillAppear();
    if (listState == ListState::Missing)
        fetch();
}

void TZSelectStockController::fetch()
{
    if (!Service::isConnectionAvailable()) {
        listState = ListState::Offline;
        refresh();
        return;
    }
    listState = ListState::Fetching;
    showWaitingView();
    const Failure failed(this,
                         [this](const Operation &, const RequestError &) { listState = ListState::Failed; });
    const Operation request = TZStockInfoTool::getStockInfoWithParam({}, {}, failed);
    connect(request.get(), &RequestOperation::finished, this, [this] {
        if (listState == ListState::Fetching)
            readListState();
        refresh();
    });
    refresh();
}

void TZSelectStockController::readListState()
{
    if (!TZStockInfoTool::tableProblem().isEmpty())
        listState = ListState::Unusable;
    else if (!TZStockInfoTool::isTableEmpty())
        listState = ListState::Ready;
    else
        listState = TZStockInfoTool::isSaving() ? ListState::Fetching : ListState::Missing;
    refresh();
}

void TZSelectStockController::refresh()
{
    const QString condition = searchText.trimmed();
    const QList<TZStockInfoModel> found =
        condition.isEmpty() ? storedRecent() : TZStockInfoTool::queryWithCondition(condition);
    cut = found.size() > maximumShown;
    stocks = condition.isEmpty() ? found : ranked(found, condition, maximumShown);
    QList<StockRow> shown;
    for (const TZStockInfoModel &stock : std::as_const(stocks))
        shown.append(rowOf(stock, condition));
    shownRows.setRows(std::move(shown));
    setCurrentRow(condition.isEmpty() || stocks.isEmpty() ? -1 : 0);
    Q_EMIT shownChanged();
    Q_EMIT sentenceChanged();
}

bool TZSelectStockController::hasText() const
{
    return !searchText.trimmed().isEmpty();
}

QString TZSelectStockController::placeholder() const
{
    return QStringLiteral("请输入股票代码或拼音");
}

void TZSelectStockController::setText(const QString &text)
{
    if (searchText == text)
        return;
    searchText = text;
    Q_EMIT textChanged();
    refresh();
}

bool TZSelectStockController::isRecent() const
{
    return !hasText() && !stocks.isEmpty();
}

QString TZSelectStockController::notice() const
{
    if (!stocks.isEmpty())
        return {};
    switch (listState) {
    case ListState::Fetching:
        return QStringLiteral("正在获取股票列表");
    case ListState::Failed:
        return QStringLiteral("加载失败");
    case ListState::Offline:
        return QStringLiteral("网络异常");
    case ListState::Missing:
        return QStringLiteral("暂无股票列表");
    case ListState::Unusable:
        return QStringLiteral("本地股票列表无法使用，请重新启动或重新安装");
    case ListState::Ready:
        break;
    }
    return hasText() ? QStringLiteral("没有找到相关股票") : QStringLiteral("输入股票代码、名称或拼音首字母");
}

bool TZSelectStockController::canRetry() const
{
    return stocks.isEmpty() && (listState == ListState::Failed || listState == ListState::Offline ||
                                listState == ListState::Missing);
}

QString TZSelectStockController::retryHint() const
{
    return listState == ListState::Offline ? QStringLiteral("网络恢复后会自动获取股票列表")
                                           : QStringLiteral("获取股票列表后才能查找");
}

QString TZSelectStockController::footnote() const
{
    return cut ? QStringLiteral("只显示前%1条，请输入更多内容").arg(maximumShown) : QString();
}

void TZSelectStockController::reloadData()
{
    if (canRetry())
        fetch();
}

void TZSelectStockController::clearRecent()
{
    SettingsStore &settings = Platform::current().settings;
    settings.remove(recentStocksKey);
    settings.synchronize();
    refresh();
}

void TZSelectStockController::moveCurrentRow(int step)
{
    if (!stocks.isEmpty())
        setCurrentRow(std::clamp(selected + step, 0, static_cast<int>(stocks.size()) - 1));
}

void TZSelectStockController::setCurrentRow(int row)
{
    if (selected == row)
        return;
    selected = row;
    Q_EMIT currentRowChanged();
    Q_EMIT sentenceChanged();
}

QString TZSelectStockController::sentence() const
{
    if (selected < 0)
        return notice();
    return QStringLiteral("%1，第%2条，共%3条")
        .arg(shownRows.at(selected).sentence, QString::number(selected + 1), QString::number(stocks.size()));
}

void TZSelectStockController::pickCurrentRow()
{
    pick(selected);
}

void TZSelectStockController::pick(int row)
{
    if (!canAct(row))
        return;
    const TZStockInfoModel stock = stocks.at(row);
    remember(stock);
    if (owner)
        delegate->chooseStock(stock);
    navigationController()->pop();
}

void TZSelectStockController::openDetail(int row)
{
    if (!canAct(row))
        return;
    TZZorvanePageStocksModel stock;
    stock.stockCode = stocks.at(row).c;
    stock.stockName = stocks.at(row).n;
    endEditing();
    navigationController()->push(std::make_unique<TZStockDetailController>(std::move(stock)));
}

bool TZSelectStockController::canAct(int row) const
{
    return row >= 0 && row < stocks.size() && isOnTop();
}

void TZSelectStockController::remember(const TZStockInfoModel &stock)
{
    QList<TZStockInfoModel> recent = storedRecent();
    recent.removeIf([&stock](const TZStockInfoModel &other) { return other.c == stock.c; });
    recent.prepend(stock);
    QVariantList stored;
    for (const TZStockInfoModel &each : recent.mid(0, maximumRecent))
        stored.append(toDictionary(each));
    SettingsStore &settings = Platform::current().settings;
    settings.setValue(recentStocksKey, stored);
    settings.synchronize();
}
