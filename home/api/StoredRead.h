#pragma once

#include "core/net/ToolPolicy.h"

/// A GET whose last good answer is stored, cleaned of nulls, and stands for the one that does not come. An
/// answer that arrives after its user has signed out, or after that of a later read, is dropped; one of
/// another shape is no good answer.
struct StoredRead {
    enum class Audience { Everyone, User };

    QString path;
    /// Where it is stored; empty: nowhere.
    QString key = {};
    Audience audience = Audience::User;
    ToolPolicy::Shape shape = ToolPolicy::isObject;
    /// What is stored and handed on of a clean answer; empty: the whole.
    std::function<QVariantMap(const QVariantMap &)> keep = {};

    /// Shows the waiting indicator. A refusal hands on the stored answer, a failure the same and then calls
    /// `andError`; where nothing is stored `success` is not called.
    Operation send(const QVariantMap &param, const Success &success, const Failure &andError) const;
    /// Hands on what stands for an answer, if anything does. What everyone may read has built-in figures
    /// (:/resources/KEY.plist) until the first good answer to any such read.
    void answerWithout(const Operation &operation, const Success &success) const;

private:
    QVariantMap stored() const;
    QVariantMap store(const QVariantMap &answer) const;
};
