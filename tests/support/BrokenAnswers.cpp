#include "tests/support/BrokenAnswers.h"

QList<UnusableAnswer> unusableAnswers()
{
    const QString failed = QStringLiteral("加载失败");
    const QByteArray json = "application/json";
    const QByteArray good = R"({"success":true,"data":{}})";
    const auto body = [&](const QByteArray &bytes) { return HttpResponse{200, json, bytes}; };
    QList<UnusableAnswer> answers{
        {"offline", HttpFailure::Offline, failed},
        {"time-out", HttpFailure::TimedOut, failed},
        {"broken trust", HttpFailure::Tls, failed},
        {"reset", HttpFailure::Connection, failed},
        {"cancelled", HttpFailure::Cancelled, failed},
        {"no body", body(""), failed},
        {"not JSON", body("<html>502 Bad Gateway</html>"), failed},
        {"truncated", body(good.chopped(1)), failed},
        {"two objects", body(good + good), failed},
        {"not UTF-8", body("{\"success\":true,\"message\":\"\xff\xfe\"}"), failed},
        {"number beyond all numbers", body(R"({"success":true,"data":1e400})"), failed},
        {"list at the top", body("[" + good + "]"), failed},
        {"text at the top", body("\"success\""), failed},
        {"null at the top", body("null"), failed},
        {"too deep",
         body("{\"success\":true,\"data\":" + QByteArray(100'000, '[') + QByteArray(100'000, ']') + "}"),
         failed},
        {"plain text", HttpResponse{200, "text/plain", good}, failed},
        {"picture", HttpResponse{200, "image/png", good}, failed},
        {"no label", HttpResponse{200, "", good}, failed},
        {"empty object", body("{}"), {}},
        {"refusal", body(R"({"success":false,"message":"余额不足"})"), QStringLiteral("余额不足")},
        {"refusal by another name", body(R"({"success":false,"message":"","msg":"余额不足"})"),
         QStringLiteral("余额不足")},
        {"refusal as text", body(R"({"success":"false","message":"余额不足"})"), QStringLiteral("余额不足")},
        {"refusal labelled html", HttpResponse{201, "text/html; charset=utf-8", R"({"message":"余额不足"})"},
         QStringLiteral("余额不足")},
        {"refusal without a text", body(R"({"success":null,"message":null,"data":null})"), {}},
        {"refusal of wrong types", body(R"({"success":[],"message":{"a":[1]},"data":"x","code":{}})"), {}},
        {"refusal with a number", body(R"({"success":0,"message":404})"), QStringLiteral("404")},
        {"refusal with lists", body(R"({"success":false,"code":[30012],"data":[[null]]})"), {}},
    };
    for (const int status : {100, 204, 301, 304, 400, 401, 403, 404, 500, 503, 0})
        answers.append({"status", HttpResponse{status, json, status == 204 ? QByteArray() : good}, failed});
    return answers;
}

QList<QByteArray> misshapenSuccesses()
{
    const QList<QByteArray> payloads{
        "null",
        "true",
        "0",
        "-1e308",
        "\"\"",
        "\"text\"",
        "[]",
        "{}",
        "[null]",
        "[[]]",
        "[1,\"a\",null,{},[]]",
        R"({"data":null,"page":[],"hasNext":"x","name":{}})",
        R"({"api_token":null,"nick":7,"cell":[],"name":{"a":1}})",
        R"({"asset":[],"loan":"x","buyPankou":{},"sellPankou":[1,2,3],"match":null,"closeList":{"a":null}})",
        R"({"list":[null,{"id":null},{"id":{}},7]})",
        R"({"id":9223372036854775808,"price":1e300,"shares":-0.0})",
        QByteArray(900, '[') + QByteArray(900, ']'),
        '"' + QByteArray(2'000'000, 'x') + '"'};
    QList<QByteArray> answers;
    for (const QByteArray &payload : payloads) {
        answers.append(R"({"success":true,"data":)" + payload + "}");
        answers.append(R"({"success":"true","message":"","code":)" + payload + R"(,"data":[)" + payload +
                       "]}");
    }
    return answers;
}
