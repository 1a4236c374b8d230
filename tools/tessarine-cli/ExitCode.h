#pragma once

namespace tessarine::cli {

// The exit statuses scripts can rely on. 130 is what a shell reports for a job stopped by
// Ctrl-C, so a cancelled scan looks the same whether or not it cleaned up first.
enum ExitCode : int { exitSuccess = 0, exitFailure = 1, exitUsage = 2, exitCancelled = 130 };

} // namespace tessarine::cli
