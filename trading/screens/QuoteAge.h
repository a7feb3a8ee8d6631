#pragma once

#include "core/platform/Timer.h"

#include <QObject>
#include <optional>

/// How long ago the quote on a screen came. Wakes up only while running, and only when its text changes.
class QuoteAge : public QObject {
    Q_OBJECT
    /// Ten seconds have passed without a quote.
    Q_PROPERTY(bool stale READ isStale NOTIFY changed)
    /// The age as a sentence while stale, "" otherwise.
    Q_PROPERTY(QString text READ text NOTIFY changed)
public:
    using QObject::QObject;

    static constexpr std::chrono::seconds limit{10};

    bool isStale() const { return !sentence.isEmpty(); }
    QString text() const { return sentence; }

    /// Quotes are asked for from now on: counts from the latest one, from now when there is none.
    void start();
    /// Nobody looks; what came last goes on ageing.
    void stop();
    /// A good quote came.
    void restart();
    /// What is shown is no quote any more: the stock is another one.
    void forget();

Q_SIGNALS:
    void changed();

private:
    void update();
    void say(const QString &text);

    bool running = false;
    Timer next;
    /// Milliseconds since 1970.
    std::optional<qint64> since;
    QString sentence;
};
