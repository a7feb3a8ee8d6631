#pragma once

#include "trading/charts/Series.h"

/// For each candle the mean close of it and the `days` - 1 before it; 0 where there are not that many.
QList<double> movingAverage(const QList<Candle> &candles, int days);
