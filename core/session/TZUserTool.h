#pragma once

#include "core/net/KRAFHTTPClient.h"

/// The account endpoints. Each shows the waiting indicator before it sends. "Gated" calls the success
/// callback only for an answer whose "success" is true, "always" for every answer.
class TZUserTool {
public:
    TZUserTool() = delete;
    using ConstructBody = KRAFHTTPClient::ConstructBody;

    /// Always. The answer's "bizCode" says what comes next: "1001" an unknown number, "1002" a known one.
    static Operation checkCellWithCell(const QString &cell, Success success, Failure andError);
    /// Gated; signs the user in, unless that was given up meanwhile: the owner of `success` is gone, another
    /// user is stored than when it was sent, or it was sent again. Keys: "bizCode", "userInput", at
    /// registration "inviteCode".
    static Operation verifyCodeWithParam(const QVariantMap &param, Success success, Failure andError);
    static Operation uploadPhotoWithParam(const QVariantMap &param,
                                          const ConstructBody &constructingBodyWithBlock, Success success,
                                          Failure andError);
    /// Gated; stores the "nick" that was sent. Keys: "nick".
    static Operation setNickWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Always; afterwards stores the answer's "name", also of a refusal. Keys: "realName", "idCard".
    static Operation setRealNameWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Gated. Keys: "province", "city", "cardNo", "cell", "channelCode".
    static Operation bindCardWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Gated. Keys: "orderId" and "cell" when known, "code".
    static Operation bindCardVerifyWithParam(const QVariantMap &param, Success success, Failure andError);
    static Operation getBankcardListWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Gated. Keys: "password".
    static Operation setTradePwdWithParam(const QVariantMap &param, Success success, Failure andError);
    static Operation updatePwdToSendSMSWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Gated. Keys: "bizCode", "userInput".
    static Operation updatePwdToVerifyCodeWithParam(const QVariantMap &param, Success success,
                                                    Failure andError);
    /// Gated. Keys: "idCard".
    static Operation updatePwdToVerifyIDWithParam(const QVariantMap &param, Success success,
                                                  Failure andError);
    /// Gated. Keys: those collected by the reset, and "password".
    static Operation updatePwdWithParam(const QVariantMap &param, Success success, Failure andError);
    static Operation canUpdataPasswordWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Gated. Keys: "page".
    static Operation getWalletRecordsWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Gated; without a network answers from the stored copy, if there is one, with no operation. Keys:
    /// "page".
    static Operation getCommissionsWithParam(const QVariantMap &param, Success success, Failure andError);
    static Operation getCommissionsDetailsWithParam(const QVariantMap &param, Success success,
                                                    Failure andError);
};
