#pragma once

#include <QTest>

/// How long a test waits for what must come, in milliseconds: long enough for any machine, however
/// busy it is.
constexpr int patience = 300'000;

/// Adds a row of test data, \a values going into the columns from left to right.
template <typename... Values>
void row(const char *name, const Values &...values)
{
    (QTest::newRow(name) << ... << values);
}
