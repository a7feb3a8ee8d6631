#pragma once

#include "core/platform/HttpTransport.h"

/// What `told` says is the banner to expect: "加载失败" for an answer that cannot be used.
struct UnusableAnswer {
    const char *what;
    HttpOutcome outcome;
    QString told;
};

QList<UnusableAnswer> unusableAnswers();

/// Answers that count as success while nothing in them has the shape that a screen waits for.
QList<QByteArray> misshapenSuccesses();
