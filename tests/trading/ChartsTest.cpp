#include "trading/charts/CandleChart.h"
#include "trading/charts/FigureTexts.h"
#include "trading/charts/IntradayChart.h"
#include "trading/charts/MovingAverage.h"
#include "trading/charts/TradingHours.h"
#include "trading/charts/VisibleRange.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {
constexpr double width = 360;
constexpr double height = 280;
constexpr double labelHeight = 16;

/// Rising by a cent a day, from 10 yuan.
QList<Candle> days(int count)
{
    QList<Candle> candles;
    for (int i = 0; i < count; ++i) {
        const double open = 10 + i * 0.01;
        candles.append({20200101 + i, open, open + 0.03, open - 0.02, open + 0.01, 1000.0 + i, 0});
    }
    return candles;
}

QStringList textsOf(StockChart &chart)
{
    QStringList texts;
    for (const ChartLabel &label : chart.labels()->rows())
        texts.append(label.text);
    return texts;
}

QString figure(StockChart &chart, const QString &label)
{
    for (const StockFigure &row : chart.readOut()->rows()) {
        if (row.label == label)
            return row.value;
    }
    return {};
}
} // namespace

TEST(ChartsTest, WhatCannotBeDrawnIsLeftOutAndTheRestIsInOrder)
{
    const auto row = [](const QVariant &day, const QVariant &open, const QVariant &high) {
        return QVariantMap{{"day", day}, {"open", open}, {"high", high},
                           {"low", "9"}, {"close", 10},  {"volume", "-5"}};
    };
    const QVariantList rows{row("20260106", "10", "11"),
                            row("20260105", "10", "10"),
                            7,
                            "x",
                            QVariant(),
                            row("", "10", "11"),
                            row("20260107", "0", "11"),
                            row("x", "1e300", "1"),
                            row("20260108", "12", "11"),
                            row("20260106", "10.5", "11")};
    const QList<Candle> candles = Series::candles(rows);
    ASSERT_EQ(candles.size(), 3);
    EXPECT_EQ(candles[0].day, 20260105);
    EXPECT_EQ(candles[0].volume, 0);
    EXPECT_EQ(candles[1].open, 10.5) << "the later of two of one day";
    EXPECT_EQ(candles[2].high, 12) << "stretched over its open";
    for (const QVariant &garbage : {QVariant(), QVariant("[]"), QVariant(QVariantMap{{"day", 1}})}) {
        EXPECT_TRUE(Series::candles(garbage).isEmpty());
        EXPECT_TRUE(Series::minutes(garbage).isEmpty());
    }
    EXPECT_EQ(Series::candles(QVariantList(Series::mostCandles + 9, row("20260105", "1", "1"))).size(), 1);
}

