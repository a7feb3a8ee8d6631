#include "trading/api/TZStockInfoTool.h"

#include "core/net/KRAFHTTPClient.h"
#include "core/net/ToolPolicy.h"
#include "core/platform/ApplicationInfo.h"
#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/platform/SettingsStore.h"
#include "core/session/SettingsKeys.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/api/StockTable.h"

namespace {
std::unique_ptr<StockTable> &openedTable()
{
    static std::unique_ptr<StockTable> opened;
    return opened;
}

StockTable &table()
{
    std::unique_ptr<StockTable> &opened = openedTable();
    if (!opened) {
        const QString file =
            Platform::current().application.documentsDirectory() + QStringLiteral("/stock.sqlite");
        opened = std::make_unique<StockTable>(file, [](bool succeeded) {
            // The version of a list that is not there would hide it until there is a newer one.
            if (!succeeded)
                Platform::current().settings.remove(SettingsKeys::infoVersion);
            Platform::current().notifications.post(TZStockInfoTool::stockTableReplaced);
        });
    }
    return *opened;
}

/// Never null, which the table refuses.
QString fieldOf(const QVariantMap &row, const QString &key)
{
    const QString text = textForm(row.value(key));
    return text.isNull() ? QStringLiteral("") : text;
}

// As fromArray, without walking the meta-object: the list has thousands of rows. What has no code can be
// neither shown nor bought, and must not keep the others from it.
QList<TZStockInfoModel> stocksOf(const QVariantList &data)
{
    static const QString c = QStringLiteral("c");
    static const QString n = QStringLiteral("n");
    static const QString s = QStringLiteral("s");
    QList<TZStockInfoModel> stocks;
    stocks.reserve(data.size());
    for (const QVariant &element : data) {
        const QVariantMap row = element.toMap();
        const QString code = textForm(row.value(c));
        if (!Service::whetherAnEmptyString(code))
            stocks.append({code, fieldOf(row, n), fieldOf(row, s)});
    }
    return stocks;
}

void saveNewList(const QVariantMap &answer)
{
    SettingsStore &settings = Platform::current().settings;
    const QString code = textForm(answer.value(QStringLiteral("code")));
    if (!Service::whetherAnEmptyString(code)) {
        settings.setValue(SettingsKeys::infoVersion, code);
        settings.synchronize();
    }
    const QVariant data = answer.value(QStringLiteral("data"));
    if (data.typeId() != QMetaType::QVariantList)
        return;
    const QVariantList rows = data.toList();
    // A list of nothing but broken rows is none; the service may well list nothing.
    if (const QList<TZStockInfoModel> stocks = stocksOf(rows); rows.isEmpty() || !stocks.isEmpty())
        TZStockInfoTool::saveStockInfo(stocks);
}
} // namespace

Operation TZStockInfoTool::getStockInfoWithParam(const QVariantMap &, Success success, Failure andError)
{
    // A client that was ended between emptying and filling the table has the version of a list that it has
    // not: it would be told for ever that there is nothing newer.
    if (tableProblem().isEmpty() && isTableEmpty() && !isSaving())
        Platform::current().settings.remove(SettingsKeys::infoVersion);

    const auto done = [success = std::move(success)](const Operation &operation, const QVariantMap &answer) {
        if (!ToolPolicy::succeeded(answer)) {
            saveNewList(answer);
            return;
        }
        Service::hideWaitingProgressView();
        success(operation, answer);
    };
    return KRAFHTTPClient::get(ToolPolicy::url(QStringLiteral("info")), {}, Success::unowned(done),
                               std::move(andError));
}

void TZStockInfoTool::saveStockInfo(const QList<TZStockInfoModel> &stocks)
{
    table().replace(stocks);
}

bool TZStockInfoTool::isSaving()
{
    return table().isReplacing();
}

QList<TZStockInfoModel> TZStockInfoTool::queryWithCondition(const QString &condition)
{
    return table().query(condition);
}

bool TZStockInfoTool::isTableEmpty()
{
    return table().isEmpty();
}

QString TZStockInfoTool::tableProblem()
{
    return table().problem();
}

void TZStockInfoTool::close()
{
    openedTable().reset();
}
