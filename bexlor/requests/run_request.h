#pragma once

#include "exit_status.h"
#include "request.h"

/// Does what a command line asks for and prints what comes of it.
ExitStatus runRequest(const Request &request);
