#pragma once

#include "core/net/Callbacks.h"

/// What the tools of every area do around `KRAFHTTPClient` in the same way. A tool's function reads:
///
///     if (ToolPolicy::answersOffline(key, success))
///         return nullptr;
///     Service::showWaitingProgressView();
///     return KRAFHTTPClient::get(ToolPolicy::url("holding"), param, ToolPolicy::cached(key, success),
///     andError);
///
/// A failure goes to the caller as it is. An operation that hands on every answer untouched passes its
/// callback straight to the client.
namespace ToolPolicy {

/// The API base URL followed by `path`, which is not escaped.
QString url(const QString &path);

/// The answer's "success" as a boolean; absent is false.
bool succeeded(const QVariantMap &answer);

/// The "message" for the user; of an answer that is not a success, the "msg" when there is no "message".
QString message(const QVariantMap &answer);

enum class Indicator { Hide, Keep };
enum class Hand { AsReceived, Cleaned };

/// Calls `success` only for an answer whose "success" is true; the indicator is hidden first unless it is to
/// be kept.
Success gated(Success success, Indicator indicator = Indicator::Hide);

/// Calls `success` for every answer, the indicator hidden first.
Success passed(Success success);

/// Drops an answer that comes when another user, or none, has taken the place of the one who asks now.
Success ofSameUser(Success success);

/// As `gated` and `ofSameUser`, and stores the answer under `key` without its nulls before handing it on. One
/// that a later one has overtaken is dropped.
Success cached(const QString &key, Success success, Hand hand = Hand::AsReceived);

/// What the "data" of a good answer looks like. Nothing, or null, is a list without elements.
using Shape = bool (*)(const QVariant &data);
bool isObject(const QVariant &data);
bool isList(const QVariant &data);
bool isScalar(const QVariant &data);

/// A success whose "data" has another shape counts as undecodable: "加载失败" is shown, `success` does not
/// hear of it, and it takes the place of no stored copy.
Success shaped(Shape shape, Success success);

/// Whether `operation` is answered in its turn: false when the answer to a later request for `key` with the
/// same parameters was taken before. Otherwise this one is taken.
bool takesInTurn(const QString &key, const Operation &operation);

/// The copy that `cached` stored; empty when there is none.
QVariantMap stored(const QString &key);

/// False with a network. Without one: "网络异常" is shown, the stored copy goes to `success` with a null
/// operation if there is one, and the tool sends nothing.
bool answersOffline(const QString &key, const Success &success);

} // namespace ToolPolicy
