#include "ui/Display.h"

#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/session/DisplaySettings.h"
#include "core/session/NotificationNames.h"

Display::Display(QObject *parent) : QObject(parent)
{
    Platform::current().notifications.observe(this, NotificationNames::displayChanged,
                                              [this](const QVariant &) { Q_EMIT changed(); });
}

bool Display::followsSystem()
{
    return DisplaySettings::stored().palette == DisplaySettings::Palette::System;
}

bool Display::prefersDark()
{
    return DisplaySettings::stored().palette == DisplaySettings::Palette::Dark;
}

bool Display::greenRises()
{
    return DisplaySettings::stored().trendColours == DisplaySettings::TrendColours::GreenRises;
}

qreal Display::textScale()
{
    return DisplaySettings::stored().textSize == DisplaySettings::TextSize::Large ? 1.3 : 1;
}
