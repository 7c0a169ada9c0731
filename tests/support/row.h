#pragma once

#include <QTest>

/// Adds a row of test data, \a values going into the columns from left to right.
template <typename... Values>
void row(const char *name, const Values &...values)
{
    (QTest::newRow(name) << ... << values);
}
