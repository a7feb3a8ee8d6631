#include "core/net/KRAFHTTPClient.h"

#include "core/net/Envelope.h"
#include "core/net/FormBody.h"
#include "core/net/ToolPolicy.h"
#include "core/platform/ApplicationInfo.h"
#include "core/platform/Platform.h"
#include "core/platform/Reachability.h"
#include "core/platform/SettingsStore.h"
#include "core/platform/Timer.h"
#include "core/session/SettingsKeys.h"
#include "core/session/TZUserModel.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

using namespace std::chrono_literals;

namespace {

void addHeader(HttpRequest &request, const QByteArray &name, QString value)
{
    // A line break would end the header and begin another.
    value.remove(u'\r').remove(u'\n');
    request.headers.emplace_back(name, value.toUtf8());
}

void addCommonHeaders(HttpRequest &request)
{
    const Platform &platform = Platform::current();
    const QString token = TZUserModel::stored().api_token;
    if (!Service::whetherAnEmptyString(token))
        addHeader(request, "api_token", token);
    const QVariant infoVersion = platform.settings.value(SettingsKeys::infoVersion);
    if (!Service::whetherAnEmptyString(infoVersion))
        addHeader(request, "info_version", textForm(infoVersion));
    addHeader(request, "version", platform.application.buildVersion());
    addHeader(request, "platform", QStringLiteral("iOS"));
}

/// Puts the parameters where the method has them; false when the file of a multipart body cannot be read.
bool addParameters(HttpRequest &request, const QVariantMap &dict, const QString &fileUrl,
                   const QString &partName)
{
    if (request.method == "GET") {
        if (!dict.isEmpty())
            request.url += (request.url.contains(u'?') ? u'&' : u'?') + QString::fromLatin1(formFields(dict));
        return true;
    }
    if (request.method == "POST" && !fileUrl.isEmpty()) {
        const std::optional<MultipartBody> multipart = multipartBody(dict, fileUrl, partName);
        if (!multipart)
            return false;
        request.headers.emplace_back("Content-Type", multipart->contentType);
        request.body = multipart->bytes;
        return true;
    }
    request.headers.emplace_back("Content-Type", "application/x-www-form-urlencoded; charset=utf-8");
    request.body = formFields(dict);
    return true;
}

void fail(const Operation &operation, const Failure &error, const RequestError &cause)
{
    if (!operation->quiet) {
        Service::showLoadFailView();
        Service::hideWaitingProgressView();
    }
    error(operation, cause);
    Q_EMIT operation->finished();
}

void deliver(const Operation &operation, const HttpOutcome &outcome, const Success &done,
             const Failure &error)
{
    const auto *response = std::get_if<HttpResponse>(&outcome);
    if (!response)
        return fail(operation, error, {std::get<HttpFailure>(outcome)});
    operation->redirected = response->redirected;
    operation->answeredAt = response->date;
    const std::optional<QVariantMap> answer = decodeEnvelope(*response);
    if (!answer)
        return fail(operation, error, {std::nullopt, response->status, response->redirected});
    operation->succeeded = ToolPolicy::succeeded(*answer);
    if (!operation->quiet)
        KRAFHTTPClient::showMsgWithDict(*answer, operation->url);
    done(operation, *answer);
    Q_EMIT operation->finished();
}

/// The file of a multipart body, and the form name of its part.
struct FilePart {
    QString url;
    QString name;
};

Operation send(const Operation &operation, const QByteArray &method, const FilePart &file, Success done,
               Failure error)
{
    [[maybe_unused]] static const bool initialized = (KRAFHTTPClient::initialize(), true);

    HttpRequest request{method, operation->url, {}, {}};
    addCommonHeaders(request);
    if (!addParameters(request, operation->parameters, file.url, file.name)) {
        auto later = std::make_shared<Timer>();
        later->startOnce(0ms, [later, operation, error = std::move(error)] {
            fail(operation, error, {HttpFailure::Cancelled});
        });
        return operation;
    }
    Platform::current().http.send(
        request, [operation, done = std::move(done), error = std::move(error)](const HttpOutcome &outcome) {
            deliver(operation, outcome, done, error);
        });
    return operation;
}

} // namespace

void KRAFHTTPClient::initialize()
{
    Platform::current().reachability.start({});
}

Operation KRAFHTTPClient::get(const QString &url, const QVariantMap &dict, Success done, Failure error)
{
    return execute(url, QStringLiteral("GET"), dict, {}, {}, {}, std::move(done), std::move(error));
}

Operation KRAFHTTPClient::getQuietly(const QString &url, const QVariantMap &dict, Success done, Failure error)
{
    return send(std::make_shared<RequestOperation>(url, dict, true), "GET", {}, std::move(done),
                std::move(error));
}

Operation KRAFHTTPClient::post(const QString &url, const QVariantMap &dict, Success done, Failure error)
{
    return execute(url, QStringLiteral("POST"), dict, {}, {}, {}, std::move(done), std::move(error));
}

Operation KRAFHTTPClient::postQuietly(const QString &url, const QVariantMap &dict, Success done,
                                      Failure error)
{
    return send(std::make_shared<RequestOperation>(url, dict, true), "POST", {}, std::move(done),
                std::move(error));
}

Operation KRAFHTTPClient::post(const QString &url, const QVariantMap &dict, const QString &multiPart,
                               const QString &andPartName, Success done, Failure error)
{
    return execute(url, QStringLiteral("POST"), dict, multiPart, andPartName, {}, std::move(done),
                   std::move(error));
}

Operation KRAFHTTPClient::put(const QString &url, const QVariantMap &dict, Success done, Failure error)
{
    return execute(url, QStringLiteral("PUT"), dict, {}, {}, {}, std::move(done), std::move(error));
}

Operation KRAFHTTPClient::POST(const QString &url, const QVariantMap &parameters,
                               const ConstructBody &constructingBodyWithBlock, Success success,
                               Failure failure)
{
    return execute(url, QStringLiteral("POST"), parameters, {}, {}, constructingBodyWithBlock,
                   std::move(success), std::move(failure));
}

Operation KRAFHTTPClient::execute(const QString &url, const QString &method, const QVariantMap &dict,
                                  const QString &mutiPart, const QString &andPartName, const ConstructBody &,
                                  Success done, Failure error)
{
    if (method != QLatin1String("GET") && method != QLatin1String("POST") && method != QLatin1String("PUT"))
        return nullptr;
    return send(std::make_shared<RequestOperation>(url, dict, false), method.toLatin1(),
                {mutiPart, andPartName}, std::move(done), std::move(error));
}

void KRAFHTTPClient::showMsgWithDict(const QVariantMap &dict, const QString &url)
{
    const bool ok = ToolPolicy::succeeded(dict);
    const QString message = ToolPolicy::message(dict);
    const bool silent =
        Service::whetherAnEmptyString(message) || url == ToolPolicy::url(QStringLiteral("info"));
    if (!silent && ok)
        Service::showSuccessWithMsg(message);
    if (!silent && !ok)
        Service::showErrorWithMsg(message);
    if (!ok)
        Service::hideWaitingProgressView();
}
