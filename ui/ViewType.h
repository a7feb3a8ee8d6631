#pragma once

#include <QtQml/qqml.h>

/// In a gadget: makes the C++ class `Type` known to views under its own name; only C++ makes objects of it.
#define ZV_VIEW_TYPE(Type)                                                                                   \
    QML_FOREIGN(Type)                                                                                        \
    QML_NAMED_ELEMENT(Type)                                                                                  \
    QML_UNCREATABLE("made in C++")

/// The same under another name. A dialog's class needs one, because its view has the name of the class:
/// `ZV_VIEW_TYPE_AS(TZInfoAlertView, TZInfoAlertDialog)` for TZInfoAlertView.qml.
#define ZV_VIEW_TYPE_AS(Type, Name)                                                                          \
    QML_FOREIGN(Type)                                                                                        \
    QML_NAMED_ELEMENT(Name)                                                                                  \
    QML_UNCREATABLE("made in C++")
