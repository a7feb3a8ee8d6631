#pragma once

#include "core/platform/HttpTransport.h"

#include <QObject>
#include <QPointer>
#include <QVariantMap>
#include <functional>
#include <memory>
#include <optional>

/// One request on its way. `finished` is emitted once, after the callbacks, whatever came of it: also when
/// the tool calls neither of them.
class RequestOperation : public QObject {
    Q_OBJECT
public:
    RequestOperation(QString requestUrl, QVariantMap requestParameters, bool isQuiet)
        : url(std::move(requestUrl)), parameters(std::move(requestParameters)), quiet(isQuiet)
    {
    }
    const QString url;
    const QVariantMap parameters;
    /// Shows no banner and leaves the indicator as it is.
    const bool quiet;
    /// Greater than that of every request before it.
    const quint64 number = ++sent;
    /// The service answered, and its "success" is true. Set before the callbacks.
    bool succeeded = false;
    /// What came back is from where a redirect led after the body was sent: it says nothing of the work that
    /// the body asked for. Set before the callbacks.
    bool redirected = false;
    /// When the service answered, on its own clock: milliseconds since 1970; 0 when it did not say so. Set
    /// before the callbacks.
    qint64 answeredAt = 0;

Q_SIGNALS:
    void finished();

private:
    static inline quint64 sent = 0;
};

/// Null where no request was sent: an answer from the stored copy, an unknown method.
using Operation = std::shared_ptr<RequestOperation>;

/// A request without a decoded answer: `failure` when there was no response, otherwise the status of one that
/// could not be used.
struct RequestError {
    std::optional<HttpFailure> failure;
    int status = 0;
    /// As of `RequestOperation`.
    bool redirected = false;

    /// The service may have done the work that the request, one with a body, asked for. Not when nothing was
    /// sent, and not after a status that says that the request was wrong.
    bool mayHaveArrived() const
    {
        if (failure)
            return *failure != HttpFailure::Offline && *failure != HttpFailure::Tls;
        return redirected || status < 400 || status > 499;
    }
};

/// A function that belongs to an owner: once the owner is gone, calling it does nothing.
template <typename Argument> class OwnedCallback {
public:
    using Function = std::function<void(const Operation &, const Argument &)>;

    OwnedCallback() = default;
    OwnedCallback(const QObject *callbackOwner, Function callback)
        : owner(callbackOwner), owned(true), function(std::move(callback))
    {
    }

    void operator()(const Operation &operation, const Argument &argument) const
    {
        if (function && isWanted())
            function(operation, argument);
    }

    /// False once the owner is gone: what was asked for is no longer wanted.
    bool isWanted() const { return !owned || owner; }

protected:
    explicit OwnedCallback(Function callback) : function(std::move(callback)) {}

private:
    QPointer<const QObject> owner;
    bool owned = false;
    Function function;
};

/// Receives the decoded answer. Default-made it is empty and does nothing.
class Success : public OwnedCallback<QVariantMap> {
public:
    using OwnedCallback::OwnedCallback;
    /// For the tools' own wrappers, which live as long as the call.
    static Success unowned(Function callback) { return Success(std::move(callback)); }
};

class Failure : public OwnedCallback<RequestError> {
public:
    using OwnedCallback::OwnedCallback;
    static Failure unowned(Function callback) { return Failure(std::move(callback)); }
};
