#include "trading/charts/MovingAverage.h"

QList<double> movingAverage(const QList<Candle> &candles, int days)
{
    QList<double> means(candles.size(), 0);
    double sum = 0;
    for (qsizetype i = 0; i < candles.size(); ++i) {
        sum += candles.at(i).close;
        if (i >= days)
            sum -= candles.at(i - days).close;
        if (i >= days - 1)
            means[i] = sum / days;
    }
    return means;
}
