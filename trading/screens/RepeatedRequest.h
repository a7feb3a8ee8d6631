#pragma once

#include "core/net/Callbacks.h"

/// A request that a screen repeats every few seconds. Of its failures the first is told, as every failure is,
/// and hides the waiting indicator; until one has succeeded the others are to be silent.
class RepeatedRequest : public QObject {
public:
    /// Whether the next one is to be sent quietly: a failure was told, or is told by one that is on its way.
    bool isSilent() const { return told || speaking; }

    void sent(const Operation &operation)
    {
        speaking = speaking || !operation->quiet;
        connect(operation.get(), &RequestOperation::finished, this,
                [this, request = operation.get()] { ended(*request); });
    }

private:
    void ended(const RequestOperation &request)
    {
        if (!request.quiet)
            speaking = false;
        told = !request.succeeded && (told || !request.quiet);
    }

    bool speaking = false;
    bool told = false;
};
