#pragma once

#include <QByteArray>
#include <QStringList>

/// What differs between two texts of personalities, a line each: the heading or the word that the
/// fact stands behind, and "-" with what is gone, "+" with what is new, or that the order is
/// another. None for equal texts.
QStringList changesBetween(const QByteArray &before, const QByteArray &after);
