#pragma once

/// Is told that the user's holdings changed.
class HoldingsDelegate {
public:
    virtual ~HoldingsDelegate() = default;
    virtual void reloadHoldingData() = 0;
};
