#pragma once

#include <QtTest>

/// How long a test waits for what must come, in milliseconds: long enough for any machine, however
/// busy it is.
constexpr int patience = 300'000;

/// The columns of a table of test data, and what adds rows to it.
template <typename... Types>
struct Columns
{
    /// Names the columns, from left to right.
    template <typename... Names>
    explicit Columns(Names... names)
    {
        (QTest::addColumn<Types>(names), ...);
    }

    /// Adds a row, \a values going into the columns from left to right.
    void operator()(const char *name, const Types &...values) const
    {
        (QTest::newRow(name) << ... << values);
    }
};
