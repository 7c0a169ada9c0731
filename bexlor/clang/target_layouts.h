#pragma once

#include "facts.h"

/// How clang lays out the types of its targets.

/// A target for each way in which types are laid out, those first that are good for a compiler
/// whose architecture clang does not have.
QList<QByteArray> targetNames();

/// The options by which the types of \a target can be laid out otherwise.
QList<QByteArray> layoutOptions(const QByteArray &target);

/// The types of \a target, which may be another system's than those of targetNames(), with those of
/// \a options that lay types out otherwise; all but the sign of char. Nothing is known of a target
/// that clang does not have.
TypeFacts typesOfTarget(const QByteArray &target, const QList<QByteArray> &options);
