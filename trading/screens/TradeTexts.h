#pragma once

#include <QList>
#include <QString>
#include <utility>

/// How fields of entrusts and deals are written.
namespace TradeTexts {

/// "name(code)".
QString stock(const QString &name, const QString &code);
/// "1" is "买入", everything else "卖出".
bool isSell(const QString &type);
QString side(const QString &type);
/// Milliseconds since 1970 as "yyyy-MM-dd HH:mm" in the device's time zone; what is not a number stays as it
/// is.
QString time(const QString &stamp);

/// One sentence for those who do not see the columns: "of，label value，…" without the figures that are
/// blank.
QString sentence(const QString &of, const QList<std::pair<QString, QString>> &figures);

} // namespace TradeTexts
