#pragma once

#include "core/shell/KRBaseController.h"
#include "core/shell/Router.h"

/// What the screens of the sign-in stack have in common: the action that waits for the sign-in, handed from
/// one to the next, and the end of the whole.
class TZSignInController : public KRBaseController {
    Q_OBJECT
public:
    void setToSomeController(ToSomeController action) { toSomeController = std::move(action); }

    void viewWillDisappear() override;

protected:
    TZSignInController() = default;

    /// Tells the home page, runs what waited, takes the stack off the window.
    void finishSignIn();
    /// The stack goes, what waited is not run.
    void closeSignIn();

    ToSomeController toSomeController;
};
