#include "tests/support/TestPlatform.h"

#include "core/session/SettingsKeys.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrlQuery>
#include <algorithm>

struct ManualRunLoop::Handle : RunLoopTimer {
    Handle(ManualRunLoop *owner, std::chrono::milliseconds every, Repeat kind, std::function<void()> function)
        : loop(owner), interval(std::max<qint64>(every.count(), 0)), repeat(kind), fire(std::move(function)),
          due(owner->time + interval)
    {
        loop->timers.push_back(this);
    }
    ~Handle() override
    {
        if (loop)
            loop->timers.remove(this);
    }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    ManualRunLoop *loop;
    const qint64 interval;
    const Repeat repeat;
    const std::function<void()> fire;
    qint64 due;
};

ManualRunLoop::~ManualRunLoop()
{
    for (Handle *timer : timers)
        timer->loop = nullptr;
}

std::unique_ptr<RunLoopTimer> ManualRunLoop::start(std::chrono::milliseconds interval, Repeat repeat,
                                                   std::function<void()> fire)
{
    return std::make_unique<Handle>(this, interval, repeat, std::move(fire));
}

void ManualRunLoop::advance(std::chrono::milliseconds by)
{
    const qint64 end = time + by.count();
    const auto earlier = [](const Handle *a, const Handle *b) { return a->due < b->due; };
    for (auto next = std::min_element(timers.begin(), timers.end(), earlier);
         next != timers.end() && (*next)->due <= end;
         next = std::min_element(timers.begin(), timers.end(), earlier)) {
        Handle *timer = *next;
        time = std::max(time, timer->due);
        if (timer->repeat == Repeat::Once) {
            timers.erase(next);
            timer->loop = nullptr;
        } else {
            timer->due += std::max<qint64>(timer->interval, 1);
        }
        const auto fire = timer->fire;
        fire();
    }
    time = end;
}

namespace {

const QString base = "https://service.test/";

QVariantMap decodeForm(const QString &form)
{
    QVariantMap fields;
    if (form.isEmpty())
        return fields;
    const QStringList pairs = form.split(u'&');
    for (const QString &pair : pairs) {
        const auto decoded = [](const QString &text) { return QUrl::fromPercentEncoding(text.toUtf8()); };
        fields.insert(decoded(pair.section(u'=', 0, 0)), decoded(pair.section(u'=', 1)));
    }
    return fields;
}

} // namespace

QString FakeTransport::Sent::path() const
{
    return (request.url.startsWith(base) ? request.url.mid(base.size()) : request.url).section(u'?', 0, 0);
}

QVariantMap FakeTransport::Sent::fields() const
{
    return decodeForm(request.method == "GET" ? request.url.section(u'?', 1)
                                              : QString::fromUtf8(request.body));
}

QByteArray FakeTransport::Sent::header(const QByteArray &name) const
{
    for (const auto &[key, value] : request.headers) {
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    }
    return {};
}

void FakeTransport::send(const HttpRequest &request, std::function<void(const HttpOutcome &)> done)
{
    sent.push_back({request, std::move(done)});
}

int FakeTransport::countOf(const QString &path) const
{
    return static_cast<int>(std::count_if(sent.begin(), sent.end(),
                                          [&path](const Sent &request) { return request.path() == path; }));
}

FakeTransport::Sent &FakeTransport::last()
{
    if (sent.empty()) {
        ADD_FAILURE() << "nothing was sent";
        sent.push_back({{}, [](const HttpOutcome &) {}, true});
    }
    return sent.back();
}

bool FakeTransport::hasPending(const QString &path) const
{
    return std::any_of(sent.begin(), sent.end(),
                       [&path](const Sent &request) { return !request.answered && request.path() == path; });
}

FakeTransport::Sent &FakeTransport::pending(const QString &path)
{
    const auto found = std::find_if(sent.rbegin(), sent.rend(), [&path](const Sent &request) {
        return !request.answered && request.path() == path;
    });
    if (found != sent.rend())
        return *found;
    ADD_FAILURE() << "no unanswered request to " << path.toStdString();
    sent.push_back({{}, [](const HttpOutcome &) {}, true});
    return sent.back();
}

void FakeTransport::answer(Sent &which, const QVariantMap &json)
{
    const QByteArray body = QJsonDocument(QJsonObject::fromVariantMap(json)).toJson(QJsonDocument::Compact);
    answerRaw(which, HttpResponse{200, "application/json; charset=utf-8", body, false, date});
}

void FakeTransport::answerRaw(Sent &which, const HttpOutcome &outcome)
{
    which.answered = true;
    const auto done = std::exchange(which.done, {});
    if (done)
        done(outcome);
}

void FakeReachability::start(std::function<void(NetworkStatus)> report)
{
    ++starts;
    if (report)
        changed = std::move(report);
}

void FakeReachability::change(NetworkStatus now)
{
    status = now;
    if (changed)
        changed(now);
}

PlatformTest::PlatformTest()
    : platform{http, settings, reachability, runLoop,     kits,          kits,    kits,
               kits, kits,     kits,         application, notifications, overlays}
{
    settings.setValue(SettingsKeys::networkStatus, true);
}

PlatformTest::~PlatformTest()
{
    settle();
}

void PlatformTest::signIn()
{
    settings.setValue(SettingsKeys::user, QVariantMap{{"api_token", "t0ken"}, {"cell", "13812345678"}});
}

QStringList PlatformTest::banners() const
{
    QStringList texts;
    for (const MVNoticeView &banner : const_cast<OverlayHost &>(overlays).banners()->rows())
        texts.append(banner.content);
    return texts;
}

void PlatformTest::settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

QVariantMap succeeded(const QVariant &data)
{
    return {{"success", true}, {"data", data}};
}

QVariantMap refused(const QString &message)
{
    return {{"success", false}, {"message", message}};
}
