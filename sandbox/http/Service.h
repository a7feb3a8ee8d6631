#pragma once

#include "exchange/Brokerage.h"
#include "http/Faults.h"
#include "http/Router.h"
#include "identity/Resets.h"
#include "identity/Sessions.h"
#include "identity/SmsCodes.h"
#include "identity/Users.h"
#include "messages/Messages.h"
#include "messages/PushHub.h"

#include <filesystem>

namespace sandbox::http {

/// The parts that the routes call. All of them may be used from any thread and outlive the router.
struct Service {
    Clock &clock;
    Brokerage &brokerage;
    identity::Users &users;
    identity::SmsCodes &sms;
    identity::Sessions &sessions;
    identity::Resets &resets;
    messages::Messages &messages;
    messages::PushHub &push;
    Faults &faults;
    std::filesystem::path imageFolder;
};

/// The user of the call's token; throws Refusal when there is none.
[[nodiscard]] identity::User signedIn(Service &service, const Call &call);

/// Adds a route that answers signed-in users only.
using UserHandler = std::function<Json(Service &, const identity::User &, const Call &)>;
void addUserRoute(Router &router, Service &service, const std::string &method, const std::string &path,
                  UserHandler handler);

/// Passes when the call carries the right trade password in `field`, or none was needed. Throws Refusal with
/// code 12000 when one is needed in this session, 12002 when it is wrong, and without a code when none is set
/// or it is locked.
void requireTradePassword(Service &service, const Call &call, const identity::User &user,
                          std::string_view field);

/// Registers the number: the user, an empty account, a word of welcome.
identity::User registerUser(Service &service, const std::string &cell, const std::string &invitedBy);

/// Gives a new user the first message.
void welcome(Service &service, UserId user);

/// Keeps a message and pushes it (pageId 2) to the user's open clients.
void sendMessage(Service &service, messages::Message message);

/// Pushes {"pageId": page, "data": data} to the user's open clients.
void push(Service &service, UserId user, int page, const Json &data);

/// What the brokerage answered; its refusal becomes ours.
template <typename Value> Value accepted(Outcome<Value> outcome)
{
    if (const auto *refusal = std::get_if<sandbox::Refusal>(&outcome))
        throw Refusal(refusal->message);
    return std::get<Value>(std::move(outcome));
}

} // namespace sandbox::http
