#pragma once

#include <QtQml/qqml.h>

/// In a gadget: makes the C++ class `Type` known to views under its own name; only C++ makes objects of it.
#define ZV_VIEW_TYPE(Type)                                                                                             \
    QML_FOREIGN(Type)                                                                                                  \
    QML_NAMED_ELEMENT(Type)                                                                                            \
    QML_UNCREATABLE("made in C++")
