#pragma once

#include "exit_status.h"
#include "request.h"

/// Each of these does what a command line asks for, prints what it does, and returns what the
/// program does.

ExitStatus run(const Arguments &arguments);
ExitStatus run(const EntryRequest &request);
ExitStatus run(const AgainRequest &request);
ExitStatus run(const CheckRequest &request);
ExitStatus run(const ExportRequest &request);
