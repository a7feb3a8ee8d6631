#pragma once

#include "core/shell/Router.h"

/// What the screens of the sign-in stack have in common: the action that waits for the sign-in, handed from
/// one to the next, and the end of the whole.
class TZSignInStep {
public:
    void setToSomeController(ToSomeController action) { toSomeController = std::move(action); }

protected:
    ~TZSignInStep() = default;

    /// Tells the home page, runs what waited, takes the stack of `step` off the window.
    void finishSignIn(KRBaseController &step);
    /// The stack goes, what waited is not run.
    static void closeSignIn(KRBaseController &step);

    ToSomeController toSomeController;
};
