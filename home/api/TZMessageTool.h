#pragma once

#include "core/net/Callbacks.h"

/// The operator's messages.
class TZMessageTool {
public:
    TZMessageTool() = delete;

    /// Marks a message read. Keys: "ID".
    static Operation putMarkReadMessagesWithParam(const QVariantMap &param, Success success,
                                                  Failure andError);
    /// "data" is the number of unread messages. A read that fails or is refused answers from the stored copy,
    /// if there is one.
    static Operation getUnReadMessagesSuccess(Success success, Failure andError);
};
