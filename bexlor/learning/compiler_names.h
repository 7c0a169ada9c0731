#pragma once

#include "compiler.h"
#include "header_scan.h"

/// Names that the macros of \a compiler may have, whose version is told by \a versionLine: those
/// that its command and the user's defines give, those formed of the words of its own name, version
/// and options, such as "__arm__" and "__cortex_m4__", and those in its program and the
/// configuration files beside it.
QList<ScannedName> namesOfCompiler(const Compiler &compiler, const QByteArray &versionLine);
