// The brimwork command: its subcommands, options and exit codes.
#pragma once

namespace brimwork {

namespace exit_code {
inline constexpr int kDone = 0;
inline constexpr int kWouldChange = 1;
inline constexpr int kError = 2;
}  // namespace exit_code

/// Runs the command line and returns its exit code; every failure was told on standard error.
int RunApp(int argc, const char* const* argv);

}  // namespace brimwork
