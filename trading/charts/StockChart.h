#pragma once

#include "core/util/RowListModel.h"
#include "trading/charts/ChartPicture.h"
#include "trading/charts/PriceScale.h"

#include <QPointF>
#include <QSizeF>
#include <optional>

/// A text on a chart. At `place` it begins (`side` -1), has its middle (0) or ends (1).
struct ChartLabel {
    Q_GADGET
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QPointF place MEMBER place)
    Q_PROPERTY(int side MEMBER side)
    /// A ChartTone.
    Q_PROPERTY(int tone READ toneNumber)
public:
    QString text;
    QPointF place;
    int side = 0;
    ChartTone tone = ChartTone::Text;

    int toneNumber() const { return static_cast<int>(tone); }
};

/// A named figure; `trend` is 1 rise, 0 flat or none, -1 fall.
struct StockFigure {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(int trend MEMBER trend)
public:
    QString label;
    QString value;
    int trend = 0;
};

/// A chart of prices with the volumes under it and a cross-hair. It has no GUI: the view tells it its size
/// and where the pointer is, asks it before a frame to `layOut`, and draws its picture and labels. Lengths in
/// points.
class StockChart : public QObject {
    Q_OBJECT
    /// Rows of ChartLabel. Those of the legend have no place: they stand side by side in the top strip, which
    /// is as high as a label; its figures are those under the cross-hair, else the latest.
    Q_PROPERTY(GadgetListModel *labels READ labels CONSTANT)
    Q_PROPERTY(GadgetListModel *legend READ legend CONSTANT)
    /// Dragging and zooming move through time; otherwise a drag moves the cross-hair.
    Q_PROPERTY(bool draggable READ isDraggable CONSTANT)
    /// There is nothing to draw.
    Q_PROPERTY(bool empty READ isEmpty NOTIFY changed)
    /// The chart's main figures as a sentence.
    Q_PROPERTY(QString sentence READ sentence NOTIFY changed)
    Q_PROPERTY(bool crossed READ isCrossed NOTIFY crossHairChanged)
    Q_PROPERTY(double crossX READ crossX NOTIFY crossHairChanged)
    Q_PROPERTY(double crossY READ crossY NOTIFY crossHairChanged)
    /// The price at the cross-hair's height, the time of what it stands on.
    Q_PROPERTY(QString crossPrice READ crossPrice NOTIFY crossHairChanged)
    Q_PROPERTY(QString crossTime READ crossTime NOTIFY crossHairChanged)
    /// Between the prices and the volumes, where the times are written.
    Q_PROPERTY(double timeY READ timeY NOTIFY laidOut)
    /// What the cross-hair stands on: rows of StockFigure, and as a sentence.
    Q_PROPERTY(GadgetListModel *readOut READ readOut CONSTANT)
    Q_PROPERTY(QString readOutSentence READ readOutSentence NOTIFY crossHairChanged)
public:
    using QObject::QObject;

    RowListModel<ChartLabel> *labels() { return &labelRows; }
    RowListModel<ChartLabel> *legend() { return &legendRows; }
    virtual bool isDraggable() const { return false; }
    virtual bool isEmpty() const = 0;
    virtual QString sentence() const = 0;
    bool isCrossed() const { return cross.has_value(); }
    double crossX() const { return shownCross.x(); }
    double crossY() const { return shownCross.y(); }
    QString crossPrice() const;
    QString crossTime() const;
    double timeY() const { return areas.timeMiddle; }
    RowListModel<StockFigure> *readOut() { return &readOutRows; }
    QString readOutSentence() const;

    Q_INVOKABLE void resize(double width, double height, double labelHeight);
    /// Draws anew what changed since the last time.
    Q_INVOKABLE void layOut();
    const ChartPicture &picture() const { return drawn; }
    const PriceScale &priceScale() const { return scale; }

    /// Puts the cross-hair on what is nearest to a point; beside the prices it takes the price there.
    Q_INVOKABLE void pointAt(double x, double y);
    /// Takes it away; false when there was none.
    Q_INVOKABLE bool pointAway();
    /// Moves it by `by` minutes or days, at their price; from nowhere to the latest.
    Q_INVOKABLE void step(int by);
    /// Moves the picture with a finger; to the right shows what was earlier.
    Q_INVOKABLE virtual void drag(double) {}
    /// Shows `factor` times as much around `x`.
    Q_INVOKABLE virtual void zoom(double, double) {}

    /// What the user paid for a share on average, drawn as a line where it is in sight; 0 for none.
    void setCost(double yuan);

Q_SIGNALS:
    /// There is something new to lay out.
    void changed();
    void laidOut();
    void crossHairChanged();

protected:
    /// Where the parts of the chart lie.
    struct Areas {
        double width = 0;
        double labelHeight = 0;
        double priceTop = 0;
        double priceBottom = 1;
        double timeMiddle = 0;
        double volumeTop = 0;
        double volumeBottom = 1;

        bool areDrawable() const { return width > 0 && priceBottom > priceTop && volumeBottom > volumeTop; }
    };

    void touch();
    virtual void draw(ChartPicture &picture, QList<ChartLabel> &texts) = 0;
    /// Of what the cross-hair can stand on, by index from the oldest.
    virtual int count() const = 0;
    virtual int indexAt(double x) const = 0;
    virtual double middleOf(int index) const = 0;
    virtual double priceOf(int index) const = 0;
    virtual QString timeOf(int index) const = 0;
    virtual QList<StockFigure> figuresOf(int index) const = 0;
    /// How far `price` is from `base`, in yuan and in percent; dashes without a base.
    static QList<StockFigure> changeFigures(double price, double base);
    virtual QList<ChartLabel> legendOf(int index) const = 0;
    virtual void reveal(int) {}

    void drawCost(ChartPicture &picture, QList<ChartLabel> &texts) const;
    ChartPicture::Bar volumeBar(double left, double width, double volume, double largest,
                                ChartTone tone) const;
    void labelVolume(double largest, QList<ChartLabel> &texts) const;

    Areas areas;
    PriceScale scale;

private:
    struct Cross {
        int index = 0;
        /// Of the pointer among the prices; otherwise the cross-hair is at its own price.
        std::optional<double> y;
    };
    void showCross();
    void hideCross();
    void showLegend();

    RowListModel<ChartLabel> labelRows;
    RowListModel<ChartLabel> legendRows;
    RowListModel<StockFigure> readOutRows;
    ChartPicture drawn;
    QSizeF size;
    double cost = 0;
    bool stale = false;
    std::optional<Cross> cross;
    QPointF shownCross;
};

/// 1, 0 or -1: how `price` stands to `base`; 0 when either is unknown.
int trendOf(double price, double base);
ChartTone toneOf(int trend);
