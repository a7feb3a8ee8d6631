#include "core/session/DisplaySettings.h"

#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/platform/SettingsStore.h"
#include "core/session/NotificationNames.h"

#include <QVariantMap>

namespace {
const QString key = QStringLiteral("display");
const QString paletteKey = QStringLiteral("palette");
const QString trendColoursKey = QStringLiteral("trendColours");
const QString textSizeKey = QStringLiteral("textSize");
const QString amountsHiddenKey = QStringLiteral("amountsHidden");

template <typename Choice> Choice choice(const QVariant &stored, Choice last)
{
    const int number = stored.toInt();
    return number > 0 && number <= static_cast<int>(last) ? static_cast<Choice>(number) : Choice{};
}

template <typename Value> void note(QVariantMap &chosen, const QString &name, Value value)
{
    if (value != Value{})
        chosen.insert(name, static_cast<int>(value));
}
} // namespace

DisplaySettings DisplaySettings::stored()
{
    const QVariantMap chosen = Platform::current().settings.value(key).toMap();
    return {choice(chosen.value(paletteKey), Palette::Dark),
            choice(chosen.value(trendColoursKey), TrendColours::GreenRises),
            choice(chosen.value(textSizeKey), TextSize::Large), chosen.value(amountsHiddenKey).toInt() == 1};
}

void DisplaySettings::store() const
{
    QVariantMap chosen;
    note(chosen, paletteKey, palette);
    note(chosen, trendColoursKey, trendColours);
    note(chosen, textSizeKey, textSize);
    note(chosen, amountsHiddenKey, amountsHidden);
    SettingsStore &settings = Platform::current().settings;
    if (chosen.isEmpty())
        settings.remove(key);
    else
        settings.setValue(key, chosen);
    settings.synchronize();
    Platform::current().notifications.post(NotificationNames::displayChanged);
}
