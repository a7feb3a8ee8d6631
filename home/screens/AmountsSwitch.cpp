#include "home/screens/AmountsSwitch.h"

#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/session/DisplaySettings.h"
#include "core/session/NotificationNames.h"

#include <utility>

AmountsSwitch::AmountsSwitch() : hidden(DisplaySettings::stored().amountsHidden)
{
    Platform::current().notifications.observe(this, NotificationNames::displayChanged,
                                              [this](const QVariant &) {
                                                  const bool now = DisplaySettings::stored().amountsHidden;
                                                  if (std::exchange(hidden, now) != now)
                                                      Q_EMIT changed();
                                              });
}

QString AmountsSwitch::title() const
{
    return hidden ? QStringLiteral("显示金额") : QStringLiteral("隐藏金额");
}

void AmountsSwitch::toggle()
{
    DisplaySettings display = DisplaySettings::stored();
    display.amountsHidden = !hidden;
    display.store();
}

QString AmountsSwitch::shown(const QString &amount) const
{
    return hidden ? QStringLiteral("****") : amount;
}
