#pragma once

#include "core/net/Callbacks.h"

#include <QVariantMap>

/// The one door to the service's HTTPS JSON API. Holds nothing between requests: token and headers are read
/// from the settings for each of them. Callbacks run on the main thread.
class KRAFHTTPClient {
public:
    KRAFHTTPClient() = delete;

    /// Starts the shared reachability monitor. The worker below calls it once, before its first request.
    static void initialize();

    /// Adds parts to a multipart body.
    using ConstructBody = std::function<void()>;

    static Operation get(const QString &url, const QVariantMap &dict, Success done, Failure error);
    /// For what nobody on the screen has asked for: no banner, and the indicator stays as it is.
    static Operation getQuietly(const QString &url, const QVariantMap &dict, Success done, Failure error);
    static Operation post(const QString &url, const QVariantMap &dict, Success done, Failure error);
    static Operation postQuietly(const QString &url, const QVariantMap &dict, Success done, Failure error);
    /// `multiPart` is the local file's URL, sent under the form name `andPartName` besides the parameters. A
    /// file that cannot be read is a failure and nothing is sent.
    static Operation post(const QString &url, const QVariantMap &dict, const QString &multiPart,
                          const QString &andPartName, Success done, Failure error);
    static Operation put(const QString &url, const QVariantMap &dict, Success done, Failure error);
    /// Kept on purpose: `constructingBodyWithBlock` is taken and never used, the request is a plain form
    /// POST.
    static Operation POST(const QString &url, const QVariantMap &parameters,
                          const ConstructBody &constructingBodyWithBlock, Success success, Failure failure);
    /// The worker of all the above. `url` is sent as it is, parameters are added to its query for GET and are
    /// the body's fields otherwise. `method` is "GET", "POST" or "PUT" to the letter; with any other nothing
    /// is sent, no callback runs, null is returned.
    static Operation execute(const QString &url, const QString &method, const QVariantMap &dict,
                             const QString &mutiPart, const QString &andPartName,
                             const ConstructBody &constructingBodyWithBlock, Success done, Failure error);
    /// Shows the "message" of an answer; hides the waiting indicator when it is no success.
    static void showMsgWithDict(const QVariantMap &dict, const QString &url);
};
