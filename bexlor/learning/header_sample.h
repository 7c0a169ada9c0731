#pragma once

#include <QStringList>

/// The headers in \a directories, which are searched, and in the folders right below them, as they
/// are included: "stdio.h", "sys/types.h". The first ones are a sample of all: directories and the
/// folders below them take turns, each giving one of its headers at random, the same one each time.
QStringList headersInTurn(const QStringList &directories, bool isCpp);