TEST(ChartsTest, MinutesAreThoseOfTheLastRowsDayInShanghai)
{
    const qint64 opening = 1'795'224'600'000; // 2026-11-21 9:30
    const auto row = [](qint64 time, const char *price) {
        return QVariantMap{{"time", QString::number(time)}, {"price", price}, {"average", "x"}};
    };
    const QList<Minute> minutes = Series::minutes(
        QVariantList{row(opening + 60'000, "10.1"), row(opening - 86'400'000, "8"), row(opening, "10"),
                     row(-5, "10"), row(std::numeric_limits<qint64>::max(), "10"), row(opening, "-1")});
    ASSERT_EQ(minutes.size(), 2);
    EXPECT_EQ(FigureTexts::clock(minutes[0].minute), "9:30");
    EXPECT_EQ(minutes[1].price, 10.1);
    EXPECT_EQ(minutes[1].average, 0);
    EXPECT_EQ(Series::dayNumber(opening), 20261121);
    EXPECT_EQ(Series::dayNumber(std::numeric_limits<qint64>::max()), 0);
}

TEST(ChartsTest, FiguresAreWrittenAsTradersReadThem)
{
    EXPECT_EQ(FigureTexts::price(1.005), "1.01");
    EXPECT_EQ(FigureTexts::price(0), "--");
    EXPECT_EQ(FigureTexts::change(0.1), "+0.10");
    EXPECT_EQ(FigureTexts::change(-0.001), "0.00");
    EXPECT_EQ(FigureTexts::change(9.72 - 10), "-0.28");
    EXPECT_EQ(FigureTexts::rate(0.115, 23), "+0.50%");
    EXPECT_EQ(FigureTexts::volume(98'799), "987手");
    EXPECT_EQ(FigureTexts::volume(12'345'678), "12.35万手");
    EXPECT_EQ(FigureTexts::money(9'876.5), "9876.50元");
    EXPECT_EQ(FigureTexts::money(123'456), "12.35万");
    EXPECT_EQ(FigureTexts::money(2.345e8), "2.35亿");
    EXPECT_EQ(FigureTexts::day(20260105), "2026-01-05");
    EXPECT_EQ(FigureTexts::clock(13 * 60 + 5), "13:05");
}

TEST(ChartsTest, PricesAreHeightsAndAxesHaveRoundOnes)
{
    const PriceScale scale{10, 20, 0, 100};
    EXPECT_EQ(scale.y(20), 0);
    EXPECT_EQ(scale.y(12.5), 75);
    EXPECT_EQ(scale.price(75), 12.5);
    const struct {
        double lowest, highest;
        QList<double> round;
    } table[] = {
        {10, 20, {10, 12, 14, 16, 18}},
        {9.97, 10.04, {9.98, 10, 10.02, 10.04}},
        {3.141, 3.142, {}},
        {99, 1234, {500, 1000}},
        {5, 5, {}},
    };
    for (const auto &row : table) {
        const QList<double> round = PriceScale{row.lowest, row.highest, 0, 1}.roundPrices(5);
        ASSERT_EQ(round.size(), row.round.size()) << row.lowest;
        for (qsizetype i = 0; i < round.size(); ++i)
            EXPECT_NEAR(round[i], row.round[i], 1e-9);
    }
    const PriceScale flat = PriceScale{8, 8, 0, 100}.padded(0.1);
    EXPECT_EQ(flat.y(8), 50);
}

TEST(ChartsTest, TheVisibleRangeStaysInsideWhatThereIs)
{
    VisibleRange range;
    range.setTotal(1000);
    EXPECT_EQ(range.first() + range.count(), 1000) << "opens on the latest days";
    range.setTotal(1001);
    EXPECT_EQ(range.first() + range.count(), 1001) << "and stays with them";
    range.pan(-100.5);
    EXPECT_EQ(range.first(), 1001 - VisibleRange::usual - 100.5);
    range.setTotal(1002);
    EXPECT_EQ(range.first(), 1001 - VisibleRange::usual - 100.5) << "unless the user went elsewhere";
    const double anchored = range.first() + 0.25 * range.count();
    range.zoom(2, 0.25);
    EXPECT_EQ(range.first() + 0.25 * range.count(), anchored);
    range.pan(-1e9);
    EXPECT_EQ(range.first(), 0);
    range.zoom(1e9, 0.5);
    EXPECT_EQ(range.count(), 1002);
    range.zoom(1e-9, 1);
    EXPECT_EQ(range.count(), VisibleRange::fewest);
    range.reveal(0);
    EXPECT_EQ(range.first(), 0);
    range.reveal(30);
    EXPECT_EQ(range.first(), 31 - VisibleRange::fewest);
    range.setTotal(3);
    EXPECT_EQ(range.first(), 0);
}

TEST(ChartsTest, MovingAveragesBeginWhenThereAreEnoughDays)
{
    const QList<double> means = movingAverage(days(7), 5);
    EXPECT_EQ(means[3], 0);
    EXPECT_NEAR(means[4], 10.03, 1e-9);
    EXPECT_NEAR(means[6], 10.05, 1e-9);
}

TEST(ChartsTest, TheLunchBreakIsTakenOutUnlessThereAreTradesOutsideTheHours)
{
    const TradingHours usual = TradingHours::of({{9 * 60 + 25, 1}, {15 * 60, 1}});
    const struct {
        int hour, minute;
        double position;
    } table[] = {{9, 25, 0},    {9, 30, 0},   {10, 30, 0.25}, {11, 30, 0.5},
                 {12, 15, 0.5}, {13, 0, 0.5}, {14, 0, 0.75},  {15, 0, 1}};
    for (const auto &row : table)
        EXPECT_EQ(usual.position(row.hour * 60 + row.minute), row.position) << row.hour << ':' << row.minute;
    EXPECT_EQ(usual.marks()[1].text, "11:30/13:00");
    const TradingHours always = TradingHours::of({{3 * 60, 1}});
    EXPECT_EQ(always.position(6 * 60), 0.25);
}

TEST(ChartsTest, TheRunningDayIsMeasuredAgainstYesterdayAndNeverBeyondTheLimits)
{
    IntradayChart chart;
    chart.resize(width, height, labelHeight);
    chart.setDay({}, {10, 11, 9});
    chart.layOut();
    EXPECT_TRUE(textsOf(chart).contains("10.00")) << "before the open: an empty grid around the close";
    EXPECT_TRUE(chart.picture().lines.isEmpty());

    chart.setDay({{570, 10.5, 10.4, 300}, {571, 10.2, 10.3, 100}}, {10, 11, 9});
    chart.layOut();
    EXPECT_NEAR(chart.priceScale().highest - 10, 10 - chart.priceScale().lowest, 1e-9);
    EXPECT_NEAR(chart.priceScale().highest, 10.53, 1e-9);
    ASSERT_EQ(chart.picture().lines.size(), 2);
    EXPECT_EQ(chart.picture().bars[0].tone, ChartTone::Rise);
    EXPECT_EQ(chart.picture().bars[1].tone, ChartTone::Fall);
    EXPECT_NEAR(chart.picture().bars[0].place.height(), 3 * chart.picture().bars[1].place.height(), 1e-9);

    chart.setPrice(11);
    chart.layOut();
    EXPECT_EQ(chart.priceScale().highest, 11);
    EXPECT_TRUE(textsOf(chart).contains("+10.00%"));
    EXPECT_EQ(chart.sentence(), "分时图，9:31，价格11.00，均价10.30，最高11.00，最低10.50");

    chart.setDay({{570, 10.5, 0, 0}}, {});
    chart.layOut();
    EXPECT_FALSE(textsOf(chart).join(QString()).contains(u'%')) << "nothing to measure against";
}

TEST(ChartsTest, CandlesStandWhereTheirPricesAreAndTakeTheLatestOne)
{
    CandleChart chart;
    chart.resize(width, height, labelHeight);
    QList<Candle> candles = days(static_cast<int>(VisibleRange::usual));
    candles.last().close = candles.constLast().open - 0.01;
    chart.setCandles(candles);
    chart.layOut();
    const auto &bars = chart.picture().bars;
    const auto fallen =
        std::find_if(bars.begin(), bars.end(), [](const auto &bar) { return bar.tone == ChartTone::Fall; });
    ASSERT_NE(fallen, bars.end());
    EXPECT_FALSE(fallen->hollow);
    const PriceScale &scale = chart.priceScale();
    EXPECT_NEAR(fallen->place.top(), scale.y(candles.constLast().high), 1e-6) << "the wick";
    EXPECT_NEAR((fallen + 2)->place.bottom(), scale.y(candles.constLast().close), 1) << "the body";
    EXPECT_GT(fallen->place.left(), width - width / VisibleRange::usual - 1);
    EXPECT_EQ(chart.legend()->rows().constFirst().text.left(4), "MA5 ");

    chart.setPrice(12, candles.constLast().day + 1);
    EXPECT_FALSE(chart.sentence().contains("收12.00")) << "another day's";
    chart.setPrice(12, candles.constLast().day);
    EXPECT_TRUE(chart.sentence().contains("高12.00")) << chart.sentence().toStdString();
}

TEST(ChartsTest, TheCrossHairReadsOutADayAndWalksWithTheKeyboard)
{
    CandleChart chart;
    chart.resize(width, height, labelHeight);
    chart.step(-1);
    EXPECT_FALSE(chart.isCrossed()) << "nothing to stand on";
    chart.setCandles(days(200));
    chart.pointAt(width - 1, 100);
    EXPECT_EQ(chart.crossTime(), FigureTexts::day(20200101 + 199));
    EXPECT_EQ(figure(chart, "涨跌"), "+0.01");
    EXPECT_EQ(chart.crossY(), 100);
    EXPECT_EQ(chart.crossPrice(), FigureTexts::price(chart.priceScale().price(100)));
    EXPECT_TRUE(chart.pointAway());
    EXPECT_FALSE(chart.pointAway());

    chart.step(-1);
    EXPECT_EQ(chart.crossTime(), FigureTexts::day(20200101 + 199)) << "begins at the latest";
    for (int i = 0; i < 150; ++i)
        chart.step(-1);
    EXPECT_EQ(chart.crossTime(), FigureTexts::day(20200101 + 49));
    EXPECT_EQ(chart.visibleRange().first(), 49) << "the picture follows";
    EXPECT_EQ(chart.crossPrice(), "10.50");
    EXPECT_TRUE(chart.readOutSentence().contains("收10.50"));
    chart.setCandles(days(10));
    chart.layOut();
    EXPECT_EQ(chart.crossTime(), FigureTexts::day(20200101 + 9)) << "stays on what there is";
    chart.setCandles({});
    chart.layOut();
    EXPECT_FALSE(chart.isCrossed());
}

TEST(ChartsTest, TheCostIsALineWhileItIsInSight)
{
    CandleChart chart;
    chart.resize(width, height, labelHeight);
    chart.setCandles(days(60));
    const auto costLine = [&chart] {
        chart.layOut();
        return std::any_of(chart.picture().lines.begin(), chart.picture().lines.end(),
                           [](const auto &line) { return line.tone == ChartTone::Cost; });
    };
    EXPECT_FALSE(costLine());
    chart.setCost(10.2);
    EXPECT_TRUE(costLine());
    EXPECT_TRUE(textsOf(chart).contains("成本 10.20"));
    chart.setCost(20);
    EXPECT_FALSE(costLine());
}

TEST(ChartsTest, AThousandDaysAtOnceKeepTheirPictureSmall)
{
    CandleChart chart;
    chart.resize(width, height, labelHeight);
    chart.setCandles(days(1000));
    chart.zoom(1000, 0);
    chart.layOut();
    EXPECT_EQ(chart.visibleRange().count(), 1000);
    for (const ChartPicture::Line &line : chart.picture().lines)
        EXPECT_LE(line.points.size(), width + 200);
    chart.drag(1e9);
    chart.layOut();
    EXPECT_EQ(chart.visibleRange().first(), 0);
}
